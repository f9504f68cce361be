# shellcheck shell=bash disable=SC2034
# Sourced by the other scripts: installs Debian's packages that are missing.

build_packages=(build-essential cmake ninja-build ccache
                qt6-base-dev qt6-tools-dev qt6-tools-dev-tools qt6-l10n-tools libqt6opengl6-dev libgl-dev)
test_packages=(libgtest-dev clang llvm libclang-rt-14-dev clang-format clang-tidy python3
               doxygen dpkg-dev file pkg-config tidy texlive-latex-base shellcheck e2fsprogs mount
               xvfb openbox xdotool imagemagick fonts-dejavu-core fonts-dejavu-extra)
bench_packages=(libbenchmark-dev pkg-config libplist-dev libpcre2-dev libicu-dev python3)

# Installs those of the given packages that are not there; asks for the password of sudo where it is needed.
install_packages() {
    local missing=() package
    for package in "$@"; do
        if ! dpkg-query --show --showformat='${db:Status-Status}' "$package" 2>/dev/null | grep -q '^installed$'; then
            missing+=("$package")
        fi
    done
    if [ ${#missing[@]} -eq 0 ]; then
        return
    fi
    echo "Installing ${missing[*]}"
    run_apt update
    run_apt install -y --no-install-recommends "${missing[@]}"
}

# Runs apt-get as root. While another program installs packages and so holds a lock, waits, at most five minutes.
run_apt() {
    local as_root=() errors waited=0
    if [ "$(id -u)" -ne 0 ]; then
        as_root=(sudo)
    fi
    errors=$(mktemp)
    until "${as_root[@]}" env LC_ALL=C DEBIAN_FRONTEND=noninteractive apt-get -qq "$@" 2>"$errors"; do
        if [ "$waited" -ge 300 ] || ! grep -q 'Could not get lock' "$errors"; then
            cat "$errors" >&2
            rm "$errors"
            return 1
        fi
        if [ "$waited" -eq 0 ]; then
            echo 'Waiting for another program that installs packages, at most five minutes'
        fi
        sleep 1
        waited=$((waited + 1))
    done
    cat "$errors" >&2
    rm "$errors"
}
