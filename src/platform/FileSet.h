#pragma once

#include "platform/Binary.h"

#include <filesystem>
#include <string>
#include <system_error>
#include <vector>

// Files that belong together, such as the tables of a data set: a folder holds all old ones or all new ones.

namespace gatewise::files {

struct NamedBytes {
    std::string name; // of a file, in UTF-8
    Bytes bytes;
};

/// What kept a set from being replaced, and at which file.
struct SetFailure {
    std::error_code error;
    std::string name;
};

/// Replaces files of a folder together. New ones are written beside the old ones first; then a journal names
/// them, and from then on they are the set. A run that ends in between is finished by the next finishSet; on
/// an error the old set stands.
[[nodiscard]] SetFailure replaceSet(const std::filesystem::path& folder, const std::vector<NamedBytes>& set);

/// Finishes what a run that was cut short left of a set. Done before a set is read or written.
[[nodiscard]] SetFailure finishSet(const std::filesystem::path& folder);

} // namespace gatewise::files
