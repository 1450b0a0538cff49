# Sourced by the commands in the project's top folder: installs the Debian packages that are missing.

PACKAGES=(
    g++ cmake ninja-build ccache mold pkg-config
    qt6-base-dev libqt6svg6-dev libgl-dev
    libsqlite3-dev libxlsxwriter-dev zlib1g-dev libcli11-dev
    libgtest-dev libzip-dev libpugixml-dev
    fonts-noto-cjk
)

install_packages() {
    local missing=()
    local package
    for package in "${PACKAGES[@]}" "$@"; do
        dpkg-query -W -f='${Status}' "$package" 2>/dev/null | grep -q 'ok installed' || missing+=("$package")
    done
    [ ${#missing[@]} -eq 0 ] && return 0
    local root=()
    [ "$(id -u)" -eq 0 ] || root=(sudo)
    "${root[@]}" apt-get update -q
    DEBIAN_FRONTEND=noninteractive "${root[@]}" apt-get install -yq --no-install-recommends "${missing[@]}"
}
