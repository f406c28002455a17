#include "import/Flight.h"

#include <cmath>

namespace gatewise::importer {

namespace {

constexpr int kBreakfast = 1;
constexpr int kLunch = 2;
constexpr int kDinner = 4;
constexpr int kSnack = 8;
constexpr int kBeverage = 16;

/// The meal of a time of day, in minutes.
int mealAt(int time) {
    const int hour = time / 60 % 24;
    if (hour >= 5 && hour < 10) return kBreakfast;
    if (hour >= 10 && hour < 15) return kLunch;
    return hour >= 16 && hour < 22 ? kDinner : kSnack;
}

} // namespace

int blockMinutes(const AircraftType& type, double miles) {
    const int aside = type.engine == 'J' ? 30 : 22; // taxi, climb, approach
    const int minutes =
        static_cast<int>(std::lround(miles * 60 / (type.cruise > 0 ? type.cruise : 400))) + aside;
    return (minutes + 4) / 5 * 5;
}

void serve(Flight& flight, const AircraftType& type, int minutes) {
    if (type.seats < 60 || type.engine != 'J')
        flight.classCode = 'F';
    else if (minutes >= 420)
        flight.classCode = 'A';
    else
        flight.classCode = type.seats >= 200 || minutes >= 300 ? 'G' : type.seats >= 110 ? 'C' : 'F';
    if (minutes < 40 || type.seats < 20)
        flight.meals = 0;
    else if (minutes < 75)
        flight.meals = kBeverage;
    else if (minutes < 150)
        flight.meals = kSnack | kBeverage;
    else
        flight.meals = mealAt(flight.departure + 60) | kBeverage;
    if (minutes >= 420) flight.meals |= mealAt(flight.departure + minutes - 120); // by the clock they left by
}

} // namespace gatewise::importer
