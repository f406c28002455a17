#include "platform/Native.h"

#include <chrono>
#include <random>

// What needs nothing but the standard library.

namespace gatewise::native {

namespace {

class SystemRandom : public Random {
public:
    SystemRandom() { SystemRandom::reseed(); }
    double draw() override { return static_cast<double>(generator_()) / 4294967296.0; }
    void reseed() override {
        const auto now = std::chrono::system_clock::now().time_since_epoch().count();
        generator_.seed(static_cast<std::uint32_t>(now ^ (now >> 32)));
    }

private:
    std::mt19937 generator_;
};

} // namespace

std::unique_ptr<Random> systemRandom() {
    return std::make_unique<SystemRandom>();
}

} // namespace gatewise::native
