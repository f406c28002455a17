#include "platform/Proposals.h"

#include "platform/Delivered.h"
#include "platform/Files.h"

namespace gatewise {

namespace {

bool isThere(const std::string& folder) {
    return !folder.empty() && files::folderExists(folder);
}

/// Whether what came with the program lies elsewhere.
bool isInstalled(std::string_view AppDir) {
    return !files::deliveredFolderOf(std::string(AppDir) + "/").empty();
}

} // namespace

std::string proposalFor(std::string_view path, std::string_view AppDir, const UserFolders& folders) {
    const std::size_t name = path.find_last_of("/\\") + 1; // 0 without a folder
    const std::string folder(path.substr(0, name > 0 ? name - 1 : 0));
    const bool there = isThere(folder);
    if (there && (folder != AppDir || !isInstalled(AppDir))) return std::string(path);
    const auto in = [&](const std::string& other) { return other + "/" + std::string(path.substr(name)); };
    if (isThere(folders.documents)) return in(folders.documents);
    if (!there && !folder.empty() && isThere(folders.home)) return in(folders.home);
    return std::string(path);
}

} // namespace gatewise
