#include "pages/FolderLists.h"
#include "support/TempFolder.h"

#include <algorithm>
#include <gtest/gtest.h>

namespace gatewise::test {
namespace {

TEST(MountedVolumes, AreLookedForAsDeepAsSystemsMountThem) {
    const TempFolder folder;
    for (const char* place :
         {"media/ann/STICK/files", "run/media/bob/DISC/files", "mnt/usb/files", "Volumes/Data/files"})
        std::filesystem::create_directories(folder / place);
    folder.write("mnt/readme", "no volume");
    auto found = mountedVolumes(folder.path());
    std::sort(found.begin(), found.end());
    std::vector<std::string> expected;
    for (const char* volume : {"/Volumes/Data", "/media/ann", "/media/ann/STICK", "/mnt/usb",
                               "/run/media/bob", "/run/media/bob/DISC"})
        expected.push_back(folder.path() + volume);
    EXPECT_EQ(found, expected);
}

} // namespace
} // namespace gatewise::test
