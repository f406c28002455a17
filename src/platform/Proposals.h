#pragma once

#include "platform/UserFolders.h"

#include <string>
#include <string_view>

namespace gatewise {

/// Where a dialog about a file begins when work proposes `path` (folder and name): there. Where that folder
/// is not there, with the same name in the person's documents, else in their home folder. The folder `AppDir`
/// of an installed program, which holds nothing but what the program remembers for the person, gives way to
/// the documents too, and so does no folder at all.
std::string proposalFor(std::string_view path, std::string_view AppDir, const UserFolders& folders);

} // namespace gatewise
