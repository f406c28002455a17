#include "simulator/FlightFile.h"

#include "platform/Files.h"
#include "platform/Text.h"
#include "simulator/SituationTexts.h"

#include <algorithm>
#include <cmath>

namespace gatewise {

namespace {

constexpr const char* kGps = "GPS_Engine";
constexpr int kTowerHeight = 150; // feet

float asFloat(std::int64_t feet) {
    return static_cast<float>(feet);
}

bool isInflight(const SituationInput& in) {
    return in.StartChoice == kStartInflight;
}

void append(std::vector<ProfileValue>& keys, std::vector<ProfileValue> more) {
    keys.insert(keys.end(), std::make_move_iterator(more.begin()), std::make_move_iterator(more.end()));
}

std::vector<ProfileValue> headKeys(const SituationInput& in) {
    const PlanAirport& from = in.plan.departureAirport;
    return {
        {"Main", "Title", in.stem},
        {"Main", "Description",
         "Gatewise Terminal Generated flight from " + std::string(from.Icao.trimmed()) + " to " +
             std::string(in.plan.destinationAirport.Icao.trimmed())},
        {"Tower", "Latitude", FormatLatitude(from.Latitude, in.numbers)},
        {"Tower", "Longitude", FormatLongitude(from.Longitude, in.numbers)},
        {"Tower", "Altitude",
         FormatAltitude(asFloat(std::int64_t{from.Elevation} + kTowerHeight), in.numbers)},
    };
}

/// The aircraft and, unless it is to stay where it is, its position.
std::vector<ProfileValue> planeKeys(const SituationInput& in) {
    std::vector<ProfileValue> keys = {{"Plane", "Aircraft", in.aircraft == kNoAircraft ? "" : in.aircraft}};
    if (in.StartChoice == kNoPosition) return keys;
    const std::int32_t altitude = isInflight(in) ? in.plan.at(heldPoint(in.pointIndex)).pointAltitude
                                                 : in.plan.departureAirport.Elevation;
    keys.push_back({"Plane", "Latitude", FormatLatitude(in.start.StartLat, in.numbers)});
    keys.push_back({"Plane", "Longitude", FormatLongitude(in.start.StartLon, in.numbers)});
    keys.push_back({"Plane", "Altitude", FormatAltitude(asFloat(altitude), in.numbers)});
    keys.push_back({"Plane", "Heading", FormatHeading(in.start.StartHdg, in.numbers)});
    return keys;
}

std::vector<ProfileValue> clockKeys(const SituationInput& in) {
    const StartTime time = startTime(in);
    return {{"DateTimeSeason", "Hours", formatInteger("00", time.hours)},
            {"DateTimeSeason", "Minutes", formatInteger("00", time.minutes)}};
}

std::vector<ProfileValue> gpsKeys(const SituationInput& in) {
    // The position is the resolved one even where the aircraft itself is not placed.
    const std::string position = FormatLatitude(in.start.StartLat, in.numbers) + ", " +
                                 FormatLongitude(in.start.StartLon, in.numbers) + ", " +
                                 FormatAltitude(asFloat(in.plan.departureAirport.Elevation), in.numbers);
    const WaypointSlots slots = waypointSlots(in.plan, in.pointIndex);
    std::vector<ProfileValue> keys = {
        {kGps, "Filename", in.stem}, {kGps, "Position", position},
        {kGps, "Time", "0"},         {kGps, "TimeWP", "0"},
        {kGps, "ArriveTime", "0"},   {kGps, "CountWP", std::to_string(in.plan.planLast)},
        {kGps, "NextWP", "1"},       {kGps, "PlaneStarted", "False"},
    };
    append(keys, slots.keys);
    keys.push_back({kGps, "CountWP", std::to_string(slots.keys.size())});
    if (isInflight(in)) {
        keys.push_back({kGps, "NextWP", std::to_string(slots.next)});
        keys.push_back({"SimVars", "SimOnGround", "False"});
    }
    keys.push_back({kGps, "CountFP", "1"});
    keys.push_back({kGps, "FP0", "00000000,00000000,00000000,00000000,00000000,00000000,00000000,00000000"});
    return keys;
}

constexpr const char* kTanks[] = {"Center",   "LeftMain", "RightMain", "LeftAux",    "RightAux",  "LeftTip",
                                  "RightTip", "Center 2", "Center 3",  "External 1", "External 2"};

std::vector<ProfileValue> fuelKeys(const std::string& fuelPCT) {
    std::vector<ProfileValue> keys = {{"Fuel", "TankSelector", "All"}};
    for (const char* tank : kTanks) keys.push_back({"Fuel", tank, fuelPCT + ".00"});
    return keys;
}

/// The first two and the last two characters of a time as digits.
StartTime clockDigits(const std::string& text) {
    return {static_cast<int>(leadingNumber(text.substr(0, 2))),
            static_cast<int>(leadingNumber(text.substr(text.size() - 2)))};
}

} // namespace

StartTime startTime(const SituationInput& in) {
    StartTime time;
    if (isInflight(in)) {
        const double hours = in.plan.at(heldPoint(in.pointIndex)).pointMinutes / 60.0;
        const double whole = std::trunc(hours);
        // Clock digits are added, not times: 1250 and 20 minutes are 1270.
        const double digits = whole * 100 + (hours - whole) * 60 + in.CurrentFlight.DepartureTime;
        time = clockDigits(formatNumber("0000", digits));
    } else {
        time = clockDigits(formatInteger("0000", in.CurrentFlight.DepartureTime));
    }
    time.minutes -= in.PreFlight;
    if (time.minutes < 0) {
        time.minutes += 60;
        if (--time.hours < 0) time.hours += 24;
    }
    return time;
}

WaypointSlots waypointSlots(const Plan& plan, int pointIndex) {
    WaypointSlots out;
    const PlanPoint& start = plan.at(heldPoint(pointIndex));
    const int last = std::min<int>(plan.planLast, kPlanPoints - 1);
    for (int i = 0; i <= last; ++i) {
        const PlanPoint& point = plan.at(i);
        if (point.computed()) continue;
        const auto counter = static_cast<int>(out.keys.size());
        if (point.pointLatitude == start.pointLatitude && point.pointLongitude == start.pointLongitude &&
            point.pointName == start.pointName) {
            out.next = counter + 1;
        }
        out.keys.push_back({kGps, "WpInfo" + std::to_string(counter), "0, 0, 0, 0, 0, 0.0, 0.0, 0.0"});
    }
    return out;
}

std::vector<ProfileValue> situationKeys(const SituationInput& in) {
    std::vector<ProfileValue> keys = headKeys(in);
    append(keys, planeKeys(in));
    append(keys, clockKeys(in));
    append(keys, gpsKeys(in));
    if (isInflight(in)) {
        append(keys, autopilotKeys(in.plan, in.pointIndex));
        append(keys, inflightKeys(in.plan, in.pointIndex, in.numbers));
    }
    append(keys, fuelKeys(in.fuelPCT));
    return keys;
}

std::error_code WriteSituationFile(std::string_view templateFile, std::string_view target,
                                   const std::vector<ProfileValue>& keys) {
    std::error_code error;
    auto bytes = files::readAll(templateFile, &error);
    if (!bytes) return error;
    return files::replace(target, contentWith(std::move(*bytes), keys));
}

std::error_code SetDefaultFlight(std::string_view FsPath, std::string_view stem) {
    return WriteValue("USERINTERFACE", "SITUATION", "flights\\fs2kflts\\" + std::string(stem),
                      std::string(FsPath) + "\\fs2002.cfg");
}

} // namespace gatewise
