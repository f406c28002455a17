#!/usr/bin/env bash
# A folder that runs from anywhere on Debian 12 and newer: the program with its resources beside it and its own Qt,
# found from where the program lies.
set -euo pipefail
cd "$(dirname "$0")/../.."
. tools/setup/packages.sh
need_packages "${BUILD_PACKAGES[@]}" "${PACKAGE_PACKAGES[@]}"
. tools/package/common.sh

build_resources
build_linux
name=gatewise-$version-linux-$(uname -m)
stage=$PWD/build/package-linux/tar
folder=$stage/$name
rm -rf "$stage"
mkdir -p "$folder/lib" "$folder/plugins"
install_resources "$stage/installed"
DESTDIR=$stage/installed cmake --install build/package-linux --strip >/dev/null
cp -r "$stage/installed/usr/share/gatewise/." "$folder/"
cp "$stage/installed/usr/bin/"* "$folder/"
licences "$folder"
rm -rf "$stage/installed"

qt_plugins=$(qtpaths6 --plugin-dir 2>/dev/null || echo "/usr/lib/$(gcc -print-multiarch)/qt6/plugins")
for plugin in platforms/libqxcb.so platforms/libqoffscreen.so platforms/libqwayland-generic.so \
  platforminputcontexts/libcomposeplatforminputcontextplugin.so \
  wayland-shell-integration/libxdg-shell.so printsupport/libcupsprintersupport.so; do
  mkdir -p "$folder/plugins/$(dirname "$plugin")"
  cp "$qt_plugins/$plugin" "$folder/plugins/$plugin"
done

# Everything that the programs and plug-ins load, but for what every system brings and what must be the system's own.
keep_out='^(ld-linux.*|libc|libm|libdl|librt|libpthread|libresolv|libstdc\+\+|libgcc_s)\.so'
find "$folder" -type f \( -name '*.so*' -o -perm -u+x \) -print0 | xargs -0 ldd |
  sed -n 's/.* => \(\/[^ ]*\) (.*/\1/p' | sort -u | while read -r library; do
  base=$(basename "$library")
  [[ $base =~ $keep_out ]] && continue
  cp -L "$library" "$folder/lib/$base"
  # The licence of each lies in its package.
  real=$(realpath "$library")
  package=$({ dpkg -S "$real" || dpkg -S "${real#/usr}"; } 2>/dev/null | head -1 | cut -d: -f1)
  licence_of "$folder" "$package"
done
for program in gatewise gtdrive gt1; do patchelf --set-rpath '$ORIGIN/lib' "$folder/$program"; done
find "$folder/plugins" -name '*.so' -exec patchelf --set-rpath '$ORIGIN/../../lib' {} \;
find "$folder/lib" -name '*.so*' -exec patchelf --set-rpath '$ORIGIN' {} \;
printf '[Paths]\nPrefix=.\nPlugins=plugins\n' >"$folder/qt.conf"

no_traces "$stage"
same_dates "$stage"
archive=$out/$name.tar.xz
tar -C "$stage" --sort=name --owner=0 --group=0 --numeric-owner --mtime="@$SOURCE_DATE_EPOCH" -cf - "$name" |
  xz -6 -T1 >"$archive"
echo "$archive"
