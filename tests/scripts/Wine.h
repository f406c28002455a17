#pragma once

#include <filesystem>
#include <string>

// A driver that was built for Windows, played under Wine. It answers what every other driver answers, but
// that its lines end as Windows ends them and that it writes paths as Windows does.

namespace gatewise::scripts::wine {

/// A folder of this machine as the driver knows it, on the drive that holds all of this machine's files.
std::string folderThere(const std::filesystem::path& folder);

/// As `matches`, whichever way the slashes of a path lean, and numbers of more than eleven digits to twelve.
bool sameLine(const std::string& expected, const std::string& line);

} // namespace gatewise::scripts::wine
