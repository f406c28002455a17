#include "import/Import.h"
#include "import/Install.h"
#include "import/Texts.h"
#include "platform/Delivered.h"
#include "platform/Files.h"
#include "support/TempFolder.h"
#include "unpack/OpenSources.h"

#include <algorithm>
#include <atomic>
#include <filesystem>
#include <fstream>
#include <gtest/gtest.h>
#include <limits>
#include <map>

namespace gatewise::importer {
namespace {

namespace fs = std::filesystem;

std::vector<Source> allSources() {
    std::vector<Source> out;
    int number = 100;
    for (const auto& [kind, text] : samples())
        out.push_back(textSource("s" + std::to_string(number++), text));
    return out;
}

fs::path sampleTables() {
    return fs::path(GATEWISE_TEST_SOURCE_DIR) / "data/sample";
}

/// The sample's main set, compiled once for all tests of this process.
const fs::path& sampleCompiled() {
    static const test::TempFolder folder;
    static const fs::path out = [] {
        gt1::Report report;
        gt1::compileFolder(sampleTables(), folder / "Data", std::nullopt, report);
        return folder / "Data";
    }();
    return out;
}

/// A program folder with the sample world, of a small set alone; gone with the object.
class Folder {
public:
    Folder() {
        fs::create_directories(path() / "Data");
        gt1::Report report;
        gt1::compileFolder(fs::path(GATEWISE_TEST_SOURCE_DIR) / "data/sample-small", path() / "Data",
                           sampleTables(), report);
        for (const char* table : {"aircraft.gt1", "VOR.gt1", "NDB.gt1", "ISC.gt1", "JRT.gt1"})
            fs::copy_file(sampleCompiled() / table, path() / "Data" / table);
        EXPECT_EQ(report.errors(), std::vector<std::string>{});
    }

    [[nodiscard]] fs::path path() const { return folder_.native(); }

