#include "import/Install.h"

#include "gt1/Pack.h"
#include "gt1/Unpack.h"
#include "platform/FileNames.h"
#include "platform/Files.h"

#include <algorithm>

#ifdef __linux__
#include <cstdio>
#include <fcntl.h>
#endif

namespace gatewise::importer {

namespace fs = std::filesystem;

namespace {

using gt1::Report;

void tell(Report& report, const fs::path& place, std::string_view expected, const std::string& found) {
    report.error({place.string(), 0, 0, ""}, expected, found);
}

/// Swaps two folders in one step; false where the system has no such step.
bool exchange([[maybe_unused]] const fs::path& a, [[maybe_unused]] const fs::path& b) {
#if defined(__linux__) && defined(RENAME_EXCHANGE)
    return renameat2(AT_FDCWD, a.c_str(), AT_FDCWD, b.c_str(), RENAME_EXCHANGE) == 0;
#else
    return false;
#endif
}

/// The fresh place and what is made in it. It lies beside Data, not in it: each folder there is a set.
class FreshPlace {
public:
    FreshPlace(const fs::path& programFolder, const std::string& name, Report& report)
        : report_(report), root_(programFolder / "import.part"), old_(root_ / "old"),
          target_(files::target(files::textOf(programFolder) + "\\Data\\" + name)) {
        clearUp();
        std::error_code error;
        fs::create_directories(set(), error);
        if (!error) fs::create_directories(target_.parent_path(), error); // a user's first set of their own
        if (error) tell(report_, root_, "a folder that can be made", error.message());
    }
    ~FreshPlace() {
        if (restored()) fs::remove_all(root_, ignored_);
    }
    FreshPlace(const FreshPlace&) = delete;
    FreshPlace& operator=(const FreshPlace&) = delete;

    [[nodiscard]] fs::path set() const { return root_ / "set"; }
    [[nodiscard]] fs::path tables() const { return root_ / "tables"; }
    [[nodiscard]] const fs::path& root() const { return root_; }

    /// Puts the set where it belongs.
    bool putIn() {
        std::error_code error;
        if (!fs::exists(target_, error)) {
            fs::rename(set(), target_, error);
        } else if (!exchange(set(), target_)) {
            rememberOld();
            fs::rename(target_, old_, error);
            if (!error) fs::rename(set(), target_, error);
        }
        if (error) tell(report_, target_, "a folder that can be put in", error.message());
        return !error;
    }

private:
    /// A run that was stopped between two renames left the old set here, with a note of where it belongs.
    void clearUp() {
        const auto note = files::readAll(files::textOf(root_ / "old.txt"));
        if (note && fs::exists(old_, ignored_)) {
            const auto place = files::resolve(asText(*note));
            if (!fs::exists(place, ignored_)) fs::rename(old_, place, ignored_);
        }
        fs::remove_all(root_, ignored_);
    }

    void rememberOld() {
        if (const auto error = files::replace(files::textOf(root_ / "old.txt"), files::textOf(target_)))
            tell(report_, root_, "a file that can be written", error.message());
    }

    /// Whether nothing in the fresh place is the only copy of a set.
    bool restored() {
        if (fs::exists(old_, ignored_) && !fs::exists(target_, ignored_)) fs::rename(old_, target_, ignored_);
        return fs::exists(target_, ignored_) || !fs::exists(old_, ignored_);
    }

