# Shared by the checks that build consumers of the library: in C and in C++, in every way that the README names.
# shellcheck shell=bash
#
# Compilers and options come from the environment: CC, CXX, CFLAGS, CXXFLAGS, LDFLAGS; from LD_LIBRARY_PATH the libraries
# that the installed one needs. The script that reads this may set emulator, what runs programs of another processor.

emulator=()
checkout=$(cd -- "$(dirname -- "${BASH_SOURCE[0]}")/../.." && pwd)
consumer=$checkout/tests/consumer
private_root=$checkout/scripts/private-root

fail() {
    printf '%s: %s\n' "${0##*/}" "$*" >&2
    exit 1
}

# start_in DIRECTORY: makes it anew and goes there; it lies in a build tree, which a private root shows.
start_in() {
    rm -rf -- "$1"
    mkdir -p -- "$1"
    cd -- "$1" || exit
    work=$(pwd -P)
}

# run PROGRAM: on fresh databases, and compares what it prints.
run() {
    LD_LIBRARY_PATH=${libraries-}:${LD_LIBRARY_PATH-} "$private_root" "${emulator[@]}" "$1" >"$1.out" ||
        fail "$1 failed"
    diff -u "$consumer/expected.txt" "$1.out" || fail "$1 printed something else"
}

# compile LANGUAGE PROGRAM FLAG...
compile() {
    local language=$1 program=$2 command source
    shift 2
    case $language in
        C) read -ra command <<<"$CC -std=c11 ${CFLAGS-} ${LDFLAGS-}" && source=consumer.c ;;
        CXX) read -ra command <<<"$CXX -std=c++17 ${CXXFLAGS-} ${LDFLAGS-}" && source=consumer.cpp ;;
    esac
    "${command[@]}" -Wall -Wextra -Wpedantic -Werror "$consumer/$source" -o "$program" "$@"
}

# configure LANGUAGE DIRECTORY [cmake option...]
configure() {
    local language=$1 directory=$2
    shift 2
    cmake -S "$consumer" -B "$directory" -G Ninja -DCONSUMER_LANGUAGE="$language" "$@"
}

by_hand() {
    compile "$1" by-hand -I"$prefix/include" -L"$libraries" -lrouterdb
    run ./by-hand
}

through_pkg_config() {
    local found flags
    found=$(PKG_CONFIG_PATH=$libraries/pkgconfig pkg-config --print-errors --cflags --libs 'routerdb >= 1.0')
    read -ra flags <<<"$found"
    compile "$1" through-pkg-config "${flags[@]}"
    run ./through-pkg-config
}

# The package must be the one that was installed here, and not one of the system.
through_cmake() {
    configure "$1" through-cmake -DCMAKE_PREFIX_PATH="$prefix" >/dev/null
    grep -q "^routerdb_DIR:PATH=$prefix/" through-cmake/CMakeCache.txt || fail 'found another package'
    cmake --build through-cmake >/dev/null
    run through-cmake/consumer
}

# use PREFIX: all consumers of the library that is installed there.
use() {
    local language
    prefix=$1
    libraries=$(dirname -- "$(find "$prefix" -name librouterdb.so.1)")
    [[ -f $libraries/librouterdb.so ]] || fail "no library below $prefix"
    for language in C CXX; do
        by_hand "$language"
        through_pkg_config "$language"
        through_cmake "$language"
        rm -rf by-hand through-pkg-config through-cmake
    done
}
