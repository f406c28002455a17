#!/usr/bin/env bash
# A folder for Windows, packed: the program with its window, gtdrive, gtwindow, gt1, resources, Qt and the compiler's
# libraries. Made from nothing but the distribution's packages; the first run builds Qt and takes half an hour.
set -euo pipefail
cd "$(dirname "$0")/../.."
. tools/setup/packages.sh
need_packages "${BUILD_PACKAGES[@]}" "${PACKAGE_PACKAGES[@]}" "${WINDOWS_PACKAGES[@]}"
. tools/package/common.sh

qt=$(tools/package/windows_qt.sh)
build_resources
configure_shipped build/package-windows /usr -DCMAKE_TOOLCHAIN_FILE="$PWD/tools/package/mingw-qt.cmake" \
  -DCMAKE_PREFIX_PATH="$qt" -DCMAKE_FIND_ROOT_PATH="/usr/x86_64-w64-mingw32;$qt" \
  -DCMAKE_FIND_ROOT_PATH_MODE_PACKAGE=BOTH -DQT_HOST_PATH=/usr \
  -DQT_HOST_PATH_CMAKE_DIR=/usr/lib/x86_64-linux-gnu/cmake -DGATEWISE_DATA=OFF
cmake --build build/package-windows --target all check_services

name=Gatewise-$version-win64
stage=$PWD/build/package-windows/stage
folder=$stage/$name
rm -rf "$stage"
mkdir -p "$folder/platforms"
install_resources "$stage/installed"
cp -r "$stage/installed/usr/share/gatewise/." "$folder/"
rm -rf "$stage/installed"
cp build/package-windows/Gatewise/gatewise.exe build/package-windows/bin/gtdrive.exe build/package-windows/bin/gt1.exe "$folder/"
licences "$folder"
for package in libqt6core6 gcc-mingw-w64-base mingw-w64-common; do licence_of "$folder" "$package"; done
printf '%s %s\n' "Qt comes from Debian's source package qt6-base" "$(dpkg-query -W -f '${source:Version}' libqt6core6)," \
  "the compiler's libraries from gcc-mingw-w64" "$(dpkg-query -W -f '${source:Version}' gcc-mingw-w64-base)" \
  "and mingw-w64" "$(dpkg-query -W -f '${source:Version}' mingw-w64-common)." >"$folder/licences/SOURCES.txt"
cp packaging/windows/qt.conf "$folder/"

for library in Qt6Core Qt6Gui Qt6Widgets Qt6PrintSupport; do cp "$qt/bin/$library.dll" "$folder/"; done
for platform in qwindows qoffscreen; do cp "$qt/plugins/platforms/$platform.dll" "$folder/platforms/"; done
for library in libstdc++-6.dll libgcc_s_seh-1.dll libwinpthread-1.dll; do
  found=$(x86_64-w64-mingw32-g++-posix -print-file-name=$library)
  [ -e "$found" ] || found=/usr/x86_64-w64-mingw32/lib/$library
  cp "$found" "$folder/"
done
tools/package/forget_folder.py "${qt/qt-win64-/qt-work-}" "$folder"/Qt6*.dll "$folder"/platforms/*.dll
find "$folder" \( -name '*.exe' -o -name '*.dll' \) -exec x86_64-w64-mingw32-strip --strip-unneeded {} +

no_traces "$stage"
same_dates "$stage"
archive=$out/$name.zip
rm -f "$archive"
(cd "$stage" && find "$name" -type f | sort | zip -X -q -9 "$archive" -@)
tools/package/look_inside.py "$archive" "$version" "$PWD" "$HOME" "${qt%/*}"

# The same folder with the tools that try it, which no pilot needs.
tried=$PWD/build/package-windows/tried
rm -rf "$tried"
cp -a "$folder" "$tried"
cp build/package-windows/bin/{gtwindow,tour,check_services,check_window}.exe "$qt/bin/Qt6Test.dll" "$tried/"
echo "$archive"