    [[nodiscard]] std::map<std::string, std::string> files() const {
        std::map<std::string, std::string> out;
        for (const auto& entry : fs::recursive_directory_iterator(path())) {
            if (!entry.is_regular_file()) continue;
            const auto bytes = files::readAll(files::textOf(entry.path()));
            out[fs::relative(entry.path(), path()).string()] = std::string(bytes->begin(), bytes->end());
        }
        return out;
    }

private:
    test::TempFolder folder_;
};

Imported imported(const Folder& folder, std::vector<Source> sources, const Job& job = Job()) {
    gt1::Report report;
    const gt1::World shared = sharedOf(folder.path(), report);
    EXPECT_EQ(report.errors(), std::vector<std::string>{});
    return makeImport(sources, shared, {}, job);
}

std::vector<std::string> put(const Folder& folder, const Imported& made) {
    gt1::Report report;
    install(made, folder.path(), report);
    return report.errors();
}

TEST(Import, EveryFormTogetherMakesASet) {
    const Folder folder;
    const Imported made = imported(folder, allSources());
    EXPECT_EQ(made.faults, std::vector<std::string>{});
    EXPECT_EQ(made.name, "June 2008");
    EXPECT_EQ(put(folder, made), std::vector<std::string>{});
    for (const char* file : {"index", "airline", "routes", "arrivals", "Plans", "APT"})
        EXPECT_TRUE(fs::exists(folder.path() / "Data/June 2008" / (std::string(file) + ".gt1"))) << file;
    const auto sources = files::readAll(files::textOf(folder.path() / "Data/June 2008/SOURCES.txt"));
    EXPECT_NE(std::string(sources->begin(), sources->end()).find("Copyright (c) 2021 Body"),
              std::string::npos);
    EXPECT_FALSE(fs::exists(folder.path() / "import.part"));
    EXPECT_GT(made.counts.flown, 0U);
    EXPECT_EQ(made.counts.own, 1U);
}

TEST(Import, TheOrderOfTheSourcesChangesNothing) {
    const Folder one;
    const Folder two;
    std::vector<Source> turned = allSources();
    std::reverse(turned.begin(), turned.end());
    const Imported a = imported(one, allSources());
    const Imported b = imported(two, turned);
    EXPECT_EQ(a.report, b.report);
    put(one, a);
    put(two, b);
    EXPECT_EQ(one.files(), two.files());
}

TEST(Import, TheSameAgainAddsNothing) {
    const Folder folder;
    put(folder, imported(folder, allSources()));
    const auto before = folder.files();
    const Imported again = imported(folder, allSources());
    EXPECT_EQ(again.counts.grown, (std::vector<std::size_t>{0, 0, 0, 0, 0}));
    EXPECT_EQ(put(folder, again), std::vector<std::string>{});
    EXPECT_EQ(folder.files(), before);
}

TEST(Import, BesideADeliveredFolderTheUsersOwnTakesTheSet) {
    const Folder delivered;
    const auto before = delivered.files();
    const test::TempFolder folder;
    const fs::path own = folder.native();
    files::setDelivered(files::textOf(own), delivered.path());
    gt1::Report report;
    const Imported made = makeImport(allSources(), sharedOf(own, report), {}, Job());
    EXPECT_TRUE(install(made, own, report));
    files::setDelivered("", {});
    EXPECT_EQ(report.errors(), std::vector<std::string>{});
    EXPECT_TRUE(fs::exists(own / "Data/June 2008/index.gt1"));
    EXPECT_TRUE(fs::exists(own / "Data/VOR.gt1")) << "a shared table that has grown";
    EXPECT_EQ(delivered.files(), before);
}

TEST(Import, SharedTablesGrowAtTheirEnd) {
    const Folder folder;
    const auto before = folder.files();
    put(folder, imported(folder, allSources()));
    const auto after = folder.files();
    for (const auto& [name, bytes] : before) EXPECT_TRUE(after.at(name).starts_with(bytes)) << name;
    EXPECT_GT(after.at("Data/VOR.gt1").size(), before.at("Data/VOR.gt1").size());
}

TEST(Import, ABrokenSourceOfAnyKindStopsItAndWritesNothing) {
    const Folder folder;
    const auto before = folder.files();
    for (const auto& [kind, text] : samples()) {
        std::vector<Source> sources{textSource("good", kAirportsDat),
                                    textSource("bad", text + std::string(100000, 'x'))};
        const Imported made = imported(folder, sources);
        ASSERT_EQ(made.faults.size(), 1U) << nameOf(kind);
        EXPECT_NE(made.faults[0].find("bad: line "), std::string::npos) << made.faults[0];
        EXPECT_TRUE(made.tables.empty());
    }
    EXPECT_EQ(folder.files(), before);
}

TEST(Import, WithoutAirportsThereIsNothing) {
    const Folder folder;
    EXPECT_EQ(imported(folder, {textSource("r", kRoutesDat)}).faults.size(), 1U);
}

TEST(Import, NoSetNameLeavesTheDataFolder) {
    for (const char* name :
         {"", ".", "..", "a/b", "a\\b", "CON", "all real world airline schedules", " x", ".x"})
        EXPECT_FALSE(isSetName(name)) << name;
    EXPECT_TRUE(isSetName("June 2002"));
    const Folder folder;
    const auto before = folder.files();
    Imported made = imported(folder, allSources());
    made.name = "../outside";
    EXPECT_EQ(put(folder, made).size(), 1U);
    EXPECT_EQ(folder.files(), before);
}

TEST(Import, ATableThatCannotBeCompiledLeavesAllAsItWas) {
    const Folder folder;
    const auto before = folder.files();
    Imported made = imported(folder, allSources());
    made.tables[0].text += "AAA,KAAA,Twice,,0,0,0\n";
    EXPECT_GT(put(folder, made).size(), 0U);
    EXPECT_EQ(folder.files(), before);
}

TEST(Import, ARunThatWasStoppedBetweenRenamesIsMadeGood) {
    const Folder folder;
    const Imported made = imported(folder, allSources());
    put(folder, made);
    const fs::path set = folder.path() / "Data/June 2008";
    const auto whole = folder.files();
    fs::create_directories(folder.path() / "import.part/set");
    std::ofstream(folder.path() / "import.part/old.txt") << files::textOf(set);
    fs::rename(set, folder.path() / "import.part/old");
    Imported bad = made;
    bad.tables[0].text += "AAA,KAAA,Twice,,0,0,0\n";
    put(folder, bad);
    EXPECT_EQ(folder.files(), whole) << "the set that stood is back";
}

/// Cancels at once when a step begins.
class CancelAt : public Job {
public:
    explicit CancelAt(std::string step) : step_(std::move(step)) {}
    void step(std::string_view name) const override { cancelled_ = cancelled_ || name == step_; }
    [[nodiscard]] bool cancelled() const override { return cancelled_; }

private:
    std::string step_;
    mutable bool cancelled_ = false;
};

TEST(Import, ACancelledJobMakesNothing) {
    const Folder folder;
    for (const char* step : {"Reading s100", "Navigation", "Routes"}) {
        const Imported made = imported(folder, allSources(), CancelAt(step));
        EXPECT_TRUE(made.cancelled) << step;
        EXPECT_TRUE(made.tables.empty()) << step;
    }
}

/// Is cancelled when it has been asked so many times. Counts what is still begun and told behind that.
class CancelledLook : public Job {
public:
    explicit CancelledLook(int look) : look_(look) {}
    void step(std::string_view) const override { late_ += over_; }
    void progress(double share) const override {
        late_ += over_;
        outside_ += share < 0 || share > 1;
    }
    [[nodiscard]] bool cancelled() const override {
        over_ = over_ || ++asked_ >= look_;
        return over_;
    }
    [[nodiscard]] int asked() const { return asked_; }
    [[nodiscard]] int late() const { return late_; }
    [[nodiscard]] int outside() const { return outside_; }

private:
    int look_;
    mutable std::atomic<bool> over_ = false; // told once and for all
    mutable std::atomic<int> asked_ = 0, late_ = 0, outside_ = 0;
};

bool importedWith(const Folder& folder, const Job& job) {
    const Imported made = imported(folder, allSources(), job);
    gt1::Report report;
    return !made.cancelled && install(made, folder.path(), report, job);
}

/// Whenever the press comes, nothing is begun behind it and nothing has changed in the folder.
TEST(Import, ACancelAtAnyMomentLeavesAllAsItWas) {
    const Folder folder;
    const auto before = folder.files();
    const CancelledLook never(std::numeric_limits<int>::max());
    {
        const Folder whole;
        EXPECT_TRUE(importedWith(whole, never));
        EXPECT_EQ(never.outside(), 0);
        EXPECT_GT(never.asked(), 60);
    }
    for (int look = 1; look <= never.asked(); look += 3) {
        const CancelledLook job(look);
        EXPECT_FALSE(importedWith(folder, job)) << look;
        EXPECT_EQ(job.late(), 0) << look;
        EXPECT_EQ(folder.files(), before) << look;
    }
}

TEST(Import, RegionsOfTheSourcesGoBesideTheNavigationFiles) {
    const Folder folder;
    const std::vector<Source> old{textSource("a", kAirportsDat), textSource("b", kRoutesDat),
                                  textSource("c", kFixesOld), textSource("d", kNavOld)};
    EXPECT_EQ(put(folder, imported(folder, old)), std::vector<std::string>{});
    EXPECT_FALSE(folder.files().contains("Data/Regions.txt")) << "a form without regions brings none";
    const Imported made = imported(folder, allSources());
    EXPECT_EQ(put(folder, made), std::vector<std::string>{});
    const std::string first = folder.files().at("Data/Regions.txt");
    EXPECT_NE(first.find("I FIXAA 40.2 -98 K3\n"), std::string::npos) << first;
    EXPECT_NE(made.report.find("regions of them added"), std::string::npos);
    // A fix that stood without one, made by the older form, has its region now; what is new comes to the end.
    std::string more = kFixesNew;
    more.insert(more.rfind("99\n"), " 10.00000000 10.00000000 NEWFX ENRT DN 4530263\n"
                                    " 40.20000000 -98.00000000 FIXAA ENRT ED 4530263\n"
                                    " 11.00000000 11.00000000 USERX ENRT ZZ 4530263\n");
    more.replace(more.find("2107"), 4, "2108");
    auto sources = allSources();
    sources.push_back(textSource("newer", more));
    EXPECT_EQ(put(folder, imported(folder, sources)), std::vector<std::string>{});
    const std::string second = folder.files().at("Data/Regions.txt");
    EXPECT_EQ(second, first + "I NEWFX 10 10 DN\n");
}

void pack(const fs::path& folder, const std::string& command) {
    ASSERT_EQ(std::system(("cd '" + folder.string() + "' && " + command + " > /dev/null").c_str()), 0)
        << command;
}

TEST(Unpack, GzXzAndZipReadLikeThePlainFile) {
#if defined(GATEWISE_TEST_ARCHIVES)
    const Folder folder;
    const fs::path place = folder.path() / "sources";
    fs::create_directories(place);
    std::ofstream(place / "routes.dat") << kRoutesDat;
    std::ofstream(place / "planes.dat") << kPlanesDat;
    pack(place, "gzip -k routes.dat");
    pack(place, "xz -k planes.dat");
    pack(place, "python3 -m zipfile -c both.zip routes.dat planes.dat");
    std::vector<std::string> faults;
    std::map<std::string, Kind> kinds;
    for (const Source& source : unpack::openSources(place, faults)) {
        const SourceInfo info = lookAt(source);
        EXPECT_EQ(info.fault, "");
        kinds[source.name] = info.kind;
    }
    const std::map<std::string, Kind> expected{
        {"routes.dat", Kind::WorldRoutes},          {"routes.dat.gz", Kind::WorldRoutes},
        {"planes.dat", Kind::WorldPlanes},          {"planes.dat.xz", Kind::WorldPlanes},
        {"both.zip/routes.dat", Kind::WorldRoutes}, {"both.zip/planes.dat", Kind::WorldPlanes}};
    EXPECT_EQ(kinds, expected);
#else
    GTEST_SKIP() << "built without the library for packed files";
#endif
}

TEST(Unpack, ATornFileIsAFault) {
    const Folder folder;
    const fs::path place = folder.path() / "sources";
    fs::create_directories(place);
    std::string rows;
    for (int i = 0; i < 20000; ++i) rows += "X0," + std::to_string(i * 7919) + ",AAA,1,BBB,2,,0,320\n";
    std::ofstream(place / "routes.dat") << rows;
    for (const char* command : {"gzip -k routes.dat && truncate -s 5000 routes.dat.gz",
                                "xz -k routes.dat && truncate -s 5000 routes.dat.xz",
                                "python3 -m zipfile -c r.zip routes.dat && truncate -s 30 r.zip"})
        pack(place, command);
    fs::remove(place / "routes.dat");
    std::vector<std::string> faults;
    const auto sources = unpack::openSources(place, faults);
    EXPECT_EQ(sources.size(), 3U);
    Findings findings;
    readSources(sources, true, findings, faults, Job());
    EXPECT_EQ(faults.size(), 3U) << "each torn file is named, skipped or not";
}

TEST(Unpack, AMissingPathIsAFault) {
    std::vector<std::string> faults;
    EXPECT_TRUE(unpack::openSources("/no/such/place", faults).empty());
    EXPECT_EQ(faults, std::vector<std::string>{"/no/such/place: no such file or folder"});
}

} // namespace
} // namespace gatewise::importer
