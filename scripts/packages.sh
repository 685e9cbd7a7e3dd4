# Debian packages this project needs, and how to get them. Sourced by ./run and ./test.

build_packages=(
  g++ cmake ninja-build
  qtbase5-dev
  libdxflib-dev
)
desktop_packages=(
  xvfb openbox picom x11-utils x11-xserver-utils xdotool imagemagick python3
  libx11-dev libxtst-dev
  fonts-dejavu-core qt5-style-plugins
)
test_packages=(
  qt6-base-dev
  librapidcheck-dev poppler-utils binutils dpkg-dev file fonts-wine python3-jsonschema
  breeze-icon-theme libqt5svg5 libqt6svg6
)

# install_packages NAME...: installs those that are missing; asks nothing. Returns apt-get's
# status, 0 when nothing was missing.
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
