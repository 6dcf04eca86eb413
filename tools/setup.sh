# What the project needs on this machine, and how it is got. Sourced by ./dev.

# Debian packages, each with a file or command that shows it is there.
packages_needed=(
    g++:g++ g++-multilib:/usr/lib/gcc/x86_64-linux-gnu/12/32/libstdc++.a cmake:cmake ninja-build:ninja python3:python3 git:git clang-format:clang-format clang-tidy:clang-tidy libgtest-dev:/usr/src/googletest/CMakeLists.txt
    g++-mingw-w64-x86-64:x86_64-w64-mingw32-g++-posix g++-mingw-w64-i686:i686-w64-mingw32-g++-posix
    wine:wine wine64:/usr/lib/wine/wine64 fonts-wine:/usr/share/wine/fonts/tahoma.ttf xvfb:Xvfb imagemagick:import
)

packages_missing() {
    local entry sign
    for entry in "${packages_needed[@]}"; do
        sign="${entry#*:}"
        if [[ "$sign" == /* ]]; then
            [ -e "$sign" ] || echo "${entry%%:*}"
        else
            command -v "$sign" >/dev/null || echo "${entry%%:*}"
        fi
    done
}

# Installs what is missing where that is possible. What can't be had is said, and left to the chores to do without.
setup_packages() {
    local missing
    missing="$(packages_missing | tr '\n' ' ')"
    [ -z "$missing" ] && return 0
    if [ "$(id -u)" = 0 ] && command -v apt-get >/dev/null; then
        echo "installing: $missing"
        if ! { apt-get update -q && DEBIAN_FRONTEND=noninteractive apt-get install -y -q --no-install-recommends $missing; } \
            </dev/null >build/apt.log 2>&1; then
            tail -3 build/apt.log >&2
        fi
        missing="$(packages_missing | tr '\n' ' ')"
    fi
    [ -z "$missing" ] || echo "not installed, and done without: $missing"
}

can_build_native() { command -v g++ >/dev/null && command -v cmake >/dev/null && [ -e /usr/include/gtest/gtest.h ]; }
can_build_native_32() { can_build_native && echo 'int main() {}' | g++ -m32 -x c++ - -o build/can-build-32 2>/dev/null && build/can-build-32; }
can_build_windows() { command -v x86_64-w64-mingw32-g++-posix >/dev/null && command -v cmake >/dev/null; }
can_build_x86() { command -v i686-w64-mingw32-g++-posix >/dev/null && command -v cmake >/dev/null; }

setup() {
    setup_packages
    wine_available && wine_make_prefix
    can_build_native && echo "native build: ready" || echo "native build: not possible here"
    can_build_windows && echo "Windows build: ready" || echo "Windows build: not possible here"
    wine_available && echo "Wine: ready ($(wine --version 2>/dev/null))" || echo "Wine: not possible here"
}
