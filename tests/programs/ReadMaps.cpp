#include "Readers.h"
#include "XmlTree.h"

#include <cmath>
#include <sstream>

// GPX, KML and GeoJSON.

namespace gatewise::test {

namespace {

constexpr double kFoot = 0.3048; // metres

ReadPoint gpxPoint(const XmlNode& node) {
    ReadPoint point;
    point.latitude = decimalIn(node.attribute("lat"), -90, 90);
    point.longitude = decimalIn(node.attribute("lon"), -180, 179.9999999);
    point.altitude = decimalIn(node.one("ele").text, -10000, 100000) / kFoot;
    return point;
}

/// Longitude, latitude, metres.
ReadPoint kmlPoint(const std::string& text) {
    const auto first = text.find(',');
    const auto second = text.find(',', first + 1);
    require(second != std::string::npos, "no coordinates: " + text);
    const std::string parts[] = {text.substr(0, first), text.substr(first + 1, second - first - 1),
                                 text.substr(second + 1)};
    ReadPoint point;
    point.longitude = decimalIn(parts[0], -180, 180);
    point.latitude = decimalIn(parts[1], -90, 90);
    point.altitude = decimalIn(parts[2], -10000, 100000) / kFoot;
    return point;
}

bool samePlace(const ReadPoint& a, const ReadPoint& b) {
    return a.latitude == b.latitude && a.longitude == b.longitude && a.altitude == b.altitude;
}

/// A reader of JSON as small as the format allows: objects, arrays, texts, numbers.
struct Json {
    std::map<std::string, Json> members;
    std::vector<Json> items;
    std::string text; // of a text or a number
};

class JsonReader {
public:
    explicit JsonReader(const std::string& bytes) : bytes_(bytes) {}
    Json whole() {
        Json value = read();
        blanks();
        require(at_ == bytes_.size(), "text behind the end");
        return value;
    }

private:
    Json read() {
        blanks();
        switch (peek()) {
        case '{':
            return object();
        case '[':
            return array();
        case '"':
            return {{}, {}, string()};
        default:
            return {{}, {}, number()};
        }
    }
    Json object() {
        Json out;
        for (take('{'); !ends('}');) {
            const std::string name = string();
            take(':');
            require(out.members.emplace(name, read()).second, "twice " + name);
        }
        return out;
    }
    Json array() {
        Json out;
        for (take('['); !ends(']');) out.items.push_back(read());
        return out;
    }
    /// Whether the list ends here; steps over the comma when it does not.
    bool ends(char close) {
        blanks();
        const char before = bytes_[at_ - 1 - skipped_];
        if (peek() == close) {
            require(before != ',', "comma before the end");
            ++at_;
            return true;
        }
        if (before != '{' && before != '[') take(',');
        return false;
    }
    std::string string() {
        blanks();
        take('"');
        std::string out;
        while (peek() != '"') {
            require(static_cast<unsigned char>(peek()) >= ' ', "control character");
            if (peek() == '\\') ++at_;
            out += bytes_.at(at_++);
        }
        ++at_;
        return out;
    }
    std::string number() {
        const auto end = bytes_.find_first_not_of("-+.eE0123456789", at_);
        require(end != at_ && end != std::string::npos, "no value");
        std::string out = bytes_.substr(at_, end - at_);
        at_ = end;
        const std::size_t digits = out.starts_with('-') ? 1 : 0;
        require(out.size() == digits + 1 || out[digits] != '0' || out[digits + 1] == '.', "number " + out);
        return out;
    }
    void blanks() {
        skipped_ = 0;
        while (at_ < bytes_.size() && (bytes_[at_] == ' ' || bytes_[at_] == '\n')) ++at_, ++skipped_;
    }
    void take(char c) {
        blanks();
        require(peek() == c, std::string("no ") + c);
        ++at_;
    }
    char peek() {
        require(at_ < bytes_.size(), "ends too soon");
        return bytes_[at_];
    }

