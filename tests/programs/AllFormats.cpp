#include "AllFormats.h"

#include <cmath>
#include <sstream>
#include <stdexcept>

namespace gatewise::test {

using programs::Fix;

namespace {

constexpr double kSix = 0.5e-6 + 1e-12;
constexpr double kSeconds = 0.005 / 3600 + 1e-9; // half a hundredth of a second

const FormatTest kTests[] = {
    // key             reader            tolerance kinds  airways altitudes cruise, the ends' altitudes,
    // broken, regions
    {"XPlane", readXPlane, kSix, true, true, true, false, true, true},
    {"FSX", readFsx, kSeconds, true, true, true, true, true, false, true},
    {"MSFS2020", readMsfs2020, kSeconds, true, true, true, true, true, false, true},
    {"MSFS2024", readMsfs2024, kSeconds, true, true, true, true, false, false, true},
    {"FlightGear", readFlightGear, 0, false, true, true, true, false},
    {"LittleNavmap", readLittleNavmap, kSix, true, true, true, true, true, false, true},
    {"Garmin", readGarmin, 0, true, false, false, false, true, false, true},
    {"GPX", readGpx, 0, true, true, true, false},
    {"KML", readKml, 0, false, false, true, false},
    {"GeoJSON", readGeoJson, 0, true, true, true, true},
    {"RouteText", readRouteText, 0, false, true, false, false},
};

const char* kindOf(Fix fix) {
    constexpr const char* kWords[] = {"airport", "vor", "ndb", "fix", "user"};
    return kWords[static_cast<int>(fix)];
}

/// 180 and -180 are one meridian.
double apart(double a, double b) {
    const double far = std::abs(a - b);
    return far > 359 ? std::abs(far - 360) : far;
}

class Comparison {
public:
    Comparison(const FormatTest& test, const programs::Route& route) : test_(test), route_(route) {}

    std::string faults(const ReadPlan& read) {
        if (read.points.size() != route_.points.size()) return "other number of points\n";
        if (test_.cruise && read.cruise != route_.cruiseAltitude && std::string(test_.key) != "FlightGear")
            out_ << "cruise " << read.cruise << "\n";
        for (std::size_t i = 0; i < read.points.size(); ++i) point(i, read.points[i]);
        return out_.str();
    }

private:
    void point(std::size_t i, const ReadPoint& read) {
        const programs::RoutePoint& point = route_.points[i];
        const bool end = i == 0 || i + 1 == route_.points.size();
        const bool text = std::string(test_.key) == "RouteText";
        const bool unnamed = text && (end || point.fix == Fix::User);
        if (!unnamed && read.ident != point.ident) say(i, "ident " + read.ident);
        if (test_.kinds && read.kind != kindOf(point.fix)) say(i, "kind " + read.kind);
        if (!std::isnan(read.latitude) && (std::abs(read.latitude - point.latitude) > test_.tolerance ||
                                           apart(read.longitude, point.longitude) > test_.tolerance))
            say(i, "elsewhere");
        if (std::isnan(read.latitude) && !text && !(std::string(test_.key) == "MSFS2024" && end))
            say(i, "no position");
        if (test_.airways && read.airway != airway(i)) say(i, "airway " + read.airway);
        if (read.region != (test_.regions ? point.region : "")) say(i, "region " + read.region);
        if (test_.altitudes && (!end || test_.endAltitudes) &&
            std::abs(read.altitude - point.altitude) > 1e-6)
            say(i, "altitude " + std::to_string(read.altitude));
    }

    [[nodiscard]] std::string airway(std::size_t i) const {
        const auto user = [&](std::size_t at) { return route_.points[at].fix == Fix::User; };
        if (test_.brokenAtUserPoint && i > 0 && (user(i) || user(i - 1))) return {};
        return route_.points[i].airway;
    }

    void say(std::size_t i, const std::string& what) {
        out_ << test_.key << " point " << i << ": " << what << "\n";
    }

    const FormatTest& test_;
    const programs::Route& route_;
    std::ostringstream out_;
};

} // namespace

const FormatTest& testOf(const programs::Format& format) {
    for (const FormatTest& test : kTests) {
        if (std::string(test.key) == format.key) return test;
    }
    throw std::out_of_range(std::string("no reader for ") + format.key);
}

const programs::Format& formatOf(std::string_view key) {
    for (const programs::Format& format : programs::formats()) {
        if (key == format.key) return format;
    }
    throw std::out_of_range("no such format");
}

std::string faultsOf(const programs::Format& format, const std::string& bytes, const programs::Route& route) {
    try {
        const FormatTest& test = testOf(format);
        return Comparison(test, route).faults(test.read(bytes));
    } catch (const std::exception& fault) {
        return std::string(format.key) + ": " + fault.what();
    }
}

} // namespace gatewise::test
