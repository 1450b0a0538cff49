# Sourced by the commands in the project's top folder: installs the Debian packages that are missing.

PACKAGES=(
    g++ cmake ninja-build ccache mold pkg-config
    qt6-base-dev qt6-svg-dev libgl-dev qt6-wayland
    libsqlite3-dev libxlsxwriter-dev zlib1g-dev libcli11-dev
    libzip-dev libpugixml-dev libfreexl-dev libzint-dev
    libgtest-dev
    fonts-noto-cjk
)

# The packages that build and test, and those named.
install_packages() {
    install_missing "${PACKAGES[@]}" "$@"
}

# Where there is no dpkg, whoever builds has their own way to packages, and CMake names what is missing.
install_missing() {
    command -v dpkg-query >/dev/null || return 0
    local missing=()
    local package
    for package in "$@"; do
        dpkg-query -W -f='${Status}' "$package" 2>/dev/null | grep -q 'ok installed' || missing+=("$package")
    done
    [ ${#missing[@]} -eq 0 ] && return 0
    # Through env, since sudo passes no variables on and a package that asks would wait for an answer.
    local apt=(env DEBIAN_FRONTEND=noninteractive apt-get -q -o DPkg::Lock::Timeout=300)
    if [ "$(id -u)" -ne 0 ]; then
        if ! command -v sudo >/dev/null; then
            echo "As root, please: apt-get install --no-install-recommends ${missing[*]}" >&2
            return 1
        fi
        apt=(sudo "${apt[@]}")
    fi
    "${apt[@]}" update
    "${apt[@]}" install -y --no-install-recommends "${missing[@]}"
}
