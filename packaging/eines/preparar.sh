# The set-up that ./run, ./test and bench/run share: sourced with the project's folder as the current one.
# Installs what is missing (and only that), configures and builds. Quick when everything is there.

paquets_construccio="cmake ninja-build g++ ccache pkg-config qt6-base-dev libsqlite3-dev libpq-dev libicu-dev
  libgtest-dev nlohmann-json3-dev fonts-dejavu-core fonts-liberation2"
paquets_proves="postgresql clang-format clang-tidy poppler-utils git"

installat() { dpkg-query -W -f='${Status}' "$1" 2>/dev/null | grep -q 'install ok installed'; }

# Installs the packages of its arguments that are missing.
instalar() {
  local falten=()
  for paquet in "$@"; do installat "$paquet" || falten+=("$paquet"); done
  [ ${#falten[@]} -eq 0 ] && return 0
  echo "Installing: ${falten[*]}"
  local com=()
  [ "$(id -u)" -eq 0 ] || com=(sudo)
  "${com[@]}" apt-get update -qq
  "${com[@]}" env DEBIAN_FRONTEND=noninteractive apt-get install -y -qq --no-install-recommends "${falten[@]}" > /dev/null
}

# Builds the release preset; the whole output only when something fails.
construir() {
  local diari
  diari=$(mktemp)
  if ! { cmake --preset release && cmake --build --preset release; } > "$diari" 2>&1; then
    grep -E 'error|warning|FAILED' "$diari" | head -n 40
    echo "The build failed: $diari"
    return 1
  fi
  rm -f "$diari"
}
