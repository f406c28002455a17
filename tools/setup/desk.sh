# What the toolkit can draw on at this desk; sourced by ./run.
# Usage: desk_platform PLUGINS   the toolkit's folder of plug-ins
# Prints the platform to start the program on. Without one it fails, and says on standard error what is missing.

desk_platform() {
  local plugins=$1
  # The plug-ins for X and for Wayland come in packages of their own.
  can() { compgen -G "$plugins/platforms/libq$1*.so" >/dev/null; }

  if [ -n "${WAYLAND_DISPLAY:-}" ] && can wayland; then
    echo wayland
  elif [ -n "${DISPLAY:-}" ] && can xcb; then
    echo xcb
  elif [ -n "${WAYLAND_DISPLAY:-}" ]; then
    echo "This desk speaks Wayland, for which Qt has no plug-in here. Install it and start again: apt-get install qt6-wayland" >&2
    return 1
  elif [ -n "${DISPLAY:-}" ]; then
    echo "Qt has no plug-in for X here. Install it and start again: apt-get install libqt6gui6" >&2
    return 1
  else
    echo "There is no display here." >&2
    return 1
  fi
}
