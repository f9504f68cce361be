# shellcheck shell=bash
# Sourced by the scripts that try something in a fresh system, as root: makes minimal systems of Debian 12 and gives
# them what a machine that runs has.

# Starts the script again, with these arguments, where nobody else sees what it mounts: no mount outlives its processes,
# however they end.
mount_for_oneself() {
    if [ "${ORVANE_OWN_MOUNTS:-}" = yes ]; then
        return
    fi
    if [ "$(id -u)" -ne 0 ] || ! unshare --mount true 2>/dev/null; then
        echo "$0: it makes and mounts a system and has to be run as root; a container needs --privileged for that" >&2
        exit 1
    fi
    ORVANE_OWN_MOUNTS=yes exec unshare --mount "$0" "$@"
}

# Makes a minimal system in a folder, with these packages beside; apt gets them from where this machine's apt does, when
# that runs Debian 12, too.
make_system() {
    local system=$1 include=("${@:2}") sources options
    # shellcheck disable=SC2016 # apt replaces these itself
    mapfile -t sources < <(apt-get indextargets --format '$(CODENAME) deb $(REPO_URI) $(RELEASE) $(COMPONENT)' \
        'Created-By: Packages' 'Origin: Debian' | sed -nE 's/^bookworm[^ ]* (deb https?:)/\1/p' | sort -u)
    mapfile -t options < <(apt-config dump | sed -nE 's/^Acquire::(https?::|Check-)/--aptopt=&/p')
    if [[ ${sources[*]} == *https:* ]]; then
        include+=(ca-certificates)
    fi
    remove_system "$system"
    mmdebstrap --quiet --variant=minbase --include="$(IFS=, && echo "${include[*]}")" "${options[@]}" bookworm "$system" \
        "${sources[@]}"
}

# Mounts what a system has that runs; `umount --recursive --lazy` of the system's folder takes all of it away.
mount_system() {
    mount --bind "$1" "$1"
    mount -t proc proc "$1/proc"
    mount -t sysfs -o ro sysfs "$1/sys"
    mount -t devpts -o newinstance,gid=5,mode=620,ptmxmode=666 devpts "$1/dev/pts"
    mount -t tmpfs -o mode=1777 tmpfs "$1/dev/shm"
}

remove_system() {
    if [ -d "$1" ]; then
        rm -rf --one-file-system "$1"
    fi
}
