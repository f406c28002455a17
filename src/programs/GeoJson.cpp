#include "platform/Text.h"
#include "programs/Figures.h"
#include "programs/Formats.h"

#include <cmath>

// GeoJSON (RFC 7946): the route as a line, then its points. Positions are longitude, latitude, metres.

namespace gatewise::programs {

namespace {

constexpr const char* kJsonKinds[] = {"airport", "VOR", "NDB", "intersection", "user"};

std::string jsonText(std::string_view text) {
    std::string out = "\"";
    for (const char c : utf8FromText(lineText(text))) {
        if (c == '"' || c == '\\') out += '\\';
        out += c;
    }
    return out + '"';
}

std::string jsonPosition(double longitude, double latitude, const std::string& metres) {
    return "[" + exactFigure(longitude) + ", " + exactFigure(latitude) + ", " + metres + "]";
}

std::string jsonPosition(const RoutePoint& point) {
    return jsonPosition(point.longitude, point.latitude, metresFigure(point.altitude));
}

/// A leg over the 180th meridian is cut there, so that no map draws it around the world.
class Line {
public:
    void add(const RoutePoint& point) {
        if (before_ != nullptr && std::abs(point.longitude - before_->longitude) > 180) cut(point);
        text_ += (text_.ends_with(']') ? ", " : "") + jsonPosition(point);
        before_ = &point;
    }
    [[nodiscard]] std::string geometry() const {
        return cut_ ? R"({"type": "MultiLineString", "coordinates": [[)" + text_ + "]]}"
                    : R"({"type": "LineString", "coordinates": [)" + text_ + "]}";
    }

private:
    void cut(const RoutePoint& to) {
        const double edge = before_->longitude < 0 ? -180 : 180;
        const double there = to.longitude + 2 * edge; // as if the longitudes went on
        const double width = there - before_->longitude;
        const double part = width == 0 ? 0 : (edge - before_->longitude) / width;
        const double latitude = before_->latitude + part * (to.latitude - before_->latitude);
        const auto feet =
            static_cast<int>(std::lround(before_->altitude + part * (to.altitude - before_->altitude)));
        text_ += ", " + jsonPosition(edge, latitude, metresFigure(feet)) + "], [" +
                 jsonPosition(-edge, latitude, metresFigure(feet));
        cut_ = true;
    }

    const RoutePoint* before_ = nullptr;
    std::string text_;
    bool cut_ = false;
};

std::string feature(const std::string& geometry, const std::string& properties) {
    return "    {\"type\": \"Feature\", \"geometry\": " + geometry + ", \"properties\": {" + properties +
           "}}";
}

std::string pointFeature(const RoutePoint& point) {
    return feature("{\"type\": \"Point\", \"coordinates\": " + jsonPosition(point) + "}",
                   "\"ident\": " + jsonText(point.ident) + ", \"name\": " + jsonText(point.name) +
                       ", \"kind\": " + jsonText(kJsonKinds[static_cast<int>(point.fix)]) + ", \"airway\": " +
                       jsonText(point.airway) + ", \"altitude_ft\": " + std::to_string(point.altitude));
}

} // namespace

std::string geoJson(const Route& route) {
    Line line;
    for (const RoutePoint& point : route.points) line.add(point);
    std::string out = "{\n  \"type\": \"FeatureCollection\",\n  \"features\": [\n";
    out += feature(line.geometry(), "\"name\": " + jsonText(route.flight) +
                                        ", \"cruise_ft\": " + std::to_string(route.cruiseAltitude));
    for (const RoutePoint& point : route.points) out += ",\n" + pointFeature(point);
    return out + "\n  ]\n}\n";
}

} // namespace gatewise::programs
