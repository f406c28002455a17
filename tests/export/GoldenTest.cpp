#include "ExportAll.h"

#include "platform/Files.h"

#include <gtest/gtest.h>

namespace gatewise::test {

namespace {

std::string golden(const std::string& name) {
    const auto bytes = files::readAll(std::string(GATEWISE_TEST_SOURCE_DIR) + "/tests/export/golden/" + name);
    return bytes ? std::string(bytes->begin(), bytes->end()) : "(no such file)";
}

class Golden : public testing::TestWithParam<std::string> {};

TEST_P(Golden, EveryFileIsThatOfTheReview) {
    const auto files = exportAll(exportCase(GetParam()), {});
    ASSERT_GE(files.size(), 6U);
    for (const auto& file : files) EXPECT_EQ(file.bytes, golden(file.name)) << file.name;
}

TEST_P(Golden, ALocaleWithCommaWritesTheSameBytes) {
    const NumberLocale comma{",", ","};
    ASSERT_EQ(comma.plainSingle(0.5F), "0,5");
    for (const auto& file : exportAll(exportCase(GetParam()), comma)) {
        EXPECT_EQ(file.bytes, golden(file.name)) << file.name;
    }
}

INSTANTIATE_TEST_SUITE_P(Flights, Golden,
                         testing::Values("west", "south", "andes", "direct", "long29", "long30"),
                         [](const auto& flight) { return flight.param; });

} // namespace

} // namespace gatewise::test
