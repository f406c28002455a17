#include "platform/Proposals.h"

#include "platform/Delivered.h"
#include "support/TempFolder.h"

namespace gatewise {
namespace {

class Proposals : public testing::Test {
protected:
    Proposals() {
        for (const char* name : {"home/Papers", "plans", "app", "delivered/Images"})
            std::filesystem::create_directories(folder / name);
    }
    ~Proposals() override { files::setDelivered(folder.path("/app"), folder / "app"); }
    /// The program is installed: what came with it lies elsewhere.
    void install() { files::setDelivered(folder.path("/app"), folder / "delivered"); }

    [[nodiscard]] std::string start(const std::string& path) const {
        return proposalFor(path, folder.path("/app"), person);
    }

    const test::TempFolder folder;
    UserFolders person{folder.path("/home"), folder.path("/home/Papers"), {}};
};

TEST_F(Proposals, StandWhereTheirFolderIsThere) {
    EXPECT_EQ(start(folder.path("/plans/a.pln")), folder.path("/plans/a.pln"));
    EXPECT_EQ(start(folder.path("/plans\\a.pln")), folder.path("/plans\\a.pln"));
    EXPECT_EQ(start(folder.path("/app\\LogBook.csv")), folder.path("/app\\LogBook.csv"));
    EXPECT_EQ(start("//a.pln"), "//a.pln") << "the root";
}

TEST_F(Proposals, WithoutTheirFolderBeginInTheDocuments) {
    EXPECT_EQ(start(folder.path("/gone/a.pln")), folder.path("/home/Papers/a.pln"));
    EXPECT_EQ(start(folder.path("/gone\\a.pln")), folder.path("/home/Papers/a.pln"));
    EXPECT_EQ(start("a.pln"), folder.path("/home/Papers/a.pln"));
    EXPECT_EQ(start("/a.pln"), folder.path("/home/Papers/a.pln")) << "a name behind no folder";
    EXPECT_EQ(start(""), folder.path("/home/Papers/"));
}

TEST_F(Proposals, WithoutDocumentsBeginAtHomeAndWithoutEitherStay) {
    std::filesystem::remove(folder / "home/Papers");
    EXPECT_EQ(start(folder.path("/gone/a.pln")), folder.path("/home/a.pln"));
    EXPECT_EQ(start("a.pln"), "a.pln") << "nothing was proposed";
    person.documents.clear();
    EXPECT_EQ(start(folder.path("/gone/a.pln")), folder.path("/home/a.pln"));
    person = {};
    EXPECT_EQ(start(folder.path("/gone/a.pln")), folder.path("/gone/a.pln"));
    EXPECT_EQ(start(""), "");
}

TEST_F(Proposals, TheFolderOfAnInstalledProgramGivesWayToTheDocuments) {
    install();
    EXPECT_EQ(start(folder.path("/app\\LogBook.csv")), folder.path("/home/Papers/LogBook.csv"));
    EXPECT_EQ(start(folder.path("/plans/a.pln")), folder.path("/plans/a.pln"));
    person.documents.clear();
    EXPECT_EQ(start(folder.path("/app\\LogBook.csv")), folder.path("/app\\LogBook.csv"));
}

TEST_F(Proposals, AFileInThePlaceOfTheFolderIsNone) {
    folder.write("/file", "x");
    EXPECT_EQ(start(folder.path("/file/a.pln")), folder.path("/home/Papers/a.pln"));
}

} // namespace
} // namespace gatewise
