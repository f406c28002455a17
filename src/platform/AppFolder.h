#pragma once

#include <filesystem>
#include <string>
#include <system_error>

// Where the program's own files lie.

namespace gatewise {

/// Folder of the program that runs.
std::filesystem::path programFolder();

/// The platform's usual place for the data that an application keeps for its user.
std::filesystem::path userDataFolder();

/// AppDir, a text of the program: the program's folder when files can be written there, else a folder of the
/// user's own below `userData`, which is filled from the program's at the first start. On an error, the
/// program's folder.
std::string chooseAppDir(const std::filesystem::path& program, const std::filesystem::path& userData,
                         std::error_code& error);
inline std::string chooseAppDir(std::error_code& error) {
    return chooseAppDir(programFolder(), userDataFolder(), error);
}

} // namespace gatewise
