#pragma once

#include "forms/Control.h"

#include <string>
#include <vector>

namespace gatewise {

/// A screen's drive, folder and file lists, which follow each other.
struct FolderLists {
    PathList& Drive1;
    PathList& Dir1;
    PathList& File1;
};

/// The folders in which systems without drive letters mount volumes, a folder before those inside it; `root`
/// stands in front of the usual places.
std::vector<std::string> mountedVolumes(const std::string& root = {});

/// Roots and mounted volumes for the drive list.
void fillDrives(PathList& drives);

/// Moves the folder list (and with it the file list) to a folder and reads both anew. Folder items: the
/// folder itself as its path first, then "..", then its sub-folders by name; item data 0, 1, 2.
void moveFolderLists(FolderLists lists, const std::string& folder);

/// Reads the file list anew by its pattern.
void refreshFiles(PathList& files);

/// Ties drive and folder lists of a screen together: change and click alike.
void bindFolderLists(FolderLists lists);

} // namespace gatewise
