#pragma once

#include "platform/UserFolders.h"
#include "programs/Formats.h"

#include <string>

namespace gatewise::programs {

/// The folder that a format's files should go to: the first of its usual ones that is there, else the
/// documents, else what of the user's own is there. A text of the program; empty when nothing is there at
/// all.
std::string proposedFolder(const Format& format, const UserFolders& folders);

} // namespace gatewise::programs
