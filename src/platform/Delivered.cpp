#include "platform/Delivered.h"

#include "platform/NativePath.h"
#include "platform/Paths.h"
#include "platform/Text.h"

#include <algorithm>

namespace gatewise::files {

namespace fs = std::filesystem;

namespace {

constexpr std::string_view kResources[] = {"images", "fonts", "wavs", "help"};
constexpr std::string_view kSetTables[] = {"airline.gt1", "routes.gt1", "arrivals.gt1",
                                           "plans.gt1",   "apt.gt1",    "index.gt1"};

struct Places {
    std::string appDir;
    std::string delivered; // empty: one folder for both
};

Places& places() {
    static Places known;
    return known;
}

bool isSlash(char c) {
    return c == '\\' || c == '/';
}

/// What follows AppDir in a path, with its slash; empty for any other path.
std::string_view tailOf(std::string_view path) {
    const Places& known = places();
    if (known.delivered.empty() || !path.starts_with(known.appDir)) return {};
    const std::string_view tail = path.substr(known.appDir.size());
    return !tail.empty() && isSlash(tail.front()) ? tail : std::string_view();
}

bool present(const fs::path& path) {
    return kindOf(path) != Kind::None;
}

bool isResource(std::string_view tail) {
    tail.remove_prefix(std::min(tail.find_first_not_of("/\\"), tail.size()));
    const std::string_view first = tail.substr(0, tail.find_first_of("/\\"));
    return std::any_of(std::begin(kResources), std::end(kResources),
                       [&](std::string_view name) { return equalNoCase(first, name); });
}

/// A table of a set that is the user's own: the set is whole, and what it lacks it does not have.
bool ofOwnSet(std::string_view path, std::string_view tail) {
    const auto slash = tail.find_last_of("/\\");
    const std::string_view name = tail.substr(slash + 1);
    if (std::none_of(std::begin(kSetTables), std::end(kSetTables),
                     [&](std::string_view table) { return equalNoCase(name, table); }))
        return false;
    const std::string_view folder = path.substr(0, path.size() - name.size());
    return present(target(std::string(folder) + "index.gt1"));
}

} // namespace

void setDelivered(std::string_view appDir, const fs::path& delivered) {
    std::error_code error;
    const bool same = fs::equivalent(target(appDir), delivered, error);
    places() = {std::string(appDir), same ? std::string() : textOf(delivered)};
}

fs::path deliveredFor(std::string_view path, const fs::path& own) {
    const std::string_view tail = tailOf(path);
    if (tail.empty()) return {};
    const bool ownFirst = !isResource(tail);
    if (ownFirst && (present(own) || ofOwnSet(path, tail))) return {};
    const fs::path theirs = target(places().delivered + std::string(tail));
    return present(theirs) ? theirs : fs::path();
}

fs::path deliveredFolderOf(std::string_view path) {
    const std::string_view tail = tailOf(path);
    if (tail.empty()) return {};
    const fs::path theirs = target(places().delivered + std::string(tail));
    return kindOf(theirs) == Kind::Folder ? theirs : fs::path();
}

} // namespace gatewise::files
