#pragma once

#include "platform/NativePath.h"

#include <QByteArray>

#include <filesystem>

namespace gatewise::gtwindow {

/// The platform without a display, with the desk that a file describes, as the toolkit wants to be told. The
/// words of a platform are parted by colons: behind the letter of a drive the rest of the path would be lost,
/// so that the drive becomes the current one.
inline QByteArray offscreenDesk(const std::filesystem::path& file) {
    std::filesystem::path named = file;
#ifdef _WIN32
    std::filesystem::current_path(file.root_path());
    named = file.root_directory() / file.relative_path();
#endif
    named.make_preferred();
    return "offscreen:configfile=" + QByteArray::fromStdString(files::utf8Of(named));
}

} // namespace gatewise::gtwindow
