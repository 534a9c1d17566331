# Sourced by the commands beside it: installs what is missing and builds. Works from any folder.

root=$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)

as_root() {
    if [ "$(id -u)" -eq 0 ]; then
        "$@"
    else
        sudo "$@"
    fi
}

# The packages of a group of the list.
packages_of() {
    sed -n "/^\\[$1\\]/,/^\\[/ { /^[[:alnum:]]/p }" "$root/scripts/packages"
}

# install_missing GROUP...: what it takes to build and run, and the groups named beside.
install_missing() {
    local group package missing=()
    for group in build run recommended screen "$@"; do
        for package in $(packages_of "$group"); do
            dpkg-query -W -f '${Status}' "$package" 2>/dev/null | grep -q 'ok installed' || missing+=("$package")
        done
    done
    [ ${#missing[@]} -eq 0 ] && return
    echo "Installing: ${missing[*]}"
    as_root env DEBIAN_FRONTEND=noninteractive apt-get update -qq
    as_root env DEBIAN_FRONTEND=noninteractive apt-get install -y -qq --no-install-recommends "${missing[@]}"
}

# build PRESET
build() {
    (cd "$root" && cmake --preset "$1" && cmake --build --preset "$1")
}

# start_screen WIDTHxHEIGHT: a virtual screen with a window manager in place of DISPLAY. The caller ends what it
# started.
start_screen() {
    local number
    coproc SCREEN { exec Xvfb -displayfd 1 -screen 0 "$1x24" -nolisten tcp -noreset 2>/dev/null; }
    read -r number <&"${SCREEN[0]}"
    export DISPLAY=:$number
    openbox >/dev/null 2>&1 &
}
