# shellcheck shell=bash disable=SC2034
# What several scripts share: the packages for each job, and the build of a preset. Source it in the project's folder.
# A package such as "one|other" has several names, of which first_known() chooses one.

build_packages=(g++ cmake ninja-build pkg-config gettext libwxgtk3.2-dev libglib2.0-dev libgtk-3-dev)
display_packages=(xvfb xauth openbox x11-utils x11-xkb-utils librsvg2-common
  'adwaita-icon-theme-legacy|adwaita-icon-theme')
test_packages=(libgtest-dev libgmock-dev libatspi2.0-dev at-spi2-core dbus-daemon xdotool x11-xserver-utils
  imagemagick dpkg-dev file locales python3 weston metacity icewm)
docs_packages=(doxygen doxygen-awesome-css python3)
picture_packages=(pngquant xdotool imagemagick)
coverage_packages=(gcovr)
valgrind_packages=(valgrind libc6-dbg)
bench_packages=(libbenchmark-dev libicu-dev)
lint_packages=('clang-format-14|clang-format' 'clang-tidy-14|clang-tidy' cppcheck codespell shellcheck)
package_packages=(build-essential dpkg-dev debhelper lintian appstream desktop-file-utils mmdebstrap)
fuzz_packages=(clang libclang-rt-dev llvm locales)

as_root() {
  if [ "$(id -u)" -eq 0 ]; then
    "$@"
  else
    sudo "$@"
  fi
}

is_installed() {
  dpkg-query -W -f '${Status}\n' "$1" 2>/dev/null | grep -q '^install ok installed'
}

# first_known NAME|...: prints the first of these names that the release has. If it has none, prints the last name.
first_known() {
  local name
  for name in ${1//|/ }; do
    if [ "$name" = "${1##*|}" ] || is_installed "$name" || apt-cache show "$name" >/dev/null 2>&1; then
      echo "$name"
      return
    fi
  done
}

# find_missing PACKAGE...: puts the packages that are not installed into the array missing.
find_missing() {
  local package name
  missing=()
  for package in "$@"; do
    name=$(first_known "$package")
    is_installed "$name" || missing+=("$name")
  done
}

# install_missing PACKAGE...: names the packages that are not installed, and installs them, with sudo for an ordinary
# user.
install_missing() {
  local missing
  find_missing "$@"
  [ "${#missing[@]}" -gt 0 ] || return 0

  if ! command -v apt-get >/dev/null; then
    echo "There is no apt-get here. If the build fails, install what provides these packages: ${missing[*]}" >&2
    return 0
  fi
  if [ "$(id -u)" -ne 0 ] && ! command -v sudo >/dev/null; then
    echo "As root, run: apt-get install ${missing[*]}; then try again." >&2
    return 1
  fi

  local log sudo=
  [ "$(id -u)" -eq 0 ] || sudo=" with sudo"
  echo "Installing these packages$sudo, which may take some minutes: ${missing[*]}"
  log=$(mktemp)
  # The package index may be missing or old, so refresh it if the first attempt fails. Then look for the missing
  # packages again, because the refreshed index may know other names.
  if ! apt_install >"$log" 2>&1 &&
    ! { as_root apt-get update && find_missing "$@" && apt_install; } >"$log" 2>&1; then
    tail -n 5 "$log" >&2
    rm -f "$log"
    echo "The packages could not be installed. With a network, run as root: apt-get install ${missing[*]}" >&2
    return 1
  fi
  rm -f "$log"
}

# Installs the packages in the array missing.
apt_install() {
  as_root env DEBIAN_FRONTEND=noninteractive apt-get install -y --no-install-recommends "${missing[@]}"
}

# configure_and_build PRESET TARGET...: builds the targets, or all of them if none is given, in build/PRESET.
configure_and_build() {
  local preset=$1 target targets=()
  shift
  for target in "$@"; do
    targets+=(--target "$target")
  done
  echo "Building ${*:-everything} in build/$preset"
  mkdir -p "build/$preset"
  if ! cmake --preset "$preset" >"build/$preset/configure.log" 2>&1; then
    cat "build/$preset/configure.log" >&2
    return 1
  fi
  cmake --build "build/$preset" "${targets[@]}"
}
