#pragma once

#include "plan/Performance.h"

#include <cstdint>

// The simulated flight: one second at a time. Whoever flies says which band and for how long.

namespace gatewise {

class FlightSteps {
public:
    FlightSteps(double altitudeFeet, double distanceMiles)
        : altitude(altitudeFeet), distance(distanceMiles) {}

    double altitude; // feet
    double distance; // nautical miles
    double minutes = 0;

    /// Starts another try of the same search.
    void restart(double altitudeFeet, double distanceMiles) {
        altitude = altitudeFeet;
        distance = distanceMiles;
    }

    /// Flies a band at `speed`, entered as if at `entrySpeed`, as long as `goesOn()` says; the altitude moves
    /// by `rate` feet a minute. False when the flight lasts so long that it will never get there.
    template<class Condition>
    [[nodiscard]] bool fly(double rate, double speed, double entrySpeed, Condition goesOn) {
        double before = trueAirspeed(altitude, entrySpeed);
        while (goesOn()) {
            if (++seconds_ > kLongest) return false;
            altitude += rate / 60;
            const double now = trueAirspeed(altitude, speed);
            distance += (before + now) / 7200;
            before = now;
            minutes += 1.0 / 60;
        }
        return true;
    }
    template<class Condition> [[nodiscard]] bool fly(double rate, double speed, Condition goesOn) {
        return fly(rate, speed, speed, goesOn);
    }

private:
    // Two months in the air, all tries of a level search together.
    static constexpr std::int64_t kLongest = 5'000'000;
    std::int64_t seconds_ = 0;
};

} // namespace gatewise
