#include "pages/FolderLists.h"

#include "platform/Files.h"

#include <algorithm>

namespace gatewise {

namespace {

/// What a line of the folder list leads to, as its item data.
enum FolderLine { kHere, kUp, kBelow };

std::string below(const std::string& folder, const std::string& name) {
    const bool ends = !folder.empty() && (folder.back() == '/' || folder.back() == '\\');
    return folder + (ends ? "" : "/") + name;
}

/// "/" or a drive letter: nothing lies above it.
bool isRoot(std::string_view folder) {
    if (folder.empty()) return false;
    if (folder.ends_with('/') || folder.ends_with('\\')) folder.remove_suffix(1);
    return folder.empty() || (folder.size() == 2 && folder[1] == ':');
}

std::string parentOf(const std::string& folder) {
    const auto end = folder.find_last_not_of("/\\");
    if (end == std::string::npos) return "/";
    const auto slash = folder.find_last_of("/\\", end);
    if (slash == std::string::npos || slash == 0) return "/";
    const std::string parent = folder.substr(0, folder.find_last_not_of("/\\", slash) + 1);
    return parent.empty() ? "/" : parent;
}

bool matches(const std::string& name, std::string_view pattern) {
    if (pattern == "*" || pattern == "*.*") return true;
    if (pattern.starts_with("*")) pattern.remove_prefix(1);
    return name.size() >= pattern.size() &&
           equalNoCase(std::string_view(name).substr(name.size() - pattern.size()), pattern);
}

void openFolderLine(FolderLists lists) {
    switch (lists.Dir1.data()) {
    case kUp:
        moveFolderLists(lists, parentOf(lists.Dir1.path));
        break;
    case kBelow:
        moveFolderLists(lists, below(lists.Dir1.path, lists.Dir1.text()));
        break;
    default:
        refreshFiles(lists.File1);
        break;
    }
}

/// Where systems without drive letters mount volumes, and how many folders deep.
struct MountPlace {
    const char* folder;
    int depth;
};

constexpr MountPlace kMountPlaces[] = {{"/media", 2}, {"/run/media", 2}, {"/mnt", 1}, {"/Volumes", 1}};

void addFolders(std::vector<std::string>& found, const std::string& folder, int depth) {
    for (const auto& entry : files::list(folder)) {
        if (!entry.folder) continue;
        const std::string path = below(folder, entry.name);
        found.push_back(path);
        if (depth > 1) addFolders(found, path, depth - 1);
    }
}

} // namespace

std::vector<std::string> mountedVolumes(const std::string& root) {
    std::vector<std::string> found;
    for (const auto& place : kMountPlaces) addFolders(found, root + place.folder, place.depth);
    return found;
}

void fillDrives(PathList& drives) {
    drives.clear();
    for (char letter = 'A'; letter <= 'Z'; ++letter) {
        const std::string drive{letter, ':'};
        if (files::folderExists(drive)) drives.add(drive);
    }
    if (drives.count() == 0) {
        drives.add("/");
        for (auto& volume : mountedVolumes()) drives.add(std::move(volume));
    }
    if (drives.path.empty()) drives.path = drives.items.front();
    drives.picked = std::max(drives.find(drives.path), 0);
}

void refreshFiles(PathList& list) {
    list.clear();
    std::vector<std::string> names;
    for (const auto& entry : files::list(list.path)) {
        if (!entry.folder && matches(entry.name, list.pattern)) names.push_back(entry.name);
    }
    // In order, so that each is added at the end of the sorted list and thousands of plans move none.
    std::stable_sort(names.begin(), names.end(), lessFolded);
    for (auto& name : names) list.add(std::move(name));
}

void moveFolderLists(FolderLists lists, const std::string& folder) {
    lists.Dir1.path = folder;
    lists.Dir1.clear();
    lists.Dir1.add(folder, kHere);
    if (!isRoot(folder)) lists.Dir1.add("..", kUp);
    std::vector<std::string> names;
    for (const auto& entry : files::list(folder)) {
        if (entry.folder) names.push_back(entry.name);
    }
    std::sort(names.begin(), names.end(), lessFolded);
    for (auto& name : names) lists.Dir1.add(std::move(name), kBelow);
    lists.Dir1.picked = 0;
    lists.File1.path = folder;
    refreshFiles(lists.File1);
}

void bindFolderLists(FolderLists lists) {
    lists.File1.sorted = true;
    lists.Drive1.on(Event::Change, [lists] { moveFolderLists(lists, lists.Drive1.path); });
    lists.Drive1.on(Event::Click, [lists] {
        lists.Drive1.path = lists.Drive1.text();
        moveFolderLists(lists, lists.Drive1.path);
    });
    lists.Dir1.on(Event::Change, [lists] { moveFolderLists(lists, lists.Dir1.path); });
    // One click picks a line, two open it, as a folder list does; so a walk by keyboard passes lines without
    // entering.
    for (const Event event : {Event::DoubleClick, Event::Enter}) {
        lists.Dir1.on(event, [lists] { openFolderLine(lists); });
    }
    lists.Dir1.on(Event::Click, [lists] { refreshFiles(lists.File1); });
}

} // namespace gatewise
