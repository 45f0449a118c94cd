# Installs what the project needs on Debian 12; sourced by ./run, ./test and .ci/run. Quick when
# everything is there: one query of the package database.

need_packages() {
    local missing=() package
    for package in "$@"; do
        case "$(dpkg-query -W -f='${db:Status-Status}' "$package" 2>/dev/null)" in
            installed) ;;
            *) missing+=("$package") ;;
        esac
    done
    [ ${#missing[@]} -eq 0 ] && return 0

    local sudo=
    if [ "$(id -u)" -ne 0 ]; then
        if ! command -v sudo >/dev/null; then
            echo "These packages are missing and sudo isn't there to install them: ${missing[*]}" >&2
            return 1
        fi
        sudo=sudo
    fi
    echo "Installing: ${missing[*]}"
    export DEBIAN_FRONTEND=noninteractive
    $sudo apt-get update -qq &&
        $sudo apt-get install -y -qq --no-install-recommends "${missing[@]}" >/dev/null
}

build_packages=(g++ cmake ninja-build ccache qtbase5-dev qttools5-dev qttools5-dev-tools
    libqt5svg5-dev qt5-image-formats-plugins libpugixml-dev libmuparser-dev fonts-dejavu-core)
test_packages=(xvfb units xauth)
run_packages=(xvfb xauth)
lint_packages=(clang-format clazy libxml2-utils)

# Qt wants a private directory for its sockets; without a session there is none.
runtime_directory() {
    if [ -z "${XDG_RUNTIME_DIR:-}" ]; then
        XDG_RUNTIME_DIR=$(mktemp -d)
        export XDG_RUNTIME_DIR
        chmod 700 "$XDG_RUNTIME_DIR"
    fi
}

# configure_and_build PRESET [TARGET...]
configure_and_build() {
    local preset=$1
    shift
    # A build folder that was configured elsewhere (a copied checkout) can't be used again.
    local cache=build/$preset/CMakeCache.txt
    if [ -f "$cache" ] && ! grep -qxF "CMAKE_HOME_DIRECTORY:INTERNAL=$PWD" "$cache"; then
        rm -rf "build/$preset"
    fi
    if [ ! -f "build/$preset/build.ninja" ]; then
        cmake --preset "$preset" || return
    fi
    cmake --build --preset "$preset" ${1:+--target "$@"}
}
