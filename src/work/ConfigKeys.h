#pragma once

#include "session/Settings.h"

#include <span>

namespace gatewise {

/// How a value stands in GT.cfg.
enum class ConfigValue {
    Text,
    DataSet,  // text; a folder without tables gives way to the main data set
    Index,    // a number, or the read ends
    Box,      // 0, 1 or 2, or the read ends
    Number16, // 16 bits with sign, or the read ends
    Sort,     // "True" when the board is sorted so; no truth value ends the read
    Minutes,  // of kPreFlightMinutes, or the first of them
    Miles,    // of kAlternateMiles, or the first of them
    Whole,    // a number; what is none is 0
};

/// One key of GT.cfg: where it stands, its place among the reads (from 1), and what it holds.
struct ConfigKey {
    const char* section;
    const char* key;
    int read;
    ConfigValue how;
    std::string Settings::*text = nullptr; // Text, DataSet
    int Settings::*number = nullptr;       // Index, Box, Number16, Whole
    BoardSort sort = BoardSort::None;      // Sort
};

/// In the order in which they are written. The folders of the exports follow them, see ExportKinds.h.
std::span<const ConfigKey> configKeys();

/// Keys that came later, in a section of their own. Each is read for itself, and one that holds what it holds
/// at the start is not written into a file that does not have it.
std::span<const ConfigKey> ownKeys();

} // namespace gatewise
