#!/usr/bin/env bash
# Installs the Debian packages that the given purposes need and this machine lacks.
# Usage: scripts/packages.sh build|run|display|test|benchmark ...
set -euo pipefail

build=(
    g++ cmake ninja-build ccache
    qt6-base-dev qt6-declarative-dev qt6-declarative-dev-tools qt6-shadertools-dev qt6-shader-baker qt6-svg-dev
    qt6-tools-dev qt6-l10n-tools
    libgl-dev libxcb1-dev libsimdjson-dev
)
run=(
    qml6-module-qtqml qml6-module-qtqml-models qml6-module-qtqml-workerscript
    qml6-module-qtquick qml6-module-qtquick-window qml6-module-qtquick-templates qml6-module-qt-labs-qmlmodels
    qt6-qpa-plugins qt6-wayland qt6-image-formats-plugins
    libgl1-mesa-dri fonts-inter fonts-jetbrains-mono
)
# Debian 12 has this plugin in the library's own package, later releases beside it.
if grep -qs '^ID=debian$' /etc/os-release && ! grep -qs '^VERSION_ID="12"$' /etc/os-release; then
    run+=(qt6-svg-plugins)
fi
display=(xvfb xauth imagemagick)
benchmark=(libbenchmark-dev dbus)
test=(
    clang-format-19 clang-tidy-19 clang-19 libclang-rt-19-dev llvm-19 lld shellcheck git
    desktop-file-utils appstream mandoc
    qml6-module-qttest qml6-module-qt-labs-platform
    python3 python3-pyatspi at-spi2-core dbus cmark evolution-data-server xdg-desktop-portal-gtk
    xvfb openbox xdotool x11-utils x11-apps xclip imagemagick
    fcitx5 fcitx5-anthy fcitx5-frontend-qt6 ibus ibus-anthy
)

names_of() {
    case $1 in
    build) printf '%s\n' "${build[@]}" ;;
    run) printf '%s\n' "${run[@]}" ;;
    display) printf '%s\n' "${display[@]}" ;;
    benchmark) printf '%s\n' "${benchmark[@]}" ;;
    test) printf '%s\n' "${test[@]}" ;;
    *)
        echo "packages.sh: no such purpose: $1" >&2
        exit 2
        ;;
    esac
}

wanted=()
for purpose in "$@"; do
    while read -r name; do wanted+=("$name"); done < <(names_of "$purpose")
done

if ! command -v dpkg-query >/dev/null; then
    echo "This system has no dpkg, so nothing is installed. What Debian calls these is needed: ${wanted[*]}" >&2
    exit 0
fi

missing=()
for name in "${wanted[@]}"; do
    status=$(dpkg-query -W -f='${db:Status-Status}\n' "$name" 2>/dev/null || true)
    [[ $status == *installed* && $status != *not-installed* ]] || missing+=("$name")
done
[ ${#missing[@]} -gt 0 ] || exit 0

as_root=()
if [ "$(id -u)" -ne 0 ]; then
    if ! command -v sudo >/dev/null; then
        echo "Packages are missing and this is neither root nor a system with sudo. As root, run:" >&2
        echo "    apt-get install --no-install-recommends ${missing[*]}" >&2
        exit 1
    fi
    as_root=(sudo)
fi

install_missing() {
    "${as_root[@]}" env DEBIAN_FRONTEND=noninteractive apt-get install -qq -y --no-install-recommends \
        -o Dpkg::Use-Pty=0 "${missing[@]}" >"$log" 2>&1
}

lists_know_all() {
    # apt-cache fails on the first name that the package lists do not know.
    apt-cache show --no-all-versions "${missing[@]}" >/dev/null 2>&1
}

log=$(mktemp)
trap 'rm -f "$log"' EXIT
echo "Installing: ${missing[*]}"
if ! lists_know_all; then
    "${as_root[@]}" apt-get update -qq
fi
# Old lists name versions that the mirror no longer has: then fresh lists and a second try.
if ! install_missing; then
    if ! { "${as_root[@]}" apt-get update -qq && install_missing; }; then
        cat "$log" >&2
        echo "The packages could not be installed: ${missing[*]}" >&2
        exit 1
    fi
fi
