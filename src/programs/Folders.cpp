#include "programs/Folders.h"

#include "platform/Binary.h"
#include "platform/Files.h"
#include "platform/Text.h"

#include <algorithm>

namespace gatewise::programs {

namespace {

constexpr std::size_t kLongestList = 16384; // a list of installations is a few lines

std::string below(const std::string& base, std::string_view folder) {
    return base.empty() ? std::string() : base + "/" + std::string(folder);
}

/// The folder below the first installation of the list that has it. Lists are UTF-8 and end their lines as
/// they like.
std::string listed(const std::string& list, const char* folder) {
    const auto bytes = files::readAll(list);
    if (!bytes || bytes->size() > kLongestList) return {};
    std::string_view rest = asText(*bytes);
    while (!rest.empty()) {
        const std::size_t end = std::min(rest.find_first_of("\r\n"), rest.size());
        std::string root = textFromUtf8(rest.substr(0, end));
        while (root.ends_with('/') || root.ends_with('\\')) root.pop_back();
        std::string found = below(root, folder);
        if (!found.empty() && files::folderExists(found)) return found;
        rest.remove_prefix(std::min(end + 1, rest.size()));
    }
    return {};
}

std::string folderOf(const Place& place, const UserFolders& folders) {
    switch (place.base) {
    case Base::Home:
        return below(folders.home, place.folder);
    case Base::Documents:
        return below(folders.documents, place.folder);
    case Base::Settings:
        return below(folders.settings, place.folder);
    case Base::Listed:
        break;
    }
    for (const std::string& base : {folders.home, folders.settings}) {
        if (base.empty()) continue;
        if (std::string found = listed(below(base, place.list), place.folder); !found.empty()) return found;
    }
    return {};
}

} // namespace

std::string proposedFolder(const Format& format, const UserFolders& folders) {
    for (const Place& place : format.places) {
        std::string folder = folderOf(place, folders);
        if (!folder.empty() && files::folderExists(folder)) return folder;
    }
    for (const std::string& folder : {folders.documents, folders.home}) {
        if (!folder.empty() && files::folderExists(folder)) return folder;
    }
    return {};
}

} // namespace gatewise::programs