    const std::string& bytes_;
    std::size_t at_ = 0;
    std::size_t skipped_ = 0;
};

ReadPoint jsonPoint(const Json& position) {
    require(position.items.size() == 3, "not three numbers");
    ReadPoint point;
    point.longitude = decimalIn(position.items[0].text, -180, 180);
    point.latitude = decimalIn(position.items[1].text, -90, 90);
    point.altitude = decimalIn(position.items[2].text, -10000, 100000) / kFoot;
    return point;
}

/// All places of the line; no leg of it may jump over the 180th meridian.
std::vector<ReadPoint> linePoints(const Json& geometry) {
    const bool many = geometry.members.at("type").text == "MultiLineString";
    require(many || geometry.members.at("type").text == "LineString", "no line");
    std::vector<Json> parts;
    if (many)
        parts = geometry.members.at("coordinates").items;
    else
        parts = {geometry.members.at("coordinates")};
    std::vector<ReadPoint> points;
    for (const Json& part : parts) {
        require(part.items.size() >= 2, "a line of one point");
        for (std::size_t i = 0; i < part.items.size(); ++i) {
            points.push_back(jsonPoint(part.items[i]));
            if (i == 0) continue;
            require(std::abs(points.back().longitude - points[points.size() - 2].longitude) <= 180, "a jump");
        }
    }
    return points;
}

} // namespace

ReadPlan readGpx(const std::string& bytes) {
    const std::string faults = schemaFaults(bytes, "gpx.xsd");
    require(faults.empty(), faults);
    static const std::map<std::string, std::string> kinds = {
        {"AIRPORT", "airport"}, {"WAYPOINT", "fix"}, {"VOR", "vor"}, {"NDB", "ndb"}, {"USER", "user"}};
    const XmlNode root = parseXml(bytes);
    ReadPlan plan;
    for (const XmlNode* node : root.one("rte").all("rtept")) {
        plan.points.push_back(gpxPoint(*node));
        plan.points.back().ident = node->one("name").text;
        plan.points.back().kind = wordOf(kinds, node->one("type").text);
        if (const XmlNode* airway = node->maybe("cmt")) plan.points.back().airway = airway->text;
    }
    const auto track = root.one("trk").one("trkseg").all("trkpt");
    require(track.size() == plan.points.size(), "route and track differ");
    for (std::size_t i = 0; i < track.size(); ++i)
        require(samePlace(gpxPoint(*track[i]), plan.points[i]), "route and track differ");
    return plan;
}

ReadPlan readKml(const std::string& bytes) {
    const std::string faults = schemaFaults(bytes, "kml.xsd");
    require(faults.empty(), faults);
    const XmlNode root = parseXml(bytes);
    const XmlNode& document = root.one("Document");
    ReadPlan plan;
    for (const XmlNode* mark : document.one("Folder").all("Placemark")) {
        plan.points.push_back(kmlPoint(mark->one("Point").one("coordinates").text));
        plan.points.back().ident = mark->one("name").text;
    }
    const XmlNode& line = document.one("Placemark");
    require(line.one("styleUrl").text == "#" + document.one("Style").attribute("id"), "style");
    std::istringstream in(line.one("LineString").one("coordinates").text);
    std::size_t i = 0;
    for (std::string place; in >> place; ++i)
        require(i < plan.points.size() && samePlace(kmlPoint(place), plan.points[i]),
                "line and marks differ");
    require(i == plan.points.size(), "line and marks differ");
    return plan;
}

ReadPlan readGeoJson(const std::string& bytes) {
    static const std::map<std::string, std::string> kinds = {
        {"airport", "airport"}, {"intersection", "fix"}, {"VOR", "vor"}, {"NDB", "ndb"}, {"user", "user"}};
    const Json root = JsonReader(bytes).whole();
    require(root.members.at("type").text == "FeatureCollection", "no collection");
    ReadPlan plan;
    std::vector<ReadPoint> line;
    for (const Json& feature : root.members.at("features").items) {
        require(feature.members.at("type").text == "Feature", "no feature");
        const Json& geometry = feature.members.at("geometry");
        const auto& properties = feature.members.at("properties").members;
        if (geometry.members.at("type").text != "Point") {
            require(line.empty(), "two lines");
            line = linePoints(geometry);
            plan.cruise = std::stod(properties.at("cruise_ft").text);
            continue;
        }
        plan.points.push_back(jsonPoint(geometry.members.at("coordinates")));
        plan.points.back().ident = properties.at("ident").text;
        plan.points.back().kind = wordOf(kinds, properties.at("kind").text);
        plan.points.back().airway = properties.at("airway").text;
        require(std::abs(std::stod(properties.at("altitude_ft").text) - plan.points.back().altitude) < 1e-6,
                "feet");
    }
    std::size_t next = 0;
    for (const ReadPoint& place : line) {
        if (next < plan.points.size() && samePlace(place, plan.points[next])) ++next;
    }
    require(next == plan.points.size(), "line and points differ");
    return plan;
}

} // namespace gatewise::test