    Report& report_;
    fs::path root_, old_, target_;
    std::error_code ignored_;
};

/// The shared files that have grown, checked to begin with what stands; errors in the report when one does
/// not.
std::vector<gt1::PackedFile> grownFiles(const gt1::World& world, const fs::path& data, Report& report) {
    std::vector<gt1::PackedFile> out;
    for (gt1::PackedFile& file : gt1::packWorld(world)) {
        const std::string place = files::textOf(data / file.name);
        // There are no regions before the first source that knows any.
        const bool first = file.name == kRegionsFile && !files::fileExists(place);
        const auto old = first ? std::optional(Bytes()) : files::readAll(place);
        const bool begins = old && old->size() <= file.bytes.size() &&
                            std::equal(old->begin(), old->end(), file.bytes.begin());
        if (!begins)
            tell(report, data / file.name, "a file as it was when the import began", "another one");
        else if (old->size() < file.bytes.size())
            out.push_back(std::move(file));
    }
    return out;
}

void writeFile(const fs::path& file, ByteView bytes, Report& report) {
    if (const auto error = files::replace(files::textOf(file), bytes))
        tell(report, file, "a file that can be written", error.message());
}

void putInShared(const std::vector<gt1::PackedFile>& grown, const fs::path& from, const fs::path& data,
                 Report& report) {
    for (const gt1::PackedFile& file : grown) {
        std::error_code error;
        if (!report.failed()) fs::rename(from / file.name, data / file.name, error);
        if (error) tell(report, data / file.name, "a file that can be replaced", error.message());
    }
}

/// Everything that is to be put in, in the fresh place: the set, and the shared files that are returned. What
/// stops it is the report's failure.
std::vector<gt1::PackedFile> makeFiles(const Imported& imported, const FreshPlace& fresh,
                                       const fs::path& data, Report& report, const Job& job) {
    report.watchedBy([&job](double share) {
        if (!job.cancelled()) job.progress(share);
        return !job.cancelled();
    });
    job.step("Writing tables");
    gt1::writeTables(imported.tables, fresh.tables(), report);
    gt1::writeTables(imported.shared, fresh.tables() / "shared", report);
    if (report.goesOnNow()) job.step("Compiling");
    if (!report.failed()) gt1::compileFolder(fresh.tables(), fresh.set(), fresh.tables() / "shared", report);
    std::vector<gt1::PackedFile> grown;
    if (!report.failed()) writeFile(fresh.set() / "SOURCES.txt", viewOf(imported.sources), report);
    if (!report.failed()) grown = grownFiles(imported.world, data, report);
    for (const gt1::PackedFile& file : grown)
        if (report.goesOnNow()) writeFile(fresh.root() / file.name, file.bytes, report);
    report.watchedBy({});
    return grown;
}

} // namespace

bool isSetName(std::string_view name) {
    constexpr std::size_t longest = 60;
    return name.size() <= longest && files::isFileName(name) && trimmed(name) == name &&
           !equalNoCase(name, "All Real World Airline Schedules") && !name.starts_with('.');
}

gt1::World sharedOf(const fs::path& programFolder, Report& report) {
    if (!files::fileExists(files::textOf(programFolder) + "\\Data\\index.gt1"))
        tell(report, programFolder, "a program folder with its data in Data", "none");
    return report.failed()
               ? gt1::World()
               : gt1::unpackWorld(files::resolve(files::textOf(programFolder) + "\\Data"), report);
}

bool install(const Imported& imported, const fs::path& programFolder, Report& report, const Job& job) {
    const std::string name = textFromUtf8(imported.name);
    if (!isSetName(name)) {
        report.error({"the name of the set", 0, 0, ""}, "a name that a folder can have",
                     gt1::inQuotes(imported.name));
        return false;
    }
    const fs::path data = files::target(files::textOf(programFolder) + "\\Data");
    FreshPlace fresh(programFolder, name, report);
    const auto grown = makeFiles(imported, fresh, data, report, job);
    if (report.failed() || job.cancelled()) return false;
    job.step("Putting in");
    putInShared(grown, fresh.root(), data, report);
    return !report.failed() && fresh.putIn();
}

void keepTables(const Imported& imported, const fs::path& folder, Report& report) {
    gt1::writeTables(imported.tables, folder, report);
    gt1::writeTables(imported.shared, folder / "shared", report);
}

} // namespace gatewise::importer
