# Sourced by ./run and ./test from the top folder: installs what is missing and builds.

say() { printf '%s\n' "$*" >&2; }

# The packages of scripts/packages.txt that dpkg does not know as installed.
missing_packages() {
  local package
  while read -r package; do
    case "$package" in '' | '#'*) continue ;; esac
    dpkg-query -W -f='${db:Status-Status}' "$package" 2>/dev/null | grep -qx installed ||
      printf '%s\n' "$package"
  done <scripts/packages.txt
}

install_missing() {
  local missing root=()
  missing=$(missing_packages)
  [ -z "$missing" ] && return 0
  if [ "$(id -u)" -ne 0 ]; then
    command -v sudo >/dev/null || { say "Falta instalar, como administrador: $(echo $missing)"; return 1; }
    root=(sudo)
  fi
  say "Instalando: $(echo $missing)"
  "${root[@]}" apt-get update -qq
  # shellcheck disable=SC2086
  "${root[@]}" env DEBIAN_FRONTEND=noninteractive apt-get install -y -qq --no-install-recommends $missing >&2
}

# build TARGET...: configures the release build if need be and builds.
build() {
  cmake --log-level=NOTICE --preset release "${CAIXA_CONFIGURE[@]}" >/dev/null
  cmake --build build --parallel "$(nproc)" --target "$@" >&2
}
