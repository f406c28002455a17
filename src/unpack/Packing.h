#pragma once

#include "import/Source.h"

#include <filesystem>
#include <memory>
#include <string>
#include <vector>

namespace gatewise::unpack {

enum class Packing { None, Gz, Xz, Zip };

/// By the first bytes of the file.
Packing packingOf(const std::filesystem::path& file);
std::string nameOf(Packing packing);

/// The names of the files in a zip; empty, with a word in `error`, when it cannot be read.
std::vector<std::string> entriesOf(const std::filesystem::path& zip, std::string& error);

/// The bytes of a packed file; of a zip those of its n-th entry, from 0.
std::unique_ptr<importer::SourceBytes> openPacked(const std::filesystem::path& file, Packing packing,
                                                  std::size_t entry);

} // namespace gatewise::unpack
