#include "ExportFlights.h"

#include "export/ExportFSNav.h"

#include <gtest/gtest.h>

namespace gatewise::test {

namespace {

const PlanAirport kFrom = airportOf("KLAX", "Los Angeles", 33.9425F, -118.408F, 126);
const PlanAirport kTo = airportOf("KJFK", "Kennedy", 40.64F, -73.78F, 13);

PointRow point(const char* type) {
    return {type, "ABC", "ABC", "ALPHA", 12.5F, -7.25F, "", "", 9000, 71};
}

Bytes written(const std::vector<PointRow>& rows, ByteView old = {}, const std::string& stem = "Stem") {
    return fsnavPlan(planOf(kFrom, kTo, rows, 93.5F), {stem, false}, old);
}

std::int32_t number(const Bytes& bytes, std::size_t at) {
    return numberAt<std::int32_t>(bytes, at).value_or(-1);
}
int kind(const Bytes& bytes, std::size_t i) {
    return numberAt<std::int16_t>(bytes, 320 + 10 * i).value_or(-1);
}

TEST(FSNav, WithoutFixesTheFileHas340BytesAndTwoRecords) {
    const Bytes bytes = written({});
    EXPECT_EQ(bytes.size(), 340U);
    EXPECT_EQ(number(bytes, 0), 340);
    EXPECT_EQ(number(bytes, 284), 2);
}

TEST(FSNav, ComputedPointsAreNeitherWrittenNorCounted) {
    EXPECT_EQ(written({point("TC"), point("SU"), point("SD"), point("TD")}), written({}));
}

TEST(FSNav, AStemOfMoreThan256CharactersIsCut) {
    const Bytes bytes = written({}, {}, std::string(255, 'a') + "bcd");
    EXPECT_EQ(bytes[16 + 254], 'a');
    EXPECT_EQ(bytes[16 + 255], 'b');
    EXPECT_EQ(number(bytes, 272), 0);
}

TEST(FSNav, AShorterStemIsPaddedWithBlanks) {
    const Bytes bytes = written({});
    EXPECT_EQ(std::string(bytes.begin() + 16, bytes.begin() + 272), "Stem" + std::string(252, ' '));
}

TEST(FSNav, ALongerOldFileKeepsItsTail) {
    const Bytes old(400, 0xEE);
    const Bytes bytes = written({point("V ")}, old);
    ASSERT_EQ(bytes.size(), 400U);
    EXPECT_EQ(number(bytes, 0), 350);
    EXPECT_EQ(Bytes(bytes.begin(), bytes.begin() + 350), written({point("V ")}));
    EXPECT_EQ(Bytes(bytes.begin() + 350, bytes.end()), Bytes(50, 0xEE));
    EXPECT_EQ(written({point("V ")}, Bytes(350, 0xEE)).size(), 350U);
}

TEST(FSNav, ATypeOfNoKindKeepsTheKindBefore) {
    const Bytes bytes = written({point("  "), point("I "), point("  "), point("HV"), point("HN"), point("HI"),
                                 point("V "), point("N "), point("??")});
    const int kinds[] = {64, 64, 4, 4, 16, 8, 4, 16, 8, 8, 64};
    ASSERT_EQ(number(bytes, 284), 11);
    for (std::size_t i = 0; i < std::size(kinds); ++i) EXPECT_EQ(kind(bytes, i), kinds[i]) << i;
}

TEST(FSNav, TheHeaderStandsAtItsOffsets) {
    const Bytes bytes = written({point("V ")});
    EXPECT_EQ(bytes[4], 'F');
    EXPECT_EQ(bytes[5], 'P');
    EXPECT_EQ(numberAt<std::int16_t>(bytes, 6), 105);
    EXPECT_EQ(number(bytes, 280), 320);
    for (const std::size_t at : {8U, 12U, 272U, 276U, 288U, 316U}) EXPECT_EQ(number(bytes, at), 0) << at;
    EXPECT_EQ(numberAt<float>(bytes, 332), 12.5F);
    EXPECT_EQ(numberAt<float>(bytes, 336), -7.25F);
}

} // namespace

} // namespace gatewise::test
