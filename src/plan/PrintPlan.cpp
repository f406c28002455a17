#include "plan/PrintPlan.h"

#include "plan/Build.h"
#include "plan/Coordinates.h"
#include "plan/Performance.h"

#include <algorithm>
#include <array>
#include <limits>

namespace gatewise {

namespace {

constexpr std::array<const char*, 12> kMonths = {"JAN", "FEB", "MAR", "APR", "MAY", "JUN",
                                                 "JUL", "AUG", "SEP", "OCT", "NOV", "DEC"};

constexpr const char* kFirstHeader = "TO      FREQ    LAT...    LONG...     IAS   DIST  ACTM  TIME \n";
constexpr const char* kSecondHeader = "ROUTE           FL    T/H   M/H       TAS   DRMG  TRMG  ETA  \n\n";
constexpr const char* kPartsFollow = "PARTS FOLLOW\n- - - - - - - - - - - - - - - - - - - - - - - - - - -\n";

constexpr int kFirstPartPoints = 3;
constexpr int kLaterPartPoints = 4;

/// Speeds by altitude, as indices in speedSchedule.
struct SpeedRow {
    std::int32_t below;
    std::size_t up;
    std::size_t down;
};

constexpr std::array<SpeedRow, 3> kSpeedRows = {{
    {10001, 0, 6},
    {25001, 1, 5},
    {std::numeric_limits<std::int32_t>::max(), 2, 4},
}};

std::string blanks(std::size_t count) {
    return std::string(count, ' ');
}

/// Knots of the leg that ends at point i: the cruise where it is level, else the climb or the descent.
double legSpeed(const Plan& plan, int i) {
    const std::int32_t altitude = plan.at(i).pointAltitude;
    const std::int32_t before = plan.at(i - 1).pointAltitude;
    if (altitude == before) return plan.speedSchedule[kCruiseSpeed];
    const auto row = std::ranges::find_if(kSpeedRows, [&](const SpeedRow& r) { return altitude < r.below; });
    const SpeedRow& speeds = row == kSpeedRows.end() ? kSpeedRows.back() : *row;
    return plan.speedSchedule[altitude > before ? speeds.up : speeds.down];
}

/// Minutes of the plan's "hh:mm".
std::int32_t totalMinutes(const Plan& plan) {
    const std::string_view text = plan.totalTime.view();
    const auto colon = std::min(text.find(':'), text.size() - 1);
    return wholePart(leadingNumber(text.substr(0, colon)) * 60 + leadingNumber(text.substr(colon + 1)));
}

std::string frequencyText(const PlanPoint& point, const NumberLocale& locale) {
    const double frequency = leadingNumber(point.pointFrequency.view());
    return formatNumber("000.00", frequency) == "000.00" ? blanks(6) : locale.format("000.00", frequency);
}

class Listing {
public:
    Listing(const Plan& plan, const FlightRecord& flight, const DateTime& date, const MagneticTable& magnetic,
            const NumberLocale& locale)
        : plan_(plan), flight_(flight), magnetic_(magnetic), locale_(locale),
          tag_(flightTag(flight.AirlineCode.view(), std::to_string(flight.FlightNumber))),
          dateLine_(formatInteger("00", date.day) +
                    kMonths[static_cast<std::size_t>(std::clamp(date.month, 1, 12) - 1)]) {}

    std::string text(std::string_view shortDate) {
        head();
        for (int i = 1; i <= plan_.planLast; ++i) {
            pointLines(i);
            page();
        }
        validity(shortDate);
        return locale_.filed(out_);
    }

private:
    [[nodiscard]] std::string partLine(int part) const {
        return "PART " + formatInteger("00", part) + " OF " + tag_ + "/" + plan_.departureAirport.Icao.str();
    }

