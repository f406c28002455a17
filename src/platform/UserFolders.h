#pragma once

#include <string>

namespace gatewise {

/// Folders of the person at the desk, as texts of the program. None need exist; unknown ones are empty.
struct UserFolders {
    std::string home;
    std::string documents;
    std::string settings; // where programs keep what they remember for this person
};

UserFolders userFolders();

} // namespace gatewise
