#!/usr/bin/env bash
# Builds the packages and tries them as a new user would: lintian, then in a fresh Debian 12 (a
# chroot, made once and kept below build/) the package is installed and started on a virtual screen,
# a language is chosen there, and the archive is started from a folder with a blank in its name.
# Needs root, the Debian mirror, and some 15 minutes the first time. Not part of the quick checks.
# check.sh [--built]: with --built, the packages that were built last are tried.
set -euo pipefail
cd "$(dirname "$0")/../.."

scripts/install.sh run display packages
build=build/release
packages=$PWD/$build/packages
root=$PWD/build/debian
pictures=$packages/pictures
user=wanderer

say() { echo "== $* ($(date +%T))"; }

if [ "${1:-}" != "--built" ]; then
  say "Building the packages"
  cmake --preset release
  cmake --build --preset release
  rm -rf "$packages"
  (cd "$build" && cpack)
fi
mkdir -p "$pictures"

say "lintian"
lintian --allow-root --fail-on error "$packages"/*.deb

say "A fresh Debian 12"
if [ ! -e "$root/.made" ]; then
  # Whatever an earlier run left mounted is not part of it.
  rm -rf --one-file-system "$root"
  debootstrap --variant=minbase bookworm "$root" "${DEBIAN_MIRROR:-http://deb.debian.org/debian}"
  chroot "$root" useradd --create-home "$user"
  touch "$root/.made"
fi

unmount() {
  for place in proc dev/pts dev tmp/.X11-unix; do
    mountpoint -q "$root/$place" && umount "$root/$place"
  done
  return 0
}
trap unmount EXIT
mount -t proc proc "$root/proc"
mount --bind /dev "$root/dev"
mount --bind /dev/pts "$root/dev/pts"
mkdir -p "$root/tmp/.X11-unix" /tmp/.X11-unix
mount --bind /tmp/.X11-unix "$root/tmp/.X11-unix"

say "Installing the package"
cp "$packages"/*.deb "$packages"/*.tar.gz "$root/tmp/"
cp /etc/resolv.conf "$root/etc/resolv.conf"
chroot "$root" apt-get -qq update
chroot "$root" env DEBIAN_FRONTEND=noninteractive apt-get -qq -y --no-install-recommends --reinstall \
  install "/tmp/$(basename "$packages"/*.deb)"
chroot "$root" rm -rf "/home/$user/.local" "/home/$user/My maps"

say "The companion, its manual and its completions"
chroot "$root" orvalis-world check --strict --world /usr/share/orvalis
chroot "$root" gzip -t /usr/share/man/man1/orvalis-world.1.gz
test -e "$root/usr/share/bash-completion/completions/orvalis-world"

say "Starting as a new user"
xvfb-run -a -s "-screen 0 1280x960x24 -ac" tests/packages/first-start.sh "$root" "$user" "$pictures"

say "Removing the package"
chroot "$root" apt-get -qq -y purge orvalis
test ! -e "$root/usr/share/orvalis" -a ! -e "$root/usr/lib/orvalis"
ls -l "$packages"/*.deb "$packages"/*.tar.gz "$pictures"