    void head() {
        const PlanAirport& from = plan_.departureAirport;
        out_ = dateLine_ + "\n";
        out_ += partLine(1) + " DEPARTURE TIME - " + formatInteger("0000", flight_.DepartureTime) + "\n\n";
        out_ += "ROUTE " + std::string(from.Icao.trimmed()) + " to " +
                std::string(plan_.destinationAirport.Icao.trimmed());
        out_ += "\tFL " + formatNumber("000", plan_.peakAltitude / 100.0);
        out_ += "\tETE " + plan_.totalTime.str() + "\n";
        out_ += std::string(trimmed(plan_.routeString)) + "\n\n";
        out_ += kFirstHeader;
        out_ += kSecondHeader;
        out_ += from.Icao.str() + blanks(12) + latitudeTicket(from.Latitude, locale_) + blanks(2) +
                longitudeTicket(from.Longitude, locale_) + "\n";
        out_ += blanks(44) + formatSingle("0000", plan_.totalDistance) + blanks(2) + plan_.totalTime.str() +
                "\n\n";
    }

    void pointLines(int i) {
        const PlanPoint& point = plan_.at(i);
        const double total = point.pointTotalDistance;
        const double speed = legSpeed(plan_, i);
        const float magnetic =
            magnetic_.magneticHeading(point.pointLatitude, point.pointLongitude, point.pointHeading);

        out_ += point.pointName.str() + blanks(3) + frequencyText(point, locale_) + blanks(2);
        out_ += latitudeTicket(point.pointLatitude, locale_) + blanks(2);
        out_ += longitudeTicket(point.pointLongitude, locale_) + blanks(3);
        out_ += formatNumber("000", speed) + blanks(3) + formatNumber("0000", total - flown_) + blanks(2);
        out_ += clockText(point.pointMinutes) + blanks(1);
        out_ += clockText(point.pointMinutes - plan_.at(i - 1).pointMinutes) + "\n";

        out_ += point.pointAirway.str() + blanks(11) + formatNumber("000", point.pointAltitude / 100.0) +
                blanks(3);
        out_ +=
            formatSingle("000", point.pointHeading) + blanks(3) + formatSingle("000", magnetic) + blanks(7);
        out_ += formatNumber("000", trueAirspeed(point.pointAltitude, speed)) + blanks(3);
        out_ += formatNumber("0000", static_cast<double>(plan_.totalDistance) - total) + blanks(2);
        out_ += clockText(totalMinutes(plan_) - point.pointMinutes) + "\n\n";
        flown_ = total;
    }

    /// Asked after every point, the last one too: a plan may end with a part that holds the validity alone.
    void page() {
        ++rows_;
        if (rows_ < (part_ == 1 ? kFirstPartPoints : kLaterPartPoints)) return;
        rows_ = 0;
        ++part_;
        out_ += kPartsFollow + dateLine_ + "\n" + partLine(part_) + "\n\n";
    }

    void validity(std::string_view shortDate) {
        int hours = flight_.DepartureTime / 100;
        int minutes = flight_.DepartureTime % 100 + 30;
        if (minutes >= 60) {
            minutes -= 60;
            ++hours;
        }
        if (hours >= 24) hours -= 24;
        out_ += "PLAN VALID FOR DEPARTURE UNTIL " + formatInteger("00", hours) + ":" +
                formatInteger("00", minutes);
        out_ += " LCL " + std::string(shortDate) + "\n" + dateLine_;
    }

    const Plan& plan_;
    const FlightRecord& flight_;
    const MagneticTable& magnetic_;
    const NumberLocale& locale_;
    std::string tag_;
    std::string dateLine_;
    std::string out_;
    double flown_ = 0; // miles up to the point before; nothing stands before the first
    int rows_ = 0;
    int part_ = 1;
};

} // namespace

std::string flightTag(std::string_view airlineCode, std::string_view flightNumber) {
    std::string number(trimmed(flightNumber));
    if (number.ends_with('-')) number.pop_back();
    return std::string(airlineCode) + number;
}

std::string printFlightPlan(const Plan& plan, const FlightRecord& flight, const DateTime& date,
                            std::string_view shortDate, const MagneticTable& magnetic,
                            const NumberLocale& locale) {
    return Listing(plan, flight, date, magnetic, locale).text(shortDate);
}

} // namespace gatewise
