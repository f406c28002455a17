#include <gtest/gtest.h>

namespace gatewise {
namespace {

struct Pair {
    double first, second;
};

[[gnu::noinline]] void narrowBoth(Pair& pair, double factor) {
    pair.first = static_cast<double>(static_cast<float>(pair.first * factor));
    pair.second = static_cast<double>(static_cast<float>(pair.second * factor));
}

// Values that the plan stores to 32 bits must be rounded to 32 bits, whatever the optimiser makes of
// neighbours.
TEST(Rounding, NeighboursStoredTo32BitsAreRounded) {
    Pair pair{800, 600};
    narrowBoth(pair, static_cast<double>(96.0F / 120.0F));
    EXPECT_EQ(pair.first, 640.0);
    EXPECT_EQ(pair.second, 480.0);
}

} // namespace
} // namespace gatewise
