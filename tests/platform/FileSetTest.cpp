#include "platform/FileSet.h"

#include "support/TempFolder.h"

#include <fstream>
#include <gtest/gtest.h>

namespace gatewise {
namespace {

namespace fs = std::filesystem;

class FileSet : public testing::Test {
protected:
    void SetUp() override {
        folder.write("/index.gt1", "old index");
        folder.write("/routes.gt1", "old routes");
        folder.write("/LogBook.gt1", "flights");
    }
    static std::vector<files::NamedBytes> fresh() {
        const auto named = [](const char* name, std::string_view text) {
            return files::NamedBytes{name, Bytes(text.begin(), text.end())};
        };
        return {named("index.gt1", "new index"), named("routes.gt1", "new routes"),
                named("APT.gt1", "new runways")};
    }
    [[nodiscard]] files::SetFailure replace() const { return files::replaceSet(folder.path(), fresh()); }
    [[nodiscard]] std::string state() const {
        return folder.read("/index.gt1") + ", " + folder.read("/routes.gt1") + ", " + folder.read("/APT.gt1");
    }
    [[nodiscard]] long files() const { return std::distance(fs::directory_iterator(folder.path()), {}); }

    test::TempFolder folder;
    const std::string kOld = "old index, old routes, (no such file)";
    const std::string kNew = "new index, new routes, new runways";
};

TEST_F(FileSet, IsReplacedAndLeavesNothingBehind) {
    EXPECT_FALSE(replace().error);
    EXPECT_EQ(state(), kNew);
    EXPECT_EQ(files(), 4);
    EXPECT_EQ(folder.read("/LogBook.gt1"), "flights");
}

TEST_F(FileSet, AFileThatCannotBeWrittenLeavesTheOldSet) {
    fs::create_directories(folder.path("/routes.gt1.part/taken"));
    const auto failure = replace();
    EXPECT_TRUE(failure.error);
    EXPECT_EQ(failure.name, "routes.gt1");
    EXPECT_EQ(state(), kOld);
}

TEST_F(FileSet, AFileThatCannotBeExchangedBringsTheOldSetBack) {
    // The new routes can neither be put aside nor replaced: a folder with something in it is in the way.
    fs::create_directories(folder.path("/APT.gt1/taken"));
    const auto failure = replace();
    if (!failure.error) { // a system that puts folders aside as well
        EXPECT_EQ(state(), kNew);
        return;
    }
    EXPECT_EQ(folder.read("/index.gt1"), "old index");
    EXPECT_EQ(folder.read("/routes.gt1"), "old routes");
}

TEST_F(FileSet, ARunThatWasCutShortIsFinished) {
    // As a run leaves it that ended between two exchanges.
    folder.write("/set.journal", "index.gt1\nroutes.gt1\nAPT.gt1\n");
    folder.write("/index.gt1", "new index");
    folder.write("/index.gt1.old~", "old index");
    fs::rename(folder.path("/routes.gt1"), folder.path("/routes.gt1.old~"));
    folder.write("/routes.gt1.part", "new routes");
    folder.write("/APT.gt1.part", "new runways");
    EXPECT_FALSE(files::finishSet(folder.path()).error);
    EXPECT_EQ(state(), kNew);
    EXPECT_EQ(files(), 4);
}

TEST_F(FileSet, WhatWasNeverSettledIsNotTaken) {
    folder.write("/index.gt1.part", "half of it");
    EXPECT_FALSE(files::finishSet(folder.path()).error);
    EXPECT_EQ(state(), kOld);
    EXPECT_FALSE(replace().error);
    EXPECT_EQ(state(), kNew);
}

TEST_F(FileSet, AJournalNamesNothingOutsideItsFolder) {
    folder.write("/victim.part", "evil");
    folder.write("/Data/set.journal", "../victim\n..\\victim\nCON\nno end");
    EXPECT_FALSE(files::finishSet(folder.path("/Data")).error);
    EXPECT_EQ(folder.read("/victim"), "(no such file)");
    EXPECT_FALSE(files::fileExists(folder.path("/Data/set.journal")));
}

} // namespace
} // namespace gatewise
