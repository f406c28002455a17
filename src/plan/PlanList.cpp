#include "plan/PlanList.h"

namespace gatewise {

namespace {

enum Column { Id, Name, Route, Heading, Distance_, Altitude };

std::string feet(std::int32_t altitude) {
    return formatInteger("00000", altitude);
}

std::string miles(float distance, const NumberLocale& locale) {
    return locale.formatSingle("#####0.0", distance);
}

PlanListRow row(std::string_view id, std::string_view name) {
    PlanListRow out;
    out.cells[Id] = " " + std::string(trimmed(id));
    out.cells[Name] = name;
    return out;
}

void setLeg(PlanListRow& out, const PlanPoint& point, const MagneticTable& magnetic,
            const NumberLocale& locale) {
    const float heading =
        magnetic.magneticHeading(point.pointLatitude, point.pointLongitude, point.pointHeading);
    out.cells[Route] = point.pointAirway.str();
    out.cells[Heading] = locale.formatSingle("000", heading);
    out.cells[Distance_] = miles(point.pointLegDistance, locale);
}

PlanListRow airportRow(const PlanAirport& airport) {
    PlanListRow out = row(airport.Icao.view(), airport.Name.view());
    out.cells[Altitude] = feet(airport.Elevation);
    return out;
}

PlanListRow totalRow(const Plan& plan, const NumberLocale& locale) {
    PlanListRow out = row("", "Total Distance");
    out.cells[Distance_] = miles(plan.totalDistance, locale);
    out.bold[Name] = out.bold[Distance_] = true;
    return out;
}

PlanListRow alternateRow(const PlanAirport& from, const AirportRecord& airport, const NumberLocale& locale) {
    PlanListRow out = row(airport.Icao.view(), airport.Name.view());
    float course = 0;
    out.cells[Distance_] =
        miles(Distance(from.Latitude, from.Longitude, airport.Latitude, airport.Longitude, course), locale);
    out.cells[Altitude] = feet(airport.Elevation);
    return out;
}

} // namespace

std::vector<PlanListRow> planListRows(const Plan& plan, const Tables& tables, int AlternateIndex,
                                      const MagneticTable& magnetic, const NumberLocale& locale) {
    std::vector<PlanListRow> rows;
    rows.push_back(airportRow(plan.departureAirport));
    for (int i = 1; i < plan.planLast; ++i) {
        const PlanPoint& point = plan.at(i);
        PlanListRow out = row(point.pointName.view(), point.pointDescription.view());
        setLeg(out, point, magnetic, locale);
        out.cells[Altitude] = feet(point.pointAltitude);
        rows.push_back(out);
    }
    rows.push_back(airportRow(plan.destinationAirport));
    setLeg(rows.back(), plan.at(plan.planLast), magnetic, locale);
    rows.push_back(totalRow(plan, locale));
    rows.push_back(row("", ""));
    rows.push_back(row("", "Alternate Airport"));
    rows.back().bold[Name] = true;
    rows.push_back(alternateRow(plan.destinationAirport, tables.airport(AlternateIndex), locale));
    return rows;
}

} // namespace gatewise
