# The set-up that ./run, ./test and bench/run share: sourced with the project's folder as the current one.
# Installs what is missing (and only that), configures and builds, and shows how far it is. Quick when everything is there.

paquets_construccio="cmake ninja-build g++ ccache pkg-config qt6-base-dev libqt6svg6-dev libsqlite3-dev libpq-dev libicu-dev
  libgtest-dev nlohmann-json3-dev fonts-dejavu-core fonts-liberation2 qt6-translations-l10n"
paquets_proves="postgresql clang-format clang-tidy poppler-utils git"

installat() { dpkg-query -W -f='${Status}' "$1" 2>/dev/null | grep -q 'install ok installed'; }

# The reports of apt's own progress, a tenth at a time.
mostrar_paquets() {
  local linia feina percentatge darrer=
  while IFS= read -r linia; do
    case $linia in
      dlstatus:*) feina=downloaded ;;
      pmstatus:*) feina=installed ;;
      *) continue ;;
    esac
    percentatge=${linia#*:*:}
    percentatge=${percentatge%%[.:]*}
    [ "$darrer" = "$feina ${percentatge%?}" ] || echo "  $percentatge % $feina"
    darrer="$feina ${percentatge%?}"
  done
}

# Installs the packages of its arguments that are missing. They ask nothing, and say nothing unless they fail.
instalar() {
  local falten=() diari com=()
  for paquet in "$@"; do installat "$paquet" || falten+=("$paquet"); done
  [ ${#falten[@]} -eq 0 ] && return 0
  echo "Installing: ${falten[*]}"
  diari=$(mktemp)
  [ "$(id -u)" -eq 0 ] || com=(sudo)
  # The progress has a pipe of its own: apt makes it one that does not wait, and a package's words would break on it.
  if "${com[@]}" apt-get update -qq > "$diari" 2>&1 &&
    "${com[@]}" env DEBIAN_FRONTEND=noninteractive DEBCONF_NOWARNINGS=yes bash -c \
      'exec apt-get install -y -qq --no-install-recommends -o APT::Status-Fd=3 -o Dpkg::Use-Pty=0 "$@" \
        3>&1 >> "$0" 2>&1 < /dev/null' "$diari" "${falten[@]}" | mostrar_paquets &&
    [ "${PIPESTATUS[0]}" -eq 0 ]; then
    rm -f "$diari"
    return 0
  fi
  tail -n 20 "$diari"
  echo "The packages could not be installed: $diari"
  return 1
}

# Builds the targets of its arguments of a preset (all of them when none is named), with the build's own progress.
construir() {
  local preset=$1 diari
  shift
  diari=$(mktemp)
  if ! cmake --preset "$preset" > "$diari" 2>&1; then
    tail -n 20 "$diari"
    echo "The build could not be prepared: $diari"
    return 1
  fi
  rm -f "$diari"
  [ $# -eq 0 ] || set -- --target "$@"
  cmake --build --preset "$preset" "$@"
}

# The project's files that match the patterns of its arguments, a line each; in a copy without history too.
fitxers() {
  if git -c safe.directory='*' rev-parse --is-inside-work-tree > /dev/null 2>&1; then
    git -c safe.directory='*' ls-files -- "$@"
    return
  fi
  local fitxer patro
  find . -path ./build -prune -o -path ./demo-output -prune -o -type f -printf '%P\n' | sort | while IFS= read -r fitxer; do
    [ $# -gt 0 ] || printf '%s\n' "$fitxer"
    for patro in "$@"; do
      # shellcheck disable=SC2053
      [[ $fitxer == $patro ]] && { printf '%s\n' "$fitxer"; break; }
    done
  done
}
