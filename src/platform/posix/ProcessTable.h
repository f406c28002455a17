#pragma once

#include <filesystem>
#include <string_view>

// The processes of the computer, as the kernel shows them: a folder for each, named by its number, in which
// the file `cmdline` holds the arguments, parted by NUL.

namespace gatewise::native {

inline constexpr std::string_view kSimulatorProgram = "fs2002.exe";

/// Whether one of the processes in `table` (/proc on the computer itself) is the simulator: its program is
/// named among the first three arguments, alone or behind what runs it. Without such a folder there is none.
bool simulatorRunsIn(const std::filesystem::path& table);

} // namespace gatewise::native
