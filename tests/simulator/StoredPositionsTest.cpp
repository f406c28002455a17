#include "FlightWorld.h"
#include "support/TempFolder.h"

#include <gtest/gtest.h>

namespace gatewise {
namespace {

using namespace test;

Bytes fileOf(int records) {
    Bytes bytes;
    for (int i = 0; i < records; ++i) {
        appendRecord(bytes, stored("G" + std::to_string(i), "Gate " + std::to_string(i),
                                   static_cast<float>(i), static_cast<float>(-i), 90));
    }
    return bytes;
}

TEST(StoredPositions, ARecordByItsOffsets) {
    Bytes bytes(52, ' ');
    const std::string name = "Gate A1";
    bytes[0] = 'A';
    std::copy(name.begin(), name.end(), bytes.begin() + 4);
    // 1.5, -2.0 and 180.0 as little-endian 32-bit floats
    const Bytes numbers = {0, 0, 0xC0, 0x3F, 0, 0, 0, 0xC0, 0, 0, 0x34, 0x43};
    std::copy(numbers.begin(), numbers.end(), bytes.begin() + 40);
    const StoredPosition slot = storedPositionsOf(bytes)[0];
    EXPECT_EQ(slot.identifier, "A   ");
    EXPECT_EQ(slot.name.trimmed(), "Gate A1");
    EXPECT_EQ(slot.latitude, 1.5F);
    EXPECT_EQ(slot.longitude, -2.0F);
    EXPECT_EQ(slot.heading, 180.0F);
}

TEST(StoredPositions, SlotsThatTheFileDoesNotHoldAreEmpty) {
    const StoredPositions slots = storedPositionsOf(fileOf(2));
    EXPECT_FALSE(slots[1].empty());
    EXPECT_TRUE(slots[2].empty());
    EXPECT_TRUE(slots[2].name.trimmed().empty());
    EXPECT_EQ(slots[2].latitude, 0);
    EXPECT_TRUE(slots[99].empty());
}

TEST(StoredPositions, ARecordThatIsNotWholeIsEmpty) {
    Bytes bytes = fileOf(2);
    bytes.pop_back();
    const StoredPositions slots = storedPositionsOf(bytes);
    EXPECT_FALSE(slots[0].empty());
    EXPECT_TRUE(slots[1].empty());
}

TEST(StoredPositions, AHundredAtMost) {
    const StoredPositions slots = storedPositionsOf(fileOf(120));
    EXPECT_EQ(slots[99].name.trimmed(), "Gate 99");
}

TEST(StoredPositions, OfTheAirportBelowTheSimulator) {
    const TempFolder folder;
    folder.write("/SnapIt/Positions/ABC.pf2", fileOf(1));
    EXPECT_FALSE(loadStoredPositions(folder.path(), "ABC ")[0].empty());
    EXPECT_TRUE(loadStoredPositions(folder.path(), "KATL")[0].empty());
}

TEST(StoredPositions, BothSpellingsOfTheFolder) {
    const TempFolder folder;
    folder.write("/SnapIT/Positions/KATL.pf2", fileOf(1));
    EXPECT_FALSE(loadStoredPositions(folder.path(), "KATL")[0].empty());
    // Where letter case counts both can be there; the airport's file may lie in either.
    std::filesystem::create_directories(folder.path("/SnapIt/Positions"));
    EXPECT_FALSE(loadStoredPositions(folder.path(), "KATL")[0].empty());
    folder.write("/SnapIt/Positions/KBOS.pf2", fileOf(1));
    EXPECT_FALSE(loadStoredPositions(folder.path(), "KBOS")[0].empty());
}

TEST(StoredPositions, AFolderInPlaceOfTheFileIsNoFile) {
    const TempFolder folder;
    std::filesystem::create_directories(folder.path("/SnapIt/Positions/KATL.pf2"));
    EXPECT_TRUE(loadStoredPositions(folder.path(), "KATL")[0].empty());
    EXPECT_TRUE(loadStoredPositions("", "")[0].empty());
}

} // namespace
} // namespace gatewise
