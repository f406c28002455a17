#!/usr/bin/env bash
# A package for Debian: laid out by CMake's install rules, its dependencies found by looking at what the programs need.
set -euo pipefail
cd "$(dirname "$0")/../.."
. tools/setup/packages.sh
need_packages "${BUILD_PACKAGES[@]}" "${PACKAGE_PACKAGES[@]}"
. tools/package/common.sh

architecture=$(dpkg --print-architecture)
# Hardened as the distribution asks for.
shipped_flags="$(dpkg-buildflags --get CXXFLAGS | sed 's/-ffile-prefix-map=[^ ]*//; s/-g //; s/-O2 //') $(dpkg-buildflags --get CPPFLAGS)"
build_shipped build/package-deb /usr -DCMAKE_EXE_LINKER_FLAGS="$(dpkg-buildflags --get LDFLAGS) -Wl,-z,now -pie" \
  -DCMAKE_POSITION_INDEPENDENT_CODE=ON

stage=$PWD/build/package-deb/stage
rm -rf "$stage"
DESTDIR=$stage cmake --install build/package-deb --strip >/dev/null
mkdir -p "$stage/DEBIAN" "$stage/usr/share/doc/gatewise"
gzip -9n "$stage"/usr/share/man/man1/*.1
cp packaging/linux/copyright "$stage/usr/share/doc/gatewise/copyright"
[ -e THIRD-PARTY.md ] && cp THIRD-PARTY.md "$stage/usr/share/doc/gatewise/"
{
  echo "gatewise ($version) stable; urgency=medium"
  echo
  echo "  * The program as of its last change."
  echo
  echo " -- The Gatewise developers <gatewise@localhost>  $(date -R -d "@$SOURCE_DATE_EPOCH")"
} | gzip -9n >"$stage/usr/share/doc/gatewise/changelog.gz"

# The tool that finds dependencies wants a source control file beside it.
mkdir -p build/package-deb/debian
printf 'Source: gatewise\n\nPackage: gatewise\nArchitecture: any\n' >build/package-deb/debian/control
depends=$(cd build/package-deb && dpkg-shlibdeps -O --ignore-missing-info stage/usr/bin/* 2>/dev/null | sed 's/^shlibs:Depends=//')
cat >"$stage/DEBIAN/control" <<CONTROL
Package: gatewise
Version: $version
Architecture: $architecture
Maintainer: The Gatewise developers <gatewise@localhost>
Installed-Size: $(du -sk --apparent-size "$stage/usr" | cut -f1)
Depends: $depends
Section: games
Priority: optional
Description: airline departures board, flight plans and pilot's log book
 Gatewise Terminal turns a database of airline schedules into an airline
 pilot's working day beside a flight simulator: a live departures and arrivals
 board with announcements, a boarding pass, a computed flight plan to view,
 edit and print, plans for simulators and their add-ons, and a log book.
CONTROL
(cd "$stage" && find usr -type f -print0 | sort -z | xargs -0 md5sum >DEBIAN/md5sums)
same_dates "$stage"
package=$out/gatewise_${version}_$architecture.deb
dpkg-deb --root-owner-group -Zxz --build "$stage" "$package" >/dev/null
lintian --fail-on error,warning "$package"
echo "$package"
