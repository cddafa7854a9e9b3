# A PostgreSQL server of the project's own, for tests and measures: a throw-away cluster in a folder, a Unix socket, an
# unprivileged user. Sourced; needs the package postgresql.
#   engegar_servidor FOLDER [SETTING...]   exports BROLLADOR_SERVIDOR, an address without a database
#   aturar_servidor                        stops it and takes the folder away

servidor_com() {
  if [ "$(id -u)" -eq 0 ]; then setpriv --reuid=postgres --regid=postgres --clear-groups env HOME=/tmp "$@"; else "$@"; fi
}

servidor_programa() {
  local nom=$1 trobat
  trobat=$(command -v "$nom" || find /usr/lib/postgresql -path "*/bin/$nom" | sort -V | tail -n 1)
  printf '%s' "$trobat"
}

engegar_servidor() {
  carpeta_servidor=$1
  shift
  rm -rf "$carpeta_servidor"
  mkdir -p "$carpeta_servidor"
  sortidor_servidor=$(mktemp -d /tmp/brollador-pg-XXXXXX)
  if [ "$(id -u)" -eq 0 ]; then chown postgres "$carpeta_servidor" "$sortidor_servidor"; fi
  local opcions="-c listen_addresses='' -c unix_socket_directories='$sortidor_servidor' -c max_connections=200" ajust
  for ajust in "$@"; do opcions+=" -c $ajust"; done
  (
    cd /tmp || exit 1
    servidor_com "$(servidor_programa initdb)" -D "$carpeta_servidor/dades" -U brollador -A trust -E UTF8 --locale=C \
      --no-sync > /dev/null &&
      servidor_com "$(servidor_programa pg_ctl)" -D "$carpeta_servidor/dades" -l "$carpeta_servidor/diari" -o "$opcions" \
        -w start > /dev/null
  ) || return 1
  export BROLLADOR_SERVIDOR="postgresql:///?host=$sortidor_servidor&user=brollador"
}

aturar_servidor() {
  [ -n "${carpeta_servidor:-}" ] || return 0
  (cd /tmp && servidor_com "$(servidor_programa pg_ctl)" -D "$carpeta_servidor/dades" -m immediate stop > /dev/null 2>&1)
  rm -rf "$carpeta_servidor" "$sortidor_servidor"
  unset BROLLADOR_SERVIDOR
  carpeta_servidor=
}
