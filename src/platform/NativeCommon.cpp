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

std::string commandLineWord(const std::string& parameter) {
    if (parameter.find_first_of(" \t\"") == std::string::npos) return parameter;
    std::string out = "\"";
    std::size_t backslashes = 0; // they count twice where a quote follows
    for (const char c : parameter) {
        if (c == '"') out.append(backslashes + 1, '\\');
        backslashes = c == '\\' ? backslashes + 1 : 0;
        out += c;
    }
    return out.append(backslashes, '\\') + "\"";
}

} // namespace gatewise::native
