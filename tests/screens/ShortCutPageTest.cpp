#include "input/ShortCuts.h"
#include "platform/Files.h"

#include <gtest/gtest.h>

#include <set>

// The page of the help comes from the table that the keys go by.

namespace gatewise {
namespace {

TEST(ShortCutPage, IsTheOneInTheHelp) {
    const auto bytes = files::readAll(GATEWISE_TEST_SOURCE_DIR "/assets/help/shortcuts.htm");
    ASSERT_TRUE(bytes);
    EXPECT_EQ(std::string(asText(*bytes)), shortCutPage());
}

TEST(ShortCutPage, NoKeyStandsTwice) {
    std::set<std::string> seen;
    for (const ShortCut& row : shortCuts()) EXPECT_TRUE(seen.insert(row.keys).second) << row.keys;
}

} // namespace
} // namespace gatewise
