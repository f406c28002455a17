#include "simulator/FlightFile.h"
#include "simulator/SituationTexts.h"

namespace gatewise {

namespace {

constexpr const char* kZero = "0.000000";
constexpr const char* kBeforeSpeed[] = {"PVelBodyAxis", "BVelBodyAxis", "HVelBodyAxis", "XVelBodyAxis",
                                        "YVelBodyAxis"};
constexpr const char* kBehindSpeed[] = {"DynPres",      "PAccBodyAxis", "BAccBodyAxis", "HAccBodyAxis",
                                        "XAccBodyAxis", "YAccBodyAxis", "ZAccBodyAxis", "PVelWorld",
                                        "BVelWorld",    "HVelWorld",    "XVelWorld",    "YVelWorld",
                                        "ZVelWorld"};
constexpr double kBodyAxisUnits = 1.83; // of the body axis for one knot

struct KeyText {
    const char* key;
    const char* value;
};

constexpr KeyText kEngine[] = {{"ThrottleLeverPct", "0.650000"},
                               {"LeftMagneto", "True"},
                               {"RightMagneto", "True"},
                               {"GeneratorSwitch", "True"},
                               {"Pct Engine RPM", "0.800000"}};
constexpr const char* kControls[] = {"Gear1", "Gear2", "Gear3", "ParkingBrake", "LeftBrake", "RightBrake"};
constexpr int kEngines = 4; // whatever the aircraft has

} // namespace

double startSpeed(const Plan& plan, int pointIndex) {
    const std::int32_t altitude = plan.at(heldPoint(pointIndex)).pointAltitude;
    const std::size_t entry = altitude < 10001 ? 0 : altitude <= 25000 ? 1 : 3;
    return plan.speedSchedule[entry];
}

std::vector<ProfileValue> autopilotKeys(const Plan& plan, int pointIndex) {
    const int i = heldPoint(pointIndex);
    return {
        {"Options", "Pause", "True"},
        {"AutoPilot", "MasterSwitch", "True"},
        {"AutoPilot", "HeadingValue", formatSingle("000", plan.at(i + 1).pointHeading)},
        {"AutoPilot", "HeadingLock", "True"},
        {"AutoPilot", "AltitudeLock", "True"},
        {"AutoPilot", "AltitudeValue", formatInteger("00000", plan.at(i).pointAltitude)},
        {"AutoPilot", "AirSpeedHold", "True"},
        {"AutoPilot", "AirSpeedValue", formatNumber("00000", startSpeed(plan, i))},
        {"AutoPilot", "AutoThrottleArm", "True"},
    };
}

std::vector<ProfileValue> inflightKeys(const Plan& plan, int pointIndex, const NumberLocale& numbers) {
    const int i = heldPoint(pointIndex);
    std::vector<ProfileValue> keys = {
        {"SimVars", "Pitch", kZero},
        {"SimVars", "Bank", kZero},
        {"SimVars", "Heading", FormatHeading(plan.at(i + 1).pointHeading, numbers)},
    };
    for (const char* key : kBeforeSpeed) keys.push_back({"SimVars", key, kZero});
    keys.push_back(
        {"SimVars", "ZVelBodyAxis", formatNumber("000", startSpeed(plan, i) * kBodyAxisUnits) + ".000000"});
    for (const char* key : kBehindSpeed) keys.push_back({"SimVars", key, kZero});
    for (int engine = 1; engine <= kEngines; ++engine) {
        for (const auto& row : kEngine) {
            keys.push_back({"Engine Parameters." + std::to_string(engine), row.key, row.value});
        }
    }
    for (const char* key : kControls) keys.push_back({"Controls", key, "000.00"});
    for (const char* key : {"BatterySwitch", "AvionicsSwitch"}) keys.push_back({"System", key, "True"});
    return keys;
}

} // namespace gatewise
