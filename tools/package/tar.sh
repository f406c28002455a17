#!/usr/bin/env bash
# A folder that runs from anywhere on Debian 12 and newer: the program with its resources beside it and its own Qt,
# found from where the program lies.
set -euo pipefail
cd "$(dirname "$0")/../.."
. tools/setup/packages.sh
need_packages "${BUILD_PACKAGES[@]}" "${PACKAGE_PACKAGES[@]}"
. tools/package/common.sh

name=gatewise-$version-linux-$(uname -m)
build_shipped build/package-tar /usr -DCMAKE_SKIP_BUILD_RPATH=OFF -DCMAKE_BUILD_WITH_INSTALL_RPATH=ON \
  -DCMAKE_INSTALL_RPATH='$ORIGIN/lib'
stage=$PWD/build/package-tar/stage
folder=$stage/$name
rm -rf "$stage"
mkdir -p "$folder/lib" "$folder/plugins"
DESTDIR=$stage/installed cmake --install build/package-tar --strip >/dev/null
cp -r "$stage/installed/usr/share/gatewise/." "$folder/"
cp "$stage/installed/usr/bin/"* "$folder/"
cp -r packaging/linux/copyright "$folder/LICENCE.txt"
[ -e THIRD-PARTY.md ] && cp THIRD-PARTY.md "$folder/"
rm -rf "$stage/installed"

qt_plugins=$(qtpaths6 --plugin-dir 2>/dev/null || echo "/usr/lib/$(gcc -print-multiarch)/qt6/plugins")
for plugin in platforms/libqxcb.so platforms/libqoffscreen.so platforms/libqwayland-generic.so \
  platforminputcontexts/libcomposeplatforminputcontextplugin.so xcbglintegrations/libqxcb-glx-integration.so \
  wayland-shell-integration/libxdg-shell.so printsupport/libcupsprintersupport.so; do
  [ -e "$qt_plugins/$plugin" ] || continue
  mkdir -p "$folder/plugins/$(dirname "$plugin")"
  cp "$qt_plugins/$plugin" "$folder/plugins/$plugin"
done

# Everything that the programs and plug-ins load, but for what every system brings and what must be the system's own.
keep_out='^(ld-linux.*|libc|libm|libdl|librt|libpthread|libresolv|libstdc\+\+|libgcc_s)\.so'
find "$folder" -type f \( -name '*.so*' -o -perm -u+x \) -print0 | xargs -0 ldd 2>/dev/null |
  sed -n 's/.* => \(\/[^ ]*\) (.*/\1/p' | sort -u | while read -r library; do
  base=$(basename "$library")
  [[ $base =~ $keep_out ]] || [ -e "$folder/lib/$base" ] || cp -L "$library" "$folder/lib/$base"
done
find "$folder/plugins" -name '*.so' -exec patchelf --set-rpath '$ORIGIN/../../lib' {} \;
find "$folder/lib" -name '*.so*' -exec patchelf --set-rpath '$ORIGIN' {} \;
printf '[Paths]\nPrefix=.\nPlugins=plugins\n' >"$folder/qt.conf"

same_dates "$stage"
archive=$out/$name.tar.xz
tar -C "$stage" --sort=name --owner=0 --group=0 --numeric-owner --mtime="@$SOURCE_DATE_EPOCH" -cf - "$name" |
  xz -6 -T1 >"$archive"
echo "$archive"
