#include "export/ExportACSGPS.h"

#include "plan/Coordinates.h"
#include "platform/Text.h"

#include <charconv>
#include <cmath>

namespace gatewise {

namespace {

/// "N 40* 38.42m"
std::string angleText(char hemisphere, float value, const NumberLocale& numbers) {
    const Angle angle = splitAngle(value);
    return std::string(1, hemisphere) + " " + plainDouble(angle.degrees) + "* " +
           filedNumber(numbers, "00.00", angle.minutes) + "m";
}

/// A text that is no number stays as it is.
std::string frequencyText(const FixedText<6>& frequency, const NumberLocale& numbers) {
    const std::string_view text = frequency.trimmed();
    double value = 0;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), value);
    if (error != std::errc() || end != text.data() + text.size() || !std::isfinite(value))
        return frequency.str();
    return filedNumber(numbers, "000.00", value);
}

class Blocks {
public:
    explicit Blocks(const NumberLocale& numbers) : numbers_(numbers) {}

    void add(std::string_view name, std::string_view description, float latitude, float longitude) {
        out.add(name);
        out.add(description);
        out.add(angleText(longitude >= 0 ? 'E' : 'W', longitude, numbers_));
        out.add(angleText(latitude >= 0 ? 'N' : 'S', latitude, numbers_));
        out.add("");
    }
    void add(const PlanAirport& airport) {
        add(airport.Icao.view(), airport.Name.view(), airport.Latitude, airport.Longitude);
    }
    void add(std::string_view name, std::string_view description, const PlanPoint& point) {
        add(name, description, point.pointLatitude, point.pointLongitude);
    }

    TextLines out;

private:
    const NumberLocale& numbers_;
};

} // namespace

std::string acsGpsPlan(const Plan& plan, const NumberLocale& numbers) {
    Blocks blocks(numbers);
    blocks.add(plan.departureAirport);
    forEnRoute(plan, [&](int, const PlanPoint& point) {
        const std::string_view name = point.pointName.view();
        switch (point.kind()) {
        case PointKind::Vor:
        case PointKind::Ndb:
            blocks.add(name,
                       std::string(point.pointDescription.trimmed()) + " " +
                           frequencyText(point.pointFrequency, numbers),
                       point);
            break;
        case PointKind::Intersection:
            blocks.add(name, name, point);
            break;
        case PointKind::TopOfClimb:
            blocks.add("TOC", "TOC", point);
            break;
        case PointKind::TopOfDescent:
            blocks.add("BOD", "BOD", point);
            break;
        default:
            break;
        }
    });
    blocks.add(plan.destinationAirport);
    return blocks.out.text();
}

} // namespace gatewise
