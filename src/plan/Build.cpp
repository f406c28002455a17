#include "plan/Build.h"

#include "plan/FlightPlanUpdate.h"
#include "plan/Geometry.h"
#include "plan/StepPoints.h"
#include "platform/Numbers.h"

#include <algorithm>
#include <cmath>

namespace gatewise {

namespace {

constexpr std::size_t kRouteLength = 1000;

void copyAirport(PlanAirport& to, const AirportRecord& from) {
    to.Icao = from.Icao;
    to.Name = from.Name.view();
    to.Latitude = from.Latitude;
    to.Longitude = from.Longitude;
    to.Elevation = from.Elevation;
    to.RunwayCount = from.RunwayCount;
    to.RunwayOffset = from.RunwayOffset;
}

void findAirport(PlanAirport& airport, const Tables& tables, const FixedText<3>& code) {
    const auto found =
        std::ranges::find_if(tables.airports, [&](const AirportRecord& a) { return a.Iata == code; });
    if (found != tables.airports.end()) copyAirport(airport, *found);
}

void setEnd(PlanPoint& point, const PlanAirport& airport) {
    point.pointName = airport.Icao.view();
    point.pointDescription = airport.Name;
    point.pointLatitude = airport.Latitude;
    point.pointLongitude = airport.Longitude;
    point.pointAltitude = airport.Elevation;
}

void setDirectCourse(Plan& plan) {
    const PlanAirport& from = plan.departureAirport;
    const PlanAirport& to = plan.destinationAirport;
    float course = plan.directCourse;
    Distance(from.Latitude, from.Longitude, to.Latitude, to.Longitude, course);
    plan.directCourse = course > 180 ? course - 360 : course;
}

} // namespace

void measureLegs(Plan& plan) {
    plan.totalDistance = 0;
    for (int i = 0; i < plan.planLast; ++i) {
        PlanPoint& from = plan.at(i);
        PlanPoint& to = plan.at(i + 1);
        float course = 0;
        const float leg =
            Distance(from.pointLatitude, from.pointLongitude, to.pointLatitude, to.pointLongitude, course);
        if (std::isfinite(leg)) {
            to.pointLegDistance = leg;
            to.pointHeading = course;
        }
        plan.totalDistance += from.pointLegDistance;
        from.pointTotalDistance = plan.totalDistance;
    }
    PlanPoint& destination = plan.at(plan.planLast);
    plan.totalDistance += destination.pointLegDistance;
    destination.pointTotalDistance = plan.totalDistance;

    for (int i = 1; i <= plan.planLast; ++i) {
        float& heading = plan.at(i).pointHeading;
        if (heading < 0) heading += 360;
        if (heading == 360) heading = 0; // a hair below 360 is no longer below it as a 32-bit float
    }
}

std::string clockText(std::int32_t minutes) {
    const double hours = minutes / 60.0;
    const double whole = std::trunc(hours);
    return formatNumber("00", whole) + ":" + formatNumber("00", (hours - whole) * 60);
}

std::string routeStringOf(const Plan& plan) {
    const std::string destination = plan.destinationAirport.Icao.str();
    std::string route = plan.departureAirport.Icao.str() + ".";
    const auto append = [&](const std::string& text) {
        route = std::string(trimmed(route)) + text;
        route.resize(std::min(route.size(), kRouteLength));
    };
    const auto airwayAt = [&](int i) { return plan.at(i).pointAirway.trimmed(); };

    std::string lastName;
    for (int i = 1; i < plan.planLast; ++i) {
        if (plan.at(i).computed()) continue;
        lastName = plan.at(i).pointName.trimmed();
        const std::string airway(airwayAt(i));
        while (!airway.empty() && i < plan.planLast && airwayAt(i + 1) == airway) ++i;
        append(std::string(".").append(lastName).append(".").append(airway));
    }
    const std::string before(plan.at(std::max(plan.planLast - 1, 0)).pointName.trimmed());
    append(before == lastName ? "." + destination : "." + before + ".." + destination);
    return route;
}

void takeAirports(Plan& plan, const PlanInput& input) {
    findAirport(plan.departureAirport, input.tables, input.CurrentFlight.OriginIata);
    findAirport(plan.destinationAirport, input.tables, input.CurrentFlight.DestinationIata);
    if (input.HaveAlternate) copyAirport(plan.alternateAirport, input.tables.airport(input.AlternateIndex));
}

void buildPlan(Plan& plan, const PlanInput& input) {
    plan.flightRules = std::string_view("IFR");
    plan.climbDivisor = plan.descentDivisor = 1.2F;
    takeAirports(plan, input);
    setEnd(plan.at(0), plan.departureAirport);
    setEnd(plan.at(plan.planLast), plan.destinationAirport);
    setDirectCourse(plan);
    for (int i = 1; i < kPlanPoints; ++i) {
        PlanPoint& point = plan.at(i);
        point.pointAltitude = point.pointMinutes = 0;
        point.pointHeading = point.pointLegDistance = 0;
    }

    // A step that fails leaves the table as far as it had come; the next one works with what is there.
    measureLegs(plan);
    (void)computeProfile(plan);
    (void)insertStepPoints(plan);
    measureLegs(plan);
    (void)recomputeTimes(plan);
    plan.at(plan.planLast).pointTotalDistance = plan.totalDistance;

    plan.totalTime = clockText(plan.at(plan.planLast).pointMinutes);
    plan.peakAltitude = 0;
    for (int i = 0; i <= plan.planLast; ++i)
        plan.peakAltitude = std::max(plan.peakAltitude, plan.at(i).pointAltitude);
    plan.routeString = routeStringOf(plan);
}

} // namespace gatewise
