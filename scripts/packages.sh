# shellcheck shell=bash disable=SC2034
# Sourced by the other scripts: installs Debian packages that are missing.

build_packages=(build-essential cmake ninja-build ccache
                qt6-base-dev qt6-tools-dev qt6-tools-dev-tools qt6-l10n-tools libqt6opengl6-dev libgl-dev)
test_packages=(libgtest-dev clang libclang-rt-14-dev clang-format clang-tidy python3
               doxygen dpkg-dev pkg-config tidy texlive-latex-base
               xvfb openbox xdotool imagemagick fonts-dejavu-core)
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
    local as_root=()
    if [ "$(id -u)" -ne 0 ]; then
        as_root=(sudo)
    fi
    "${as_root[@]}" apt-get update -qq
    "${as_root[@]}" env DEBIAN_FRONTEND=noninteractive apt-get install -y -qq --no-install-recommends "${missing[@]}"
}
