# What the other scripts share: installing Debian packages and building a preset. To be sourced.
# Everything is said on standard error; standard output belongs to the engine and to the tests.

raiz=$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)

decir() { printf '%s\n' "tamrek: $*" >&2; }

# instalar PACKAGE ...: installs the packages that are missing, with sudo when not root.
instalar() {
    local paquete faltan=() como_root=()
    for paquete in "$@"; do
        [ "$(dpkg-query -W -f='${db:Status-Abbrev}' "$paquete" 2>/dev/null)" = 'ii ' ] || faltan+=("$paquete")
    done
    [ ${#faltan[@]} -gt 0 ] || return 0
    [ "$(id -u)" = 0 ] || como_root=(sudo)
    decir "installing ${faltan[*]}"
    "${como_root[@]}" apt-get update -q </dev/null >&2
    "${como_root[@]}" env DEBIAN_FRONTEND=noninteractive \
        apt-get install -q -y --no-install-recommends "${faltan[@]}" </dev/null >&2
}

# Packages that the engine is built from, and those that its tests need besides.
PAQUETES_MOTOR=(g++ cmake ninja-build libsqlite3-dev python3)
PAQUETES_PRUEBAS=(libgtest-dev libbenchmark-dev libeigen3-dev liblzma-dev pgn-extract parallel)
PAQUETES_REVISION=(clang clang-format clang-tidy)

# construir PRESET [cmake option ...] -- [build option ...]: configures and builds a preset; prints on failure, and
# when there is something to do.
construir() {
    local preset=$1 opciones=() registro
    shift
    while [ $# -gt 0 ] && [ "$1" != -- ]; do opciones+=("$1") && shift; done
    [ $# -eq 0 ] || shift
    cd "$raiz" || return 1
    registro=$(mktemp)
    if ! cmake --preset "$preset" "${opciones[@]}" </dev/null >"$registro" 2>&1; then
        cat "$registro" >&2
        rm -f "$registro"
        return 1
    fi
    rm -f "$registro"
    cmake --build "build/$preset" "$@" </dev/null >&2
}
