#include "sound/Device.h"

#include <gtest/gtest.h>

namespace gatewise::sound_test {
namespace {

TEST(SoundSettings, TakeBothEndsOfTheirRanges) {
    SoundSettings settings;
    for (const std::int32_t volume : {-10000, 0}) {
        EXPECT_TRUE(settings.setVolume(volume));
        EXPECT_EQ(settings.volume, volume);
    }
    for (const std::int32_t pan : {-10000, 10000}) {
        EXPECT_TRUE(settings.setPan(pan));
        EXPECT_EQ(settings.pan, pan);
    }
    for (const std::int32_t frequency : {100, 100000}) {
        EXPECT_TRUE(settings.setFrequency(frequency));
        EXPECT_EQ(settings.frequency, frequency);
    }
}

TEST(SoundSettings, StayWhereAValueLiesOutside) {
    SoundSettings settings;
    for (const std::int32_t volume : {-10001, 1}) EXPECT_FALSE(settings.setVolume(volume));
    for (const std::int32_t pan : {-10001, 10001}) EXPECT_FALSE(settings.setPan(pan));
    for (const std::int32_t frequency : {99, 100001, 0, -8000})
        EXPECT_FALSE(settings.setFrequency(frequency));
    EXPECT_EQ(settings.volume, 0);
    EXPECT_EQ(settings.pan, 0);
    EXPECT_EQ(settings.frequency, 8000);
}

} // namespace
} // namespace gatewise::sound_test
