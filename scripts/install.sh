#!/usr/bin/env bash
# Installs the Debian packages that are missing: install.sh GROUP...
# run: build and start the program; display: a virtual display; test, ci: what the checks use;
# bench: measurements and their peers; coverage: what the tests reach; packages: what builds and tries
# the packages.
set -euo pipefail

run="g++ cmake ninja-build libcli11-dev libjs-leaflet qt6-base-dev qt6-multimedia-dev qt6-translations-l10n fonts-liberation fonts-urw-base35 xdg-utils"
display="xvfb xauth openbox xdotool imagemagick x11-utils"
test="libgtest-dev poppler-utils strace python3 desktop-file-utils appstream groff-base"
ci="clang-format cppcheck universal-ctags clang-tidy clang libclang-rt-14-dev dbus cups-daemon cups-client at-spi2-core gir1.2-atspi-2.0 python3-gi chromium chromium-driver nodejs"
bench="libbenchmark-dev pkg-config libglib2.0-dev libinih-dev"
coverage="gcovr"
packages="dpkg-dev file lintian debootstrap"

wanted=""
for group in "$@"; do
  wanted+=" ${!group}"
done
missing=""
for package in $wanted; do
  dpkg-query -W -f='${Status}' "$package" 2>/dev/null | grep -q 'install ok installed' ||
    missing+=" $package"
done
[ -z "$missing" ] && exit 0

echo "Installing:$missing"
as_root=""
[ "$(id -u)" -eq 0 ] || as_root=sudo
$as_root apt-get -qq update
# shellcheck disable=SC2086
$as_root env DEBIAN_FRONTEND=noninteractive apt-get -qq -y install --no-install-recommends $missing
