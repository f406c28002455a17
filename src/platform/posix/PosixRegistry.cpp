#include "platform/Files.h"
#include "platform/Native.h"
#include "platform/posix/WinePrefix.h"

namespace gatewise::native {

namespace {

namespace fs = std::filesystem;

constexpr const char* kKey = "Software\\Microsoft\\Microsoft Games\\Flight Simulator\\8.0";
constexpr const char* kValue = "EXE Path";

/// Where installers put the simulator when nobody says otherwise, in a folder of its own.
constexpr const char* kShelves[] = {
    "\\Program Files\\Microsoft Games",
    "\\Program Files (x86)\\Microsoft Games",
};

bool holdsSimulator(const std::string& folder) {
    return files::fileExists(folder + "\\fs2002.cfg");
}

std::optional<std::string> installedIn(const fs::path& prefix) {
    const auto content = files::readAll((prefix / "system.reg").string());
    if (!content) return std::nullopt;
    const auto folder = registryText(asText(*content), kKey, kValue);
    if (!folder) return std::nullopt;
    const auto native = nativePath(prefix, *folder);
    if (!native) return std::nullopt;
    return files::textOf(*native);
}

std::optional<std::string> foundIn(const fs::path& prefix) {
    for (const char* shelf : kShelves) {
        const std::string games = (prefix / "drive_c").string() + shelf;
        for (const files::Entry& entry : files::list(games)) {
            const std::string folder = games + "\\" + entry.name;
            if (entry.folder && holdsSimulator(folder)) return files::textOf(files::resolve(folder));
        }
    }
    return std::nullopt;
}

/// The registries of all Wine prefixes, then their program folders. A value whose folder has no simulator any
/// more counts for nothing: it would stand above every folder that the pilot picks himself, each time anew.
class WineRegistry : public Registry {
public:
    [[nodiscard]] std::optional<std::string> simulatorFolder() const override {
        const auto prefixes = winePrefixes();
        for (const auto look : {installedIn, foundIn}) {
            for (const fs::path& prefix : prefixes) {
                auto folder = look(prefix);
                if (folder && holdsSimulator(*folder)) return folder;
            }
        }
        return std::nullopt;
    }
};

} // namespace

std::unique_ptr<Registry> systemRegistry() {
    return std::make_unique<WineRegistry>();
}

} // namespace gatewise::native
