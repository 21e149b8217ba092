#!/usr/bin/env bash
# Installs what building and testing need on a Debian machine. Safe to run again: it is quiet when nothing is missing.
set -euo pipefail

tools=(
  cmake ninja-build g++ git
  g++-mingw-w64-i686-posix binutils-mingw-w64-i686 mingw-w64-tools
  googletest pkg-config
  clang clang-format clang-tidy libclang-rt-14-dev llvm gcovr
  xvfb xdotool imagemagick x11-utils
  fonts-wine fonts-liberation
  wine
)
# Without libxi6 Wine's ClipCursor does nothing on X11, and nothing says so.
tools32=(
  wine32:i386
  libxi6:i386 libxcursor1:i386 libxrandr2:i386 libxrender1:i386
  libxinerama1:i386 libxcomposite1:i386 libxfixes3:i386
)

say() { printf 'setup: %s\n' "$*" >&2; }
die() { say "$*"; exit 1; }

installed() { [ "$(dpkg-query -W -f '${db:Status-Status}' "$1" 2>/dev/null)" = installed ]; }

command -v dpkg-query >/dev/null || die "this script knows Debian and its relatives only (no dpkg here)"

missing=()
for package in "${tools[@]}" "${tools32[@]}"; do
  installed "$package" || missing+=("$package")
done
[ ${#missing[@]} -gt 0 ] || exit 0

root=()
if [ "$(id -u)" -ne 0 ]; then
  command -v sudo >/dev/null || die "packages are missing (${missing[*]}): run as root or install sudo"
  root=(sudo)
fi
apt() { "${root[@]}" env DEBIAN_FRONTEND=noninteractive apt-get "$@"; }
log=$(mktemp)
trap 'rm -f "$log"' EXIT

say "installing ${missing[*]}"
"${root[@]}" dpkg --add-architecture i386
# One index that can't be loaded (the 32-bit security index, on some machines) is no reason to stop: the
# install below says whether anything that is needed is really out of reach.
apt update >"$log" 2>&1 || say "apt-get update had failures, going on with the indexes there are"

release=$(. /etc/os-release && printf '%s' "${VERSION_CODENAME:-}")
[ -n "$release" ] || die "can't tell this system's release code name from /etc/os-release"
# With one index missing the newest versions of a package can differ between the two architectures, and apt
# then gives up with "held broken packages". Naming the release makes it take versions that exist for both.
if ! apt install -y --no-install-recommends --allow-downgrades -t "$release" "${missing[@]}" >"$log" 2>&1; then
  tail -n 25 "$log" >&2
  die "installing the packages failed, see above"
fi

for package in "${missing[@]}"; do
  installed "$package" || die "$package is still missing after the installation"
done
say "done"
