# A PostgreSQL server of the project's own, for tests and measures: a throw-away cluster, a Unix socket, an unprivileged
# user. It lies in a folder of its own, away from the checkout: its user may not be let into that. Sourced; needs the
# package postgresql.
#   engegar_servidor [SETTING...]   exports BROLLADOR_SERVIDOR, an address without a database; its diary when it fails
#   aturar_servidor                 stops it and takes the folder away

servidor_com() {
  if [ "$(id -u)" -eq 0 ]; then setpriv --reuid=postgres --regid=postgres --clear-groups env HOME=/tmp "$@"; else "$@"; fi
}

servidor_programa() {
  local nom=$1 trobat
  trobat=$(command -v "$nom" || find /usr/lib/postgresql -path "*/bin/$nom" | sort -V | tail -n 1)
  printf '%s' "$trobat"
}

engegar_servidor() {
  local sortida
  carpeta_servidor=$(mktemp -d /var/tmp/brollador-pg-XXXXXX) || return 1
  sortida=$(mktemp) || return 1
  if [ "$(id -u)" -eq 0 ]; then chown postgres "$carpeta_servidor"; fi
  local opcions="-c listen_addresses='' -c unix_socket_directories='$carpeta_servidor' -c max_connections=200" ajust
  for ajust in "$@"; do opcions+=" -c $ajust"; done
  if ! (
    cd "$carpeta_servidor" || exit 1
    servidor_com "$(servidor_programa initdb)" -D "$carpeta_servidor/dades" -U brollador -A trust -E UTF8 --locale=C \
      --no-sync 2>&1 &&
      servidor_com "$(servidor_programa pg_ctl)" -D "$carpeta_servidor/dades" -l "$carpeta_servidor/diari" -o "$opcions" \
        -w start 2>&1
  ) > "$sortida"; then
    tail -n 20 "$sortida" "$carpeta_servidor/diari" 2> /dev/null >&2
    rm -rf "$sortida" "$carpeta_servidor"
    carpeta_servidor=
    return 1
  fi
  rm -f "$sortida"
  export BROLLADOR_SERVIDOR="postgresql:///?host=$carpeta_servidor&user=brollador"
}

aturar_servidor() {
  [ -n "${carpeta_servidor:-}" ] || return 0
  (cd /tmp && servidor_com "$(servidor_programa pg_ctl)" -D "$carpeta_servidor/dades" -m immediate stop > /dev/null 2>&1)
  rm -rf "$carpeta_servidor"
  unset BROLLADOR_SERVIDOR
  carpeta_servidor=
}
