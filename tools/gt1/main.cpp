#include "Import.h"
#include "gt1/Commands.h"
#include "platform/NativePath.h"

#include <cstdio>
#include <optional>
#include <string>
#include <vector>

namespace {

using namespace gatewise::gt1;
using gatewise::files::pathOfUtf8;

constexpr const char* usage =
    "gt1 compile SOURCE_FOLDER TARGET_FOLDER [--world FOLDER]\n"
    "    makes the .gt1 files of a data set from plain tables; with --world a further set, whose flights "
    "and\n"
    "    plans refer to the aircraft and navaids of the tables in that folder\n"
    "gt1 dump TARGET_FOLDER [OUT_FOLDER] [--world FOLDER]\n"
    "    writes the tables back, to standard output or as files; with --world the shared .gt1 files of a\n"
    "    further set come from that folder, else from the one above it\n"
    "gt1 import SOURCE... --into PROGRAM_FOLDER [--name SET] [--tables FOLDER] [--report FILE]\n"
    "           [--every-flight] [--skip-unknown]\n"
    "    makes a further set from public tables: files, folders, also as .gz, .xz or .zip; see README\n";

/// Messages to standard error; 1 after an error.
int finish(const Report& report) {
    for (const auto& line : report.warnings()) std::fprintf(stderr, "warning: %s\n", line.c_str());
    for (const auto& line : report.errors()) std::fprintf(stderr, "error: %s\n", line.c_str());
    if (!report.failed()) return 0;
    std::fprintf(stderr, "%zu error%s\n", report.errors().size(), report.errors().size() == 1 ? "" : "s");
    return 1;
}

int compile(const std::vector<std::string>& folders, const std::optional<std::filesystem::path>& world) {
    Report report;
    const std::string made = compileFolder(pathOfUtf8(folders[0]), pathOfUtf8(folders[1]), world, report);
    const int code = finish(report);
    if (code == 0) std::printf("%s: %s\n", folders[1].c_str(), made.c_str());
    return code;
}

int dump(const std::vector<std::string>& folders, const std::optional<std::filesystem::path>& world) {
    Report report;
    const auto tables = dumpFolder(pathOfUtf8(folders[0]), world, report);
    if (!report.failed() && folders.size() == 2) {
        writeTables(tables, pathOfUtf8(folders[1]), report);
    } else if (!report.failed()) {
        for (const auto& table : tables) std::printf("== %s\n%s", table.file.c_str(), table.text.c_str());
    }
    return finish(report);
}

} // namespace

int main(int count, char** arguments) {
    const std::vector<std::string> all = gatewise::files::commandLine(count, arguments);
    if (!all.empty() && all[0] == "import") {
        const int code = importCommand({all.begin() + 1, all.end()});
        if (code == 2) std::fputs(usage, stderr);
        return code;
    }
    std::vector<std::string> words;
    std::optional<std::filesystem::path> world;
    bool understood = true;
    for (std::size_t i = 0; i < all.size(); ++i) {
        if (all[i] != "--world") {
            words.push_back(all[i]);
        } else if (++i < all.size()) {
            world = pathOfUtf8(all[i]);
        } else {
            understood = false;
        }
    }
    const std::vector<std::string> folders(words.begin() + (words.empty() ? 0 : 1), words.end());
    if (understood && !words.empty() && words[0] == "compile" && folders.size() == 2)
        return compile(folders, world);
    if (understood && !words.empty() && words[0] == "dump" && (folders.size() == 1 || folders.size() == 2))
        return dump(folders, world);
    std::fputs(usage, stderr);
    return 2;
}
