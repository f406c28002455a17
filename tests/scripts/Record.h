#pragma once

#include "scripts/Transcript.h"

namespace gatewise::scripts {

/// Puts the answers that came in place of those that a transcript expects, and prints what changes for
/// review. Lines that fit stay as they are written, with their "<*>"; the program folder becomes "$APP"
/// again. Returns the number of changed answers. Throws std::runtime_error when the file cannot be written.
int record(const std::filesystem::path& file, const std::string& appDir,
           const std::vector<std::vector<std::string>>& answers);

} // namespace gatewise::scripts
