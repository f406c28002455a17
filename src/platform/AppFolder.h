#pragma once

#include <filesystem>
#include <string>
#include <system_error>

// Where the program's own files lie: what came with it, and what it writes.

namespace gatewise {

/// Folder of the program that runs.
std::filesystem::path programFolder();

/// The platform's usual place for the data that an application keeps for its user.
std::filesystem::path userDataFolder();

struct AppFolders {
    std::string AppDir;              // settings, log book, imported sets; a text of the program
    std::filesystem::path delivered; // pictures, fonts, waves, help, sample data, first settings
};

/// What came with the program: its folder when that holds the pictures, else share/gatewise beside it.
std::filesystem::path deliveredFolder(const std::filesystem::path& program);

/// A program folder that holds the pictures and can be written is both. Else the user's files lie in a folder
/// of the user's own below `userData`, which holds nothing but them. On an `error` that folder could not be
/// made, and AppDir is what came with the program.
AppFolders chooseFolders(const std::filesystem::path& program, const std::filesystem::path& userData,
                         std::error_code& error);
inline AppFolders chooseFolders(std::error_code& error) {
    return chooseFolders(programFolder(), userDataFolder(), error);
}

/// Lets paths below AppDir find what came with the program (see platform/Delivered.h).
void useFolders(const AppFolders& folders);

} // namespace gatewise
