#!/usr/bin/env bash
# A package for Debian: laid out by CMake's install rules, its dependencies found by looking at what the programs need.
set -euo pipefail
cd "$(dirname "$0")/../.."
. tools/setup/packages.sh
need_packages "${BUILD_PACKAGES[@]}" "${PACKAGE_PACKAGES[@]}"
. tools/package/common.sh

architecture=$(dpkg --print-architecture)
# The project has no address of its own yet, and a package has to name one: the ending says that nobody is there.
maintainer="The Gatewise developers <developers@gatewise.invalid>"
build_resources
build_linux

stage=$PWD/build/package-linux/deb
rm -rf "$stage"
install_resources "$stage"
DESTDIR=$stage cmake --install build/package-linux --strip >/dev/null
mkdir -p "$stage/DEBIAN" "$stage/usr/share/doc/gatewise"
gzip -9n "$stage"/usr/share/man/man1/*.1
cp packaging/linux/copyright "$stage/usr/share/doc/gatewise/copyright"
cp THIRD-PARTY.md "$stage/usr/share/doc/gatewise/"
{
  echo "gatewise ($version) stable; urgency=medium"
  echo
  echo "  * The program as of its last change."
  echo
  echo " -- $maintainer  $(date -R -d "@$SOURCE_DATE_EPOCH")"
} | gzip -9n >"$stage/usr/share/doc/gatewise/changelog.gz"

# Typefaces that a package of the distribution brings stand there once.
fonts=$stage/usr/share/gatewise/Fonts
font_packages=""
for font in "$fonts"/*.[ot]tf; do
  while IFS=: read -r owner file; do
    file=${file# }
    cmp -s "$font" "$file" || continue
    ln -sf "$(realpath -m --relative-to=/usr/share/gatewise/Fonts "$file")" "$font"
    font_packages+=", $owner"
    break
  done < <(dpkg -S "*/$(basename "$font")" 2>/dev/null)
done
font_packages=$(tr ',' '\n' <<<"$font_packages" | sed 's/^ //; /^$/d' | sort -u | sed 's/^/, /' | tr -d '\n')

# The tool that finds dependencies wants a source control file beside it.
mkdir -p build/package-linux/debian
printf 'Source: gatewise\n\nPackage: gatewise\nArchitecture: any\n' >build/package-linux/debian/control
depends=$(cd build/package-linux && dpkg-shlibdeps -O --ignore-missing-info deb/usr/bin/* 2>/dev/null | sed 's/^shlibs:Depends=//')
cat >"$stage/DEBIAN/control" <<CONTROL
Package: gatewise
Version: $version
Architecture: $architecture
Maintainer: $maintainer
Installed-Size: $(du -sk --apparent-size "$stage/usr" | cut -f1)
Depends: $depends$font_packages
Recommends: qt6-wayland
Suggests: wine, wmctrl
Section: misc
Priority: optional
Description: airline departures board, flight plans and pilot's log book
 Gatewise Terminal turns a database of airline schedules into an airline
 pilot's working day beside a flight simulator: a live departures and arrivals
 board with announcements, a boarding pass, a computed flight plan to view,
 edit and print, plans for simulators and their add-ons, and a log book.
CONTROL
(cd "$stage" && find usr -type f -print0 | sort -z | xargs -0 md5sum >DEBIAN/md5sums)
no_traces "$stage"
same_dates "$stage"
package=$out/gatewise_${version}_$architecture.deb
dpkg-deb --root-owner-group -Zxz --build "$stage" "$package" >/dev/null
lintian --allow-root --fail-on error,warning,override "$package"
echo "$package"
