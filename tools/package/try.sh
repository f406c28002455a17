#!/usr/bin/env bash
# Tries the packages for Linux on a bare Debian 12 that has neither the project's source nor what it is built with: the
# archive in a folder of a person's own, then the package, installed and removed again. A person without rights runs them.
# Ends with 77 where it cannot be tried: without root's rights, without debootstrap, without packages.
set -euo pipefail
cd "$(dirname "$0")/../.."
skip() {
  echo "Not tried: $1"
  exit 77
}
[ "$(id -u)" -eq 0 ] || skip "a system of its own takes root's rights"
command -v debootstrap >/dev/null || skip "debootstrap is not installed"
[ -d build/packages ] || skip "there is no build/packages"
archive=$(find build/packages -name 'gatewise-*-linux-*.tar.xz' 2>/dev/null | tail -1)
package=$(find build/packages -name 'gatewise_*.deb' 2>/dev/null | tail -1)
[ -n "$archive" ] && [ -n "$package" ] || skip "build/packages lacks an archive or a package"

# The bare system is fetched once, from the mirror that this machine uses.
bare=${GATEWISE_CACHE:-${XDG_CACHE_HOME:-$HOME/.cache}/gatewise}/bare-bookworm
if [ ! -e "$bare.complete" ]; then
  mirror=$(apt-get indextargets --format '$(REPO_URI)' 'Created-By: Packages' 'Codename: bookworm' | head -1)
  [ -n "$mirror" ] || skip "this machine knows no mirror of Debian 12"
  rm -rf "$bare"
  debootstrap --variant=minbase bookworm "$bare" "$mirror" >/dev/null
  rm -rf "$bare"/var/cache/apt/archives/*.deb
  touch "$bare.complete"
fi
root=$(mktemp -d "${TMPDIR:-/tmp}/gatewise-try.XXXXXX")
trap 'umount "$root/proc" 2>/dev/null; rm -rf --one-file-system "$root"' EXIT
cp -a "$bare/." "$root/"
mount -t proc proc "$root/proc" # programs ask it where they lie
cp /etc/resolv.conf "$root/etc/" 2>/dev/null || true
chroot "$root" useradd --create-home pilot

as_pilot() { chroot --userspec=pilot:pilot "$root" env -i HOME=/home/pilot PATH=/usr/bin:/bin LC_ALL=C.UTF-8 "$@"; }
fail() {
  echo "FAILED: $1" >&2
  exit 1
}

# Runs the program without a display until it has made its settings, and looks whether it lives.
runs() { # program, folder of the settings
  local status=0
  as_pilot QT_QPA_PLATFORM=offscreen ALSOFT_DRIVERS=null timeout 10 "$1" >"$root/said" 2>&1 || status=$?
  [ "$status" -eq 124 ] || { cat "$root/said" >&2; fail "$1 ended with $status"; }
  [ -e "$root/$2/gatewise.lock" ] || fail "$1 does not keep its files in $2"
}

# The board of Atlanta by the driver, from resources wherever they are.
drives() { # driver, resources
  local said
  said=$(printf 'now 2002-06-17 07:05:00\nstart\nget MainForm.city_LABEL(0)\nquit\n' | as_pilot "$1" "$2")
  grep -q '^" *[A-Z]' <<<"$said" || fail "$1 shows no board: $said"
}

version=$(sed -n 's/^project(.* VERSION \([0-9.]*\) .*/\1/p' CMakeLists.txt)
says_version() { [ "$(as_pilot "$1" --version)" = "Gatewise Terminal $version" ] || fail "$1 says another version"; }

# A folder whose name no program expects.
place="/home/pilot/my flights ü"
mkdir "$root$place"
tar -C "$root$place" --strip-components=1 -xf "$archive"
chroot "$root" chown -R pilot:pilot "$place"
says_version "$place/gatewise"
runs "$place/gatewise" "$place"
drives "$place/gtdrive" "$place"
echo "the archive runs from a folder of its own"

# The same where it cannot write: settings and log book lie with the person's data.
chroot "$root" chown -R root:root "$place"
chmod -R go-w "$root$place"
runs "$place/gatewise" "/home/pilot/.local/share/Gatewise Terminal"
rm -rf "$root/home/pilot/.local" "${root:?}$place"
echo "the archive runs from a folder that cannot be written"

cp "$package" "$root/tmp/gatewise.deb"
chroot "$root" sh -c 'apt-get update -qq && DEBIAN_FRONTEND=noninteractive apt-get install -y -qq --no-install-recommends /tmp/gatewise.deb' \
  >"$root/said" 2>&1 || { tail -20 "$root/said" >&2; fail "the package cannot be installed"; }
touch "$root/before"
says_version /usr/bin/gatewise
runs /usr/bin/gatewise "/home/pilot/.local/share/Gatewise Terminal"
[ -z "$(find "$root/usr" -newer "$root/before" -print -quit)" ] || fail "the program writes below /usr"
cp -r "$root/usr/share/gatewise" "$root/home/pilot/folder"
chroot "$root" chown -R pilot:pilot /home/pilot/folder
drives /usr/bin/gtdrive /home/pilot/folder
echo "the package runs and writes nothing below /usr"

# What the simulator's installer left in the pilot's Wine prefix.
prefix=$root/home/pilot/.wine
mkdir -p "$prefix/drive_c/Games/FS2002"
touch "$prefix/drive_c/Games/FS2002/FS2002.cfg"
printf 'WINE REGISTRY Version 2\n\n[%s] 1021372800\n"EXE Path"="C:\\\\Games\\\\FS2002"\n' \
  'Software\\Wow6432Node\\Microsoft\\Microsoft Games\\Flight Simulator\\8.0' >"$prefix/system.reg"
chroot "$root" chown -R pilot:pilot /home/pilot/.wine
runs /usr/bin/gatewise "/home/pilot/.local/share/Gatewise Terminal"
grep -qi '^FSPath=/home/pilot/.wine/drive_c/Games/FS2002' "$root/home/pilot/.local/share/Gatewise Terminal/GT.cfg" ||
  fail "the program does not find the simulator in Wine's folder"
echo "the package finds the simulator in Wine's folder"
if command -v Xvfb >/dev/null; then
  tools/package/first_board.py --picture build/packages/board-of-the-package.png \
    chroot --userspec=pilot:pilot "$root" env HOME=/home/pilot QT_QPA_PLATFORM=xcb ALSOFT_DRIVERS=null /usr/bin/gatewise
fi
chroot "$root" dpkg --purge gatewise >/dev/null 2>&1 || fail "the package cannot be removed"
[ ! -e "$root/usr/share/gatewise" ] || fail "the package leaves files behind"
echo "the package goes without a trace"
