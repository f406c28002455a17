#include "AllFormats.h"
#include "Plans.h"

#include <bit>
#include <gtest/gtest.h>
#include <random>

// Plans whose texts and numbers are any bytes: what is written stays whole, and in one line what is one.

namespace gatewise::test {
namespace {

using programs::Format;
using programs::formats;

class Bytes {
public:
    explicit Bytes(unsigned seed) : draw_(seed) {}

    template<class T> void into(T& field) {
        if constexpr (requires { field.view(); }) {
            std::string text;
            for (std::size_t i = 0; i < T::width; ++i) text += letter();
            field = text;
        } else if constexpr (std::is_same_v<T, float>) {
            field = number();
        } else {
            field = static_cast<T>(draw_());
        }
    }
    std::string text(std::size_t length) {
        std::string out;
        for (std::size_t i = 0; i < length; ++i) out += letter();
        return out;
    }
    unsigned operator()() { return static_cast<unsigned>(draw_()); }

private:
    char letter() {
        constexpr std::string_view kNasty = "<>&\"'\\]\n\r\t ;-/.\0A1";
        return draw_() % 3 == 0 ? static_cast<char>(draw_()) : kNasty[draw_() % kNasty.size()];
    }
    float number() {
        switch (draw_() % 4) {
        case 0:
            return std::bit_cast<float>(static_cast<std::uint32_t>(draw_()));
        case 1:
            return draw_() % 2 == 0 ? 180.0F : -180.0F;
        default:
            return static_cast<float>(static_cast<int>(draw_() % 18000) - 9000) / 100;
        }
    }

    std::mt19937 draw_;
};

constexpr const char* kTypes[] = {"V ", "N ", "I ", "HV", "HN", "HI", "TC", "TD", "SU", "SD", "  "};

Plan hostilePlan(Bytes& bytes) {
    Plan plan;
    const auto fill = [&](const char*, auto& field) { bytes.into(field); };
    plan.planLast = static_cast<std::int16_t>(1 + bytes() % 40);
    for (int i = 0; i <= plan.planLast; ++i) {
        PlanPoint::fields(plan.at(i), fill);
        plan.at(i).pointType = kTypes[bytes() % std::size(kTypes)];
    }
    for (PlanAirport* airport : {&plan.departureAirport, &plan.destinationAirport}) {
        bytes.into(airport->Icao), bytes.into(airport->Name), bytes.into(airport->Latitude);
        bytes.into(airport->Longitude), bytes.into(airport->Elevation);
    }
    bytes.into(plan.peakAltitude);
    plan.speedSchedule.fill(std::bit_cast<double>((std::uint64_t{bytes()} << 32U) | bytes()));
    return plan;
}

TEST(Hostile, PlansOfAnyBytesAreWhole) {
    for (unsigned seed = 1; seed <= 400; ++seed) {
        Bytes bytes(seed);
        const Plan plan = hostilePlan(bytes);
        for (const bool computed : {false, true}) {
            const auto route = programs::routeOf(plan, bytes.text(60), testMoment(), computed);
            for (const Format& format : formats()) {
                if (computed && !format.takesComputed) continue;
                ASSERT_EQ(faultsOf(format, format.write(route), route), "") << "seed " << seed;
            }
        }
    }
}

} // namespace
} // namespace gatewise::test
