# Shared by the scripts that need a machine of their own: a minimal Debian 12 made with debootstrap, entered with its own
# processes and mounts. It shares the network with the host, and uses the host's proxies and Debian mirrors.
# shellcheck shell=bash
#
# prepare_machine unpacks one below $root, in_machine runs a command there. Both need root. Nothing stays of the machine
# when the script ends; the minimal system is kept as a tar file, for the next one.

. "$(dirname -- "${BASH_SOURCE[0]}")/apt.sh"

release=bookworm
work=
machine=

fail() {
    printf '%s: %s\n' "${0##*/}" "$*" >&2
    exit 125
}

require() {
    command -v "$1" >/dev/null || fail "$1 is missing; install the package $2"
}

# Makes the tar file of the minimal system, unless it is there. Two calls at once make it twice, and either will do.
prepare_system() {
    local tar=$1 mirror
    [[ ! -f $tar ]] || return 0
    require debootstrap debootstrap
    mirror=$(package_sources "$release" | awk -v suite="$release" '$2 == suite { print $1; exit }')
    [[ -n $mirror ]] || fail "the host has no package source of Debian $release to take the system from"
    printf '==> Making a minimal Debian system (once)\n'
    if ! debootstrap --variant=minbase --include=git,ca-certificates "$release" "$work/system" \
        "$mirror" >"$work/log" 2>&1; then
        tail -n 20 "$work/log" >&2
        fail 'debootstrap failed'
    fi
    rm -f "$work/system/var/cache/apt/archives/"*.deb
    mkdir -p -- "${tar%/*}"
    tar -C "$work/system" --one-file-system -cf "$work/system.tar" .
    mv -- "$work/system.tar" "$tar"
    rm -rf --one-file-system -- "$work/system"
}

# The machine goes with its first process, and that goes with unshare.
# shellcheck disable=SC2317 # a trap calls it
clean_up() {
    [[ -z $machine ]] || kill -KILL "$machine" 2>/dev/null || true
    wait 2>/dev/null
    [[ -z $work ]] || rm -rf --one-file-system -- "$work"
}

prepare_machine() {
    local tar=${ROUTERDB_CACHE:-${XDG_CACHE_HOME:-$HOME/.cache}/routerdb}/debian-$release-$(uname -m).tar
    ((EUID == 0)) || fail 'has to run as root'
    require unshare util-linux
    trap clean_up EXIT
    trap 'exit 130' HUP INT TERM
    work=$(mktemp -d "/var/tmp/${0##*/}.XXXXXX")
    chmod 755 "$work"
    root=$work/root
    prepare_system "$tar"
    mkdir "$root"
    tar -C "$root" -xpf "$tar"
    cp /etc/resolv.conf /etc/hosts "$root/etc/"
    transport >"$root/etc/apt/apt.conf.d/99transport"
    package_sources "$release" | sed 's/^/deb /' >"$work/sources"
    [[ ! -s $work/sources ]] || cp "$work/sources" "$root/etc/apt/sources.list"
}

# Runs as the first process of the machine.
# shellcheck disable=SC2016 # expanded there
enter='
set -e
root=$1
directory=$2
shift 2
mount --make-rprivate /
mount --bind "$root" "$root"
mount -t proc proc "$root/proc"
mount --rbind /dev "$root/dev"
mkdir "$root/old"
cd "$root"
pivot_root . old
umount --lazy /old
rmdir /old
cd "$directory"
status=0
"$@" || status=$?
exit "$status"
'

# in_machine DIRECTORY COMMAND [args...]: its status is the command's.
in_machine() {
    local name status=0 environment=(
        PATH=/usr/local/sbin:/usr/local/bin:/usr/sbin:/usr/bin:/sbin:/bin
        HOME=/root
        LANG=C.UTF-8
        TERM="${TERM:-dumb}"
    )
    for name in http_proxy https_proxy no_proxy; do
        [[ -z ${!name:-} ]] || environment+=("$name=${!name}")
    done
    env -i "${environment[@]}" unshare --mount --pid --fork --kill-child \
        bash -c "$enter" "${0##*/}" "$root" "$@" <&0 &
    machine=$!
    wait "$machine" || status=$?
    machine=
    return "$status"
}
