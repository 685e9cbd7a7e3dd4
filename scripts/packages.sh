# SPDX-FileCopyrightText: 2026 GestureWidget developers
# SPDX-License-Identifier: MIT

# Debian packages this project needs, and how to get them. Sourced by ./run, ./test and others.

build_packages=(
  g++ cmake ninja-build
  qtbase5-dev qttools5-dev-tools
  libdxflib-dev libx11-dev libxcb1-dev
)
desktop_packages=(
  xvfb tigervnc-standalone-server openbox picom kwin-x11 xfwm4 dbus-daemon libglib2.0-bin
  x11-utils x11-xserver-utils xdotool imagemagick python3 libxtst-dev
  fonts-dejavu-core fonts-droid-fallback qt5-style-plugins
)
# Only ./test --desks needs these: window managers, Wayland sessions and their input.
desk_packages=(
  marco mate-desktop-common mate-settings-daemon-common mutter icewm i3-wm awesome fluxbox
  kwin-wayland sway xwayland x11-xkb-utils python3-dbus
)
# Clang builds the tests with sanitizers and those on Qt 6; LLVM has what makes reports readable.
# LLD links the large programs of the former ten times as fast as the linker that Clang takes otherwise.
test_packages=(
  clang lld llvm libclang-rt-dev
  qt6-base-dev qtbase5-private-dev qt6-base-private-dev
  librapidcheck-dev poppler-utils binutils abigail-tools file fonts-wine python3-jsonschema
  breeze-icon-theme libqt5svg5 libqt6svg6 qpwgraph
  git build-essential dpkg-dev debhelper fakeroot lintian appstream desktop-file-utils pkg-config
)

# Only ./test --coverage needs it.
coverage_packages=(gcovr)

# Only ./bench and what reads its sources need these.
bench_packages=(libbenchmark-dev libxdamage-dev)

# docs/build and the package build need these.
docs_packages=(python3-sphinx python3-myst-parser furo mandoc)

lint_packages=(clang-format clang-tidy clazy hunspell hunspell-en-gb reuse)

# install_packages NAME...: installs the missing ones without asking. Returns apt-get's status, 0
# when nothing was missing.
install_packages() {
  local missing=() name
  for name in "$@"; do
    dpkg-query -W -f='${db:Status-Abbrev}' "$name" 2>/dev/null | grep -q '^ii' || missing+=("$name")
  done
  [ ${#missing[@]} -eq 0 ] && return 0
  local as_root=()
  if [ "$(id -u)" -ne 0 ]; then
    command -v sudo >/dev/null || {
      echo "missing: ${missing[*]}; install them as root, or install sudo" >&2
      return 1
    }
    as_root=(sudo)
  fi
  echo "installing: ${missing[*]}"
  if [ -z "${packages_updated-}" ]; then
    "${as_root[@]}" apt-get update -qq || return
    packages_updated=1
  fi
  "${as_root[@]}" env DEBIAN_FRONTEND=noninteractive \
    apt-get install -y -qq --no-install-recommends "${missing[@]}" >/dev/null
}
