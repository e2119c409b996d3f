# Sourced by play, check and tools/fuzz in the root: installs the Debian packages that are missing,
# and configures.
#
# A package counts as there when its probe is: a command, or a file. So no package
# manager is needed when all is there, and on other systems one can install the packages by hand.

# package, and the command or file (a pattern) that shows it
build_packages='
g++                c++
cmake              cmake
ninja-build        ninja
qt6-base-dev       /usr/lib*/cmake/Qt6Widgets/Qt6WidgetsConfig.cmake
qt6-tools-dev      /usr/lib*/cmake/Qt6Help/Qt6HelpConfig.cmake
qt6-documentation-tools /usr/lib/qt6/libexec/qhelpgenerator
qt6-wayland        /usr/lib/*/qt6/plugins/platforms/libqwayland-generic.so
libqt6sql6-sqlite  /usr/lib/*/qt6/plugins/sqldrivers/libqsqlite.so
libgl-dev          /usr/include/GL/gl.h
libsdl2-dev        /usr/include/SDL2/SDL.h
fonts-liberation   /usr/share/fonts/*/LiberationSerif-Bold.ttf
'
check_packages="$build_packages
qt6-base-private-dev /usr/include/*/qt6/QtGui/*/QtGui/qpa/qwindowsysteminterface.h
libgtest-dev       /usr/include/gtest/gtest.h
clang-tidy         clang-tidy
libbenchmark-dev   /usr/include/benchmark/benchmark.h
xvfb               Xvfb
xdotool            xdotool
imagemagick        import
python3            python3
python3-gi         /usr/lib/python3/dist-packages/gi/__init__.py
gir1.2-atspi-2.0   /usr/lib/*/girepository-1.0/Atspi-2.0.typelib
at-spi2-core       /usr/share/dbus-1/services/org.a11y.Bus.service
dbus               dbus-run-session
xauth              xauth
desktop-file-utils desktop-file-validate
appstream          appstreamcli
lintian            lintian
clang              clang++
libclang-rt-14-dev /usr/lib/llvm-*/lib/clang/*/lib/linux/libclang_rt.fuzzer-*.a
"

# is_there PROBE
is_there() {
  case $1 in
  /*)
    # The pattern may reach through a folder of the machine's architecture or of a font family.
    for file in $1 ${1/lib\*/lib/*} ${1/fonts\/\*/fonts/*/*}; do
      [ -e "$file" ] && return 0
    done
    return 1
    ;;
  *) command -v "$1" >/dev/null ;;
  esac
}

# missing PACKAGES: those whose probe is not there, in one line
missing() {
  local package probe
  while read -r package probe; do
    [ -z "$package" ] || is_there "$probe" || printf '%s ' "$package"
  done <<<"$1"
}

# ensure_packages PACKAGES: installs what is missing, or says why it cannot and ends
ensure_packages() {
  local lacking root=()
  lacking=$(missing "$1")
  [ -n "$lacking" ] || return 0
  if ! command -v apt-get >/dev/null; then
    echo "These packages are missing (names as in Debian 12): $lacking" >&2
    echo "This is no Debian system: please install them by its own means, then start again." >&2
    exit 1
  fi
  if [ "$(id -u)" -ne 0 ]; then
    if ! command -v sudo >/dev/null; then
      echo "These packages are missing: $lacking" >&2
      echo "Installing them takes root or sudo: apt-get install $lacking" >&2
      exit 1
    fi
    root=(sudo)
  fi
  echo "Installing: $lacking" >&2
  # shellcheck disable=SC2086 # a list of names
  if ! { "${root[@]}" apt-get update -qq &&
    "${root[@]}" env DEBIAN_FRONTEND=noninteractive apt-get install -qq -y \
      --no-install-recommends $lacking; } >&2; then
    echo "The packages could not be installed: $lacking" >&2
    exit 1
  fi
  lacking=$(missing "$1")
  if [ -n "$lacking" ]; then
    echo "Still missing after the installation: $lacking" >&2
    exit 1
  fi
}

# begin: ends in a folder where nothing can be built; else waits until nobody else installs or builds
# in this one, which stays locked as file 9
begin() {
  case $PWD in
  *[]\[\#\;\"\\\<\>\|\*\?]* | *'${'* | *'$('* | *$'\n'*)
    echo "CMake and Qt can't build in a folder whose path has one of  [ ] # ; \" \\ < > | * ? \${ \$(" \
      "or a new line. Please rename or move $PWD" >&2
    exit 1
    ;;
  esac
  exec 9<.
  command -v flock >/dev/null || return 0
  flock -n 9 || { echo "Waiting for another build in this folder" >&2 && flock 9; } || true
}

# configure PRESET TREE: makes the build tree unless it exists. One that was copied or moved here
# still points to its old folder, so it is made again; files that no build makes stay in it.
configure() {
  local home=''
  [ ! -f "$2/CMakeCache.txt" ] ||
    home=$(sed -n 's/^CMAKE_HOME_DIRECTORY:INTERNAL=//p' "$2/CMakeCache.txt")
  if ! [ "$home" -ef . ]; then
    cmake --fresh --preset "$1" -Wno-dev
  elif ! [ "$2/build.ninja" -nt CMakePresets.json ]; then
    cmake --preset "$1" -Wno-dev
  fi
}
