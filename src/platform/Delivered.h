#pragma once

#include <filesystem>
#include <string_view>

// The program knows one folder of its own, AppDir. Where that is a folder of the user, it holds nothing but
// the user's files, and what came with the program is found in its place:
//
//     Images, Fonts, Wavs, help   the delivered file, else the user's
//     everything else             the user's file, else the delivered one
//     the tables of a data set    the user's set where the folder holds an index.gt1, whole; else the
//                                 delivered one
//
// Nothing is ever written into the delivered folder.

namespace gatewise::files {

/// Lets paths below `appDir` be found in `delivered`; no more when the two are one folder. Said once, at the
/// start.
void setDelivered(std::string_view appDir, const std::filesystem::path& delivered);

/// The delivered file or folder in whose favour `own`, the native path of the text `path`, steps back; empty
/// when it does not.
std::filesystem::path deliveredFor(std::string_view path, const std::filesystem::path& own);

/// The delivered folder behind the text `path` of a folder, empty when there is none: its entries are the
/// user's folder's as well.
std::filesystem::path deliveredFolderOf(std::string_view path);

} // namespace gatewise::files
