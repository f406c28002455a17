#pragma once

#include <span>
#include <string>

namespace gatewise {

/// Joins canonical recordings (8-bit mono, 8000 Hz, 44-byte header) into the wave file `target`, which must
/// not exist. Each piece begins on the last byte of the one before, and the header's size is one byte less
/// than the data that follows it.
///
/// False when a recording cannot be read, holds no sample or does not exist, and when the target cannot be
/// written; then no target is left. Recordings that do not exist are there afterwards, empty.
bool joinWaves(std::span<const std::string> pieces, const std::string& target);

} // namespace gatewise
