#pragma once

#include "import/Source.h"

#include <filesystem>
#include <string>
#include <vector>

namespace gatewise::unpack {

/// The tables at a path: a file, or the files of a folder (not of the folders in it). A file packed as gz or
/// xz is one table, a zip has one for each file in it; how a file is packed its first bytes say. `faults`
/// gets a line for a path that holds nothing. What cannot be unpacked is a source whose bytes say so.
std::vector<importer::Source> openSources(const std::filesystem::path& path,
                                          std::vector<std::string>& faults);

} // namespace gatewise::unpack
