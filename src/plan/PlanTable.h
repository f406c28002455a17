#pragma once

#include "plan/NavRecords.h"

#include <array>
#include <cstdint>
#include <string>
#include <vector>

// The live flight plan: one table of points and its summary. Everything that shows, prints, edits or exports
// a plan reads this; only the plan engine writes it.

namespace gatewise {

/// Points a plan can hold, 0 to kPlanPoints - 1.
inline constexpr int kPlanPoints = 200;

/// What a point is.
enum class PointKind { Vor, Ndb, Intersection, TopOfClimb, TopOfDescent, StepClimb, StepDescent, Other };

struct PlanPoint {
    FixedText<7> pointId; // key of the fix; "*TOC*", "*TOD*", "STEPC", "STEPD" for computed points
    FixedText<5> pointName;
    FixedText<36> pointDescription;
    float pointLatitude = 0;  // degrees, north positive
    float pointLongitude = 0; // degrees, east positive
    FixedText<2> pointType; // "V ", "N ", "I ", "HV", "HN", "HI", "TC", "TD", "SU", "SD", blank for airports
    FixedText<6> pointFrequency;
    FixedText<5> pointAirway;
    std::int32_t pointAltitude = 0; // feet
    float pointHeading = 0;         // true course of the leg that arrives here, degrees
    float pointLegDistance = 0;     // nautical miles of that leg
    std::int32_t pointMinutes = 0;  // from departure
    float pointTotalDistance = 0;   // nautical miles from departure

    static constexpr void fields(auto& r, auto&& f) {
        f("pointId", r.pointId), f("pointName", r.pointName), f("pointDescription", r.pointDescription);
        f("pointLatitude", r.pointLatitude), f("pointLongitude", r.pointLongitude),
            f("pointType", r.pointType);
        f("pointFrequency", r.pointFrequency), f("pointAirway", r.pointAirway);
        f("pointAltitude", r.pointAltitude), f("pointHeading", r.pointHeading);
        f("pointLegDistance", r.pointLegDistance), f("pointMinutes", r.pointMinutes);
        f("pointTotalDistance", r.pointTotalDistance);
    }

    /// By both characters of pointType; a fix of the high-altitude file is what stands on its position. Other
    /// for airports and for a type that no file of navigation data has.
    [[nodiscard]] PointKind kind() const;

    /// A fix of the high-altitude file: a VOR, an NDB or an intersection of an upper airway.
    [[nodiscard]] bool highAltitude() const;

    /// Top of climb or descent, step climb or descent: made by the engine, not filed.
    [[nodiscard]] bool computed() const;
};

/// An airport as the plan knows it.
struct PlanAirport {
    FixedText<4> Icao;
    FixedText<36> Name;
    float Latitude = 0;         // degrees, north positive
    float Longitude = 0;        // degrees, east positive
    std::int32_t Elevation = 0; // feet
    std::int32_t RunwayCount = 0;
    std::int32_t RunwayOffset = 0;
    std::vector<RunwayRecord> runways;
    RadioRecord radio;
};

struct Plan {
    std::array<PlanPoint, kPlanPoints> points;
    std::int16_t planLast = 0; // index of the destination
    float totalDistance = 0;   // nautical miles
    FixedText<5> totalTime;    // hh:mm
    float directCourse = 0;    // degrees, above -180, up to 180
    FixedText<3> flightRules = "IFR";
    std::int32_t cruiseAltitude = 0; // feet, as the two below
    std::int32_t peakAltitude = 0;
    std::int32_t ceilingAltitude = 0;
    float climbRate = 0;   // feet a minute
    float descentRate = 0; // feet a minute, negative or 0, but for what the hand-off to ProFlight leaves
    float climbDivisor = 1.2F;
    float descentDivisor = 1.2F;
    std::array<double, 7> speedSchedule{}; // knots, from climb-out over cruise to approach
    std::string routeString;               // at most 1,000 characters
    PlanAirport departureAirport;
    PlanAirport destinationAirport;
    PlanAirport alternateAirport;

    [[nodiscard]] PlanPoint& at(int i) { return points[static_cast<std::size_t>(i)]; }
    [[nodiscard]] const PlanPoint& at(int i) const { return points[static_cast<std::size_t>(i)]; }
};

} // namespace gatewise
