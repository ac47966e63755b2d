# What the other scripts share: installing Debian packages and building a preset. To be sourced.
# Everything is said on standard error; standard output belongs to the engine and to the tests.

raiz=$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)

# Packages that the engine is built from, and those that its tests, its tuner and the checks need besides.
PAQUETES_MOTOR=(g++ cmake ninja-build libsqlite3-dev python3)
PAQUETES_PRUEBAS=(libgtest-dev libbenchmark-dev pgn-extract parallel)
PAQUETES_AFINADOR=(libeigen3-dev liblzma-dev)
PAQUETES_WINDOWS=(gcc-mingw-w64-x86-64-win32 g++-mingw-w64-x86-64-win32)
PAQUETES_REVISION=(clang clang-format clang-tidy)
VERSION_LLVM=14 # of clang-format and clang-tidy, that of Debian 12

decir() { printf '%s\n' "tamrek: $*" >&2; }

# callar COMMAND ...: runs it without input; what it prints is shown only when it fails.
callar() {
    local registro estado=0
    registro=$(mktemp)
    "$@" </dev/null >"$registro" 2>&1 || estado=$?
    [ "$estado" = 0 ] || cat "$registro" >&2
    rm -f "$registro"
    return "$estado"
}

# a_solas COMMAND ...: runs it while no other script installs or builds in this tree. The scripts directory itself is
# locked, so that nothing is written where the tree may only be read.
a_solas() {
    local estado=0 candado
    exec {candado}<"$raiz/scripts"
    flock -n "$candado" || { decir "waiting for another script that builds" && flock "$candado"; }
    "$@" || estado=$?   # its children hold the lock too: a build goes on when its script is killed
    exec {candado}<&-
    return "$estado"
}

# instalar PACKAGE ...: installs the packages that are missing, with sudo when not root.
instalar() {
    local paquete faltan=() como_root=()
    for paquete in "$@"; do
        [ "$(dpkg-query -W -f='${db:Status-Abbrev}' "$paquete" 2>/dev/null)" = 'ii ' ] || faltan+=("$paquete")
    done
    [ ${#faltan[@]} -gt 0 ] || return 0
    if [ "$(id -u)" != 0 ]; then
        como_root=(sudo -n)
        [ ! -t 0 ] || como_root=(sudo)
        if ! "${como_root[@]}" true 2>/dev/null; then
            decir "these Debian packages are missing: ${faltan[*]}"
            decir "you may not install them from here; ask an administrator for: apt install ${faltan[*]}"
            return 1
        fi
    fi
    decir "installing ${faltan[*]}"
    callar "${como_root[@]}" apt-get update -q &&
        callar "${como_root[@]}" env DEBIAN_FRONTEND=noninteractive apt-get -o DPkg::Lock::Timeout=300 \
            install -q -y --no-install-recommends "${faltan[@]}"
}

configurar_y_compilar() {
    local preset=$1 opciones=()
    shift
    while [ $# -gt 0 ] && [ "$1" != -- ]; do opciones+=("$1") && shift; done
    [ $# -eq 0 ] || shift
    cd "$raiz" || return 1
    callar cmake --preset "$preset" "${opciones[@]}" || return 1
    cmake --build "build/$preset" "$@" </dev/null >&2
}

# construir PRESET [cmake option ...] -- [build option ...]: configures and builds a preset; prints what is built.
construir() { a_solas configurar_y_compilar "$@"; }
