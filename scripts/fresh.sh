#!/usr/bin/env bash
# Runs the commands of the README where nothing is installed yet; --help says how.
set -euo pipefail

usage() {
    cat <<'END'
usage: scripts/fresh.sh [--demo | --test] [--as-root | --as-user] [--compiler-cache DIR]

Makes a minimal Debian 12 with nothing but git and sudo, and runs scripts/demo.sh and scripts/test.sh in a clone of the
current commit there, each in a system of its own, as root and as a user with sudo. The clone's path has a space and an
umlaut; others may not look into the home folder around it; there are no display, locale, standard input and runtime
folder, and the time zone is far away. Prints which packages were installed, how long each run took and what failed.

  --demo, --test         runs one of the commands only
  --as-root, --as-user   runs as one of the users only
  --compiler-cache DIR   keeps in DIR what compilers and clang-tidy made, for the next time; it comes to belong to the
                         user of the last run

Has to be run as root. Systems and logs are in build/fresh; the system of a run that failed stays there.
END
}

refuse() {
    echo "scripts/fresh.sh: $1; --help tells more" >&2
    exit 2
}

commands=(demo test)
users=(root user)
compiler_cache=
arguments=("$@")
while [ $# -gt 0 ]; do
    case $1 in
        --demo | --test) commands=("${1#--}") ;;
        --as-root | --as-user) users=("${1#--as-}") ;;
        --compiler-cache)
            [ $# -gt 1 ] || refuse '--compiler-cache needs a folder'
            compiler_cache=$(realpath --canonicalize-missing -- "$2")
            shift
            ;;
        --help)
            usage
            exit
            ;;
        *) refuse "there is no option '$1'" ;;
    esac
    shift
done
# shellcheck source=scripts/fresh_system.sh
. "$(dirname "$0")/fresh_system.sh"
mount_for_oneself "${arguments[@]}"
cd "$(dirname "$0")/.."
. scripts/packages.sh
folder=$PWD/build/fresh
failures=0

# The base of all systems, with a user and the commits.
make_base() {
    install_packages mmdebstrap git
    make_system "$folder/base" git sudo
    chroot "$folder/base" useradd --create-home --shell /bin/bash user
    chroot "$folder/base" chmod 700 /root /home/user
    echo 'user ALL=(ALL) NOPASSWD: ALL' >"$folder/base/etc/sudoers.d/user"
    git -c safe.directory='*' bundle create --quiet "$folder/base/commits" HEAD
    if [ -n "$(git -c safe.directory='*' status --porcelain)" ]; then
        echo 'What is not committed is left out.'
    fi
}

# Runs a script in a system as one of its users, in a bare environment.
run_inside() {
    local system=$1 user=$2 script=$3 home=/root path=/usr/local/sbin:/usr/local/bin:/usr/sbin:/usr/bin:/sbin:/bin
    if [ "$user" != root ]; then
        home=/home/$user
        path=/usr/local/bin:/usr/bin:/bin
    fi
    chroot --userspec="$user:" "$system" env -i HOME="$home" PATH="$path" TZ=Pacific/Chatham \
        bash -euo pipefail -c "cd; $script" <&-
}

# Mounts the folder for what was compiled as a user's caches.
share_caches() {
    local cache home
    home=$(run_inside "$1" "$2" 'pwd')
    for cache in ccache orvane-export-kit; do
        mkdir -p "$compiler_cache/$cache" "$1$home/.cache/$cache"
        mount --bind "$compiler_cache/$cache" "$1$home/.cache/$cache"
        chroot "$1" chown -R "$2:" "$home/.cache/$cache"
    done
}

packages_of() {
    dpkg-query --admindir="$1/var/lib/dpkg" --show --showformat='${Package}\n' | sort
}

# Runs a command of the README as a user in a system of its own, and tells how it went.
try_command() {
    local name=$1-as-$2 status=0 start
    local system=$folder/$name log=$folder/$name.log
    remove_system "$system"
    cp --archive "$folder/base" "$system"
    mount_system "$system"
    run_inside "$system" "$2" 'mkdir .cache "Schöne Bücher"
        git -c advice.detachedHead=false clone --quiet /commits "Schöne Bücher/kit"'
    if [ -n "$compiler_cache" ]; then
        share_caches "$system" "$2"
    fi

    echo "scripts/$1.sh as $2: its output goes to ${log#"$PWD/"}"
    start=$SECONDS
    run_inside "$system" "$2" "Schöne\ Bücher/kit/scripts/$1.sh" >"$log" 2>&1 || status=$?
    local took=$((SECONDS - start))
    umount --recursive --lazy "$system"

    mapfile -t installed < <(comm -13 <(packages_of "$folder/base") <(packages_of "$system"))
    echo "It installed ${#installed[@]} packages:"
    fold --spaces --width 116 <<<"${installed[*]}" | sed 's/^/    /'
    if [ "$status" -eq 0 ]; then
        echo "It passed in $((took / 60)) min $((took % 60)) s."
        remove_system "$system"
    else
        echo "It failed with status $status after $((took / 60)) min $((took % 60)) s; its output ends:"
        tail --lines 40 "$log" | sed 's/^/    /'
        failures=$((failures + 1))
    fi
    echo
}

mkdir -p "$folder"
make_base
for command in "${commands[@]}"; do
    for user in "${users[@]}"; do
        try_command "$command" "$user"
    done
done
echo "$failures of $((${#commands[@]} * ${#users[@]})) runs failed."
[ "$failures" -eq 0 ]
