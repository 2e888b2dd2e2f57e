# Shared by the scripts that build: where things are, what has to be installed, how progress is told.
# shellcheck shell=bash

checkout=$(cd -- "$(dirname -- "${BASH_SOURCE[0]}")/../.." && pwd)

# What every build needs.
build_packages=(build-essential cmake ninja-build libsqlite3-dev sqlite3 bubblewrap)

# Programs that bring the header to other languages; their packages have the same names.
header_readers=(bindgen castxml luajit python3 swig)

# What the tests need beyond that.
test_packages=(libgtest-dev googletest clang pkg-config python3-cram libc6-dev-i386 lib32stdc++-12-dev nlohmann-json3-dev strace
    "${header_readers[@]}")

# What scripts/fuzz needs beyond what every build does.
fuzz_packages=(clang libclang-rt-dev nlohmann-json3-dev)

# Prints what builds for another architecture need beyond that: the architecture is what a preset begins with.
architecture_packages() {
    case ${1%%-*} in
        i386) printf '%s\n' libc6-dev-i386 lib32stdc++-12-dev ;;
        armhf) printf '%s\n' clang lld llvm qemu-user ;;
    esac
}

# Puts everything in place that a preset builds with.
prepare_architecture() {
    local needed
    mapfile -t needed < <(architecture_packages "$1")
    ((${#needed[@]})) || return 0
    need_packages "${needed[@]}"
    "$checkout/scripts/sysroot" "${1%%-*}"
}

say() {
    printf '==> %s\n' "$*"
}

as_root() {
    if ((EUID == 0)); then
        "$@"
    elif command -v sudo >/dev/null; then
        sudo "$@"
    else
        printf 'Run as root, or install sudo: %s\n' "$*" >&2
        return 1
    fi
}

# Runs a command with its output in a log, which is shown when the command fails.
quietly() {
    local log=$1
    shift
    mkdir -p -- "$(dirname -- "$log")"
    if ! "$@" >"$log" 2>&1; then
        tail -n 60 -- "$log" >&2
        printf '\nfailed: %s\nall of its output: %s\n' "$*" "$log" >&2
        return 1
    fi
}

# Prints those of the packages that are not installed.
missing_packages() {
    local package
    for package; do
        dpkg-query -W -f='${Status}' "$package" 2>/dev/null | grep -q 'ok installed' || printf '%s\n' "$package"
    done
}

need_packages() {
    local missing
    if ! command -v dpkg-query >/dev/null; then
        say "This is no Debian: taking for granted that these are here: $*"
        return
    fi
    mapfile -t missing < <(missing_packages "$@")
    ((${#missing[@]})) || return 0
    say "Installing ${missing[*]}"
    quietly "$checkout/build/log/apt-update" as_root apt-get update
    quietly "$checkout/build/log/apt-install" as_root env DEBIAN_FRONTEND=noninteractive \
        apt-get install -y --no-install-recommends "${missing[@]}"
}

# configure DIRECTORY PRESET [cmake options...]
configure() {
    local directory=$1 preset=$2
    shift 2
    quietly "$checkout/build/log/configure-$preset" \
        cmake -S "$checkout" --preset "$preset" -B "$directory" "$@"
}

# configure_and_build DIRECTORY PRESET [cmake options...]
configure_and_build() {
    say "Building ${1#"$checkout/"}"
    configure "$@"
    cmake --build "$1" -- --quiet
}

# Prints what measured figures depend on.
describe_machine() {
    sed -n 's/^model name[[:space:]]*: /Processor: /p' /proc/cpuinfo | head -n 1
    printf 'Processors: %s\nKernel: %s\nCompiler: %s\nSQLite: %s\n' "$(nproc)" "$(uname -sr | cut -d . -f 1-2)" \
        "$(c++ --version | head -n 1)" "$(sqlite3 --version | cut -d ' ' -f 1)"
}
