# How ./test runs a piece, shows what it does and counts what held. Sourced.

passades=0
fallades=0

comptar() { passades=$((passades + $1)); fallades=$((fallades + $2)); }

# The last words of the whole, and its exit.
acabar() {
  echo "$passades passed, $fallades failed"
  [ "$fallades" -eq 0 ]
  exit
}

# Runs a command into a file. On a terminal its last line shows while it works.
seguir() {
  local nom=$1 diari=$2 linia
  shift 2
  if [ ! -t 1 ]; then "$@" > "$diari" 2>&1; return; fi
  "$@" 2>&1 | while IFS= read -r linia; do
    printf '%s\n' "$linia" >> "$diari"
    printf '\r\033[K%s: %s' "$nom" "${linia:0:80}"
  done
  local estat=${PIPESTATUS[0]}
  printf '\r\033[K'
  return "$estat"
}

# A suite that prints its own "N passed, N failed" as its last line.
suite() {
  local nom=$1 diari darrera
  diari=$(mktemp)
  shift
  seguir "$nom" "$diari" "$@"
  darrera=$(tail -n 1 "$diari")
  if [[ $darrera =~ ^([0-9]+)\ passed,\ ([0-9]+)\ failed$ ]]; then
    comptar "${BASH_REMATCH[1]}" "${BASH_REMATCH[2]}"
    [ "${BASH_REMATCH[2]}" -eq 0 ] || grep -v '^ok ' "$diari" | head -n 40
    echo "$nom: $darrera"
  else
    comptar 0 1
    tail -n 20 "$diari"
    echo "$nom: did not end"
  fi
  rm -f "$diari"
}

# A GoogleTest binary.
google() {
  local nom=$1 programa=$2 diari estat bones dolentes
  diari=$(mktemp)
  seguir "$nom" "$diari" "$programa"
  estat=$?
  bones=$(sed -n 's/^\[  PASSED  \] \([0-9]*\) test.*/\1/p' "$diari")
  dolentes=$(grep -c '^\[  FAILED  \] [^ ]*\.[^ ]* (' "$diari")
  bones=${bones:-0}
  # A binary that died, or whose tests could not even begin, says so by its status alone.
  [ "$estat" -eq 0 ] || [ "$dolentes" -gt 0 ] || dolentes=1
  [ "$dolentes" -eq 0 ] || grep -vE '^\[ (RUN     |      OK) \]|^\[---' "$diari" | tail -n 60
  comptar "$bones" "$dolentes"
  echo "$nom: $bones passed, $dolentes failed"
  rm -f "$diari"
}

# One check: it holds when the command ends well and says nothing.
comprovacio() {
  local nom=$1 sortida
  shift
  [ ! -t 1 ] || printf '%s ...' "$nom"
  sortida=$("$@" 2>&1)
  local estat=$?
  [ ! -t 1 ] || printf '\r\033[K'
  if [ $estat -eq 0 ] && [ -z "$sortida" ]; then
    comptar 1 0
    echo "$nom: ok"
  else
    comptar 0 1
    printf '%s\n' "$sortida" | head -n 30
    echo "$nom: FAILED"
  fi
}

# A tool that tells by its exit status.
eina() {
  local nom=$1 diari
  diari=$(mktemp)
  shift
  if seguir "$nom" "$diari" "$@"; then
    comptar 1 0
    echo "$nom: ok"
  else
    comptar 0 1
    tail -n 20 "$diari"
    echo "$nom: FAILED"
  fi
  rm -f "$diari"
}
