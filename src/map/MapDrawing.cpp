#include "map/MapDrawing.h"

#include "map/Clip.h"
#include "map/Labels.h"
#include "platform/Numbers.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace gatewise::map {

namespace {

constexpr std::size_t kRoutesOfWords = 24; // above this words need not keep off the routes
constexpr double kMarkRadius = 4;          // pixels
constexpr double kLeastRunway = 5;         // pixels
constexpr double kNamedRunway = 60;        // pixels, from there on with its name

struct GridRow {
    double span; // degrees, up to which the step holds
    double step; // degrees
};
constexpr GridRow kGrid[] = {{0.5, 0.1}, {1.2, 0.25}, {3, 0.5}, {7, 1},
                             {15, 2},    {35, 5},     {90, 10}, {1000, 20}};

/// One drawing on its way.
class Painter {
public:
    Painter(const MapSight& sight, const Sheet& sheet, Drawing& out)
        : view_(sight, sheet.size), sheet_(sheet), out_(out), span_(sight.span),
          clipper_(view_.projection(), view_.reach(), sheet.grain / view_.scale()),
          labels_(sheet.size.width, sheet.size.height) {}

    void ground(const Land* land) {
        Cut sea;
        sea.rings.push_back(clipper_.edge());
        addArea(sea, Tone::Water);
        const LandLevel* level = land ? land->level(sheet_.grain / view_.scale()) : nullptr;
        if (!level) return;
        addOutlines(level->land, Tone::Land);
        addOutlines(level->lakes, Tone::Water);
        std::vector<Path> lines;
        for (const auto& line : level->borders) clipper_.addLine(line, lines);
        addLines(lines, Tone::Border);
    }

    void grid() {
        const double step = std::find_if(std::begin(kGrid), std::end(kGrid), [&](const GridRow& r) {
                                return span_ <= r.span;
                            })->step;
        const Spot middle = spotOf(view_.projection().middle());
        const double reach = view_.reach() / kDegree;
        // Where a pole is near, every meridian is.
        const bool polar = std::fabs(middle.latitude) + reach > 85;
        const double across =
            polar ? 180 : std::min(180.0, reach / std::cos((std::fabs(middle.latitude) + reach) * kDegree));
        const double fine = std::min(2.0, step / 4);
        for (double lat = std::ceil(std::max(-80.0, middle.latitude - reach) / step) * step;
             lat <= std::min(80.0, middle.latitude + reach); lat += step)
            addGridLine(middle.longitude - across, middle.longitude + across, fine, [&](double lon) {
                return Spot{lat, lon};
            });
        for (double lon = std::ceil((middle.longitude - across) / step) * step;
             lon <= middle.longitude + across; lon += step)
            addGridLine(std::max(-80.0, middle.latitude - reach), std::min(80.0, middle.latitude + reach),
                        fine, [&](double lat) {
                            return Spot{lat, lon};
                        });
    }

    void routes(const std::vector<MapRoute>& routes, int chosen) {
        const bool words = routes.size() <= kRoutesOfWords;
        for (const auto& route : routes) {
            for (std::size_t i = 1; i < route.points.size(); ++i) leg(route, i, chosen, words);
        }
    }

    void strips(const std::vector<MapStrip>& strips) {
        for (const auto& strip : strips) {
            const auto a = view_.place(vectorOf(strip.from));
            const auto b = view_.place(vectorOf(strip.to));
            const double length = a && b ? std::hypot(a->x - b->x, a->y - b->y) : 0;
            if (length < kLeastRunway) continue;
            out_.lines.push_back({{unitPoint(*a), unitPoint(*b)}, Tone::Runway});
            if (length < kNamedRunway) continue;
            labels_.keepOffLine(a->x, a->y, b->x, b->y);
            runways_.push_back({{SheetPoint{(a->x + b->x) / 2, (a->y + b->y) / 2}, *a, *b}, strip.name});
        }
    }

    void places(const std::vector<MapPlace>& places, int chosen) {
        for (const auto& place : places) mark(place, chosen);
        std::vector<const MapPlace*> order;
        order.reserve(places.size());
        for (const auto& place : places) order.push_back(&place);
        std::stable_partition(order.begin(), order.end(),
                              [&](const MapPlace* p) { return p->id >= 0 && p->id == chosen; });
        for (const MapPlace* place : order) word(*place, chosen);
    }

    /// Below the words of places, so that it is seen whole.
    void bar() {
        const ScaleBar bar = scaleBar(view_.scale(), sheet_.size.width / 5);
        const double x = 10;
        const double y = sheet_.size.height - 10;
        DrawingLine line{{}, Tone::Level};
        for (const auto& p : {SheetPoint{x, y - 4}, {x, y}, {x + bar.pixels, y}, {x + bar.pixels, y - 4}})
            line.points.push_back(unitPoint(p));
        out_.lines.push_back(std::move(line));
        const std::string text = formatNumber(bar.miles < 1 ? "0.0#" : "#####0", bar.miles) + " NM";
        const double wide = sheet_.widthOf(text);
        const Box box{x + bar.pixels + 6, y - sheet_.wordHeight, wide, sheet_.wordHeight};
        labels_.keepOff({x, y - 6, bar.pixels, 8});
        labels_.keepOff(box);
        addText(box, text, Tone::Level);
    }

private:
    [[nodiscard]] DrawingPoint unitPoint(const SheetPoint& p) const {
        return {p.x / sheet_.size.width, p.y / sheet_.size.height};
    }
    [[nodiscard]] std::vector<DrawingPoint> unitPath(const Path& path) const {
        std::vector<DrawingPoint> points;
        points.reserve(path.size());
        for (const PlanePoint& p : path) points.push_back(unitPoint(view_.place(p)));
        return points;
    }
    void addText(const Box& box, const std::string& text, Tone tone) {
        out_.texts.push_back(
            {unitPoint({box.left + box.width / 2, box.top + box.height / 2}), text, false, tone});
    }
    void addArea(const Cut& cut, Tone tone) {
        DrawingArea area{{}, tone};
        for (const Path& ring : cut.rings) area.rings.push_back(unitPath(ring));
        if (!area.rings.empty()) out_.areas.push_back(std::move(area));
    }
    void addLines(const std::vector<Path>& lines, Tone tone, double width = 0, int id = -1) {
        for (const Path& line : lines) out_.lines.push_back({unitPath(line), tone, width, id});
    }
    void addOutlines(const std::vector<Outline>& outlines, Tone tone) {
        Cut cut;
        for (const auto& outline : outlines) clipper_.addRing(outline, cut);
        if (cut.inverted) cut.rings.push_back(clipper_.edge());
        addArea(cut, tone);
        addLines(cut.lines, Tone::Coast);
    }
    template<class At> void addGridLine(double from, double to, double fine, At at) {
        std::vector<Vector> line;
        for (double t = from; t < to + fine / 2; t += fine) line.push_back(vectorOf(at(std::min(t, to))));
        std::vector<Path> parts;
        clipper_.addLine(line, parts);
        addLines(parts, Tone::Grid);
    }

    void leg(const MapRoute& route, std::size_t i, int chosen, bool words) {
        const Vector a = vectorOf(route.points[i - 1]);
        const Vector b = vectorOf(route.points[i]);
        std::vector<Path> parts;
        clipper_.addLine(greatCircle(a, b, std::clamp(span_ / 40, 0.05, 3.0) * kDegree), parts);
        const bool marked = route.id >= 0 && route.id == chosen;
        addLines(parts, marked ? Tone::Chosen : route.tone, route.width, route.id);
        if (words) {
            for (const Path& part : parts) keepOff(part);
        }
        if (i > route.names.size()) return;
        if (i == 1 || route.names[i - 1] != route.names[i - 2]) airways_.push_back({route.names[i - 1], {}});
        if (!route.names[i - 1].empty()) addLeg(a, b, airways_.back());
    }
    void keepOff(const Path& path) {
        for (std::size_t i = 1; i < path.size(); ++i) {
            const SheetPoint a = view_.place(path[i - 1]);
            const SheetPoint b = view_.place(path[i]);
            labels_.keepOffLine(a.x, a.y, b.x, b.y);
        }
    }
    struct AirwayLeg {
        SheetPoint middle;
        double length = 0; // pixels
    };
    /// Legs in a row that lead along the same airway.
    struct Airway {
        std::string name;
        std::vector<AirwayLeg> legs; // that can be seen
    };
    void addLeg(const Vector& a, const Vector& b, Airway& airway) {
        const auto from = view_.place(a);
        const auto to = view_.place(b);
        const auto middle = view_.place(between(a, b, 0.5));
        if (from && to && middle)
            airway.legs.push_back({*middle, std::hypot(from->x - to->x, from->y - to->y)});
    }
    bool nameLeg(const AirwayLeg& leg, const std::string& name) {
        const auto box =
            labels_.place(leg.middle.x, leg.middle.y, 1, sheet_.widthOf(name), sheet_.wordHeight);
        if (box) addText(*box, name, Tone::Route);
        return box.has_value();
    }
    /// Each leg that is long enough has the airway's name. One of many short legs has it once, beside the
    /// longest that there is room at.
    void nameAirway(Airway& airway) {
        const double room = sheet_.widthOf(airway.name) + 24;
        double length = 0;
        bool named = false;
        for (const AirwayLeg& leg : airway.legs) {
            length += leg.length;
            if (leg.length > room && nameLeg(leg, airway.name)) named = true;
        }
        if (named || length <= room) return;
        std::stable_sort(airway.legs.begin(), airway.legs.end(),
                         [](const AirwayLeg& x, const AirwayLeg& y) { return x.length > y.length; });
        for (const AirwayLeg& leg : airway.legs) {
            if (nameLeg(leg, airway.name)) return;
        }
    }
    struct Runway {
        std::array<SheetPoint, 3> spots; // middle and ends
        std::string name;
    };
    /// Beside the runway where there is room, else not at all: upon lines of its own colour none could read
    /// it.
    void nameRunway(const Runway& runway) {
        for (const SheetPoint& spot : runway.spots) {
            const auto box =
                labels_.placeOffLines(spot.x, spot.y, 1, sheet_.widthOf(runway.name), sheet_.wordHeight);
            if (!box) continue;
            addText(*box, runway.name, Tone::Runway);
            return;
        }
    }
    void mark(const MapPlace& place, int chosen) {
        const auto at = view_.place(vectorOf(place.at));
        if (!at || at->x < 0 || at->y < 0 || at->x > sheet_.size.width || at->y > sheet_.size.height) return;
        const bool marked = place.id >= 0 && place.id == chosen;
        out_.marks.push_back(
            {unitPoint(*at), marked ? Tone::Chosen : place.tone, place.name, place.id, place.words});
        labels_.keepOff({at->x - kMarkRadius, at->y - kMarkRadius, 2 * kMarkRadius, 2 * kMarkRadius});
    }
    void word(const MapPlace& place, int chosen) {
        const auto at = view_.place(vectorOf(place.at));
        if (!at || place.name.empty()) return;
        if (at->x < 0 || at->y < 0 || at->x > sheet_.size.width || at->y > sheet_.size.height) return;
        const auto box =
            labels_.place(at->x, at->y, kMarkRadius, sheet_.widthOf(place.name), sheet_.wordHeight);
        const bool marked = place.id >= 0 && place.id == chosen;
        if (box) addText(*box, place.name, marked ? Tone::Chosen : place.tone);
    }

public:
    /// What is left of the room goes to the names of the legs.
    void legNames() {
        for (Airway& airway : airways_) nameAirway(airway);
    }
    void runwayNames() {
        for (const Runway& runway : runways_) nameRunway(runway);
    }

private:
    View view_;
    const Sheet& sheet_;
    Drawing& out_;
    double span_;
    Clipper clipper_;
    Labels labels_;
    std::vector<Airway> airways_;
    std::vector<Runway> runways_; // that are long enough for their names
};

double squareTo(const SheetSize& size, const DrawingPoint& a, const DrawingPoint& b) {
    const double x = (a.x - b.x) * size.width;
    const double y = (a.y - b.y) * size.height;
    return x * x + y * y;
}

/// Square of the pixels from a point to an edge.
double squareToEdge(const SheetSize& size, const DrawingPoint& p, const DrawingPoint& a,
                    const DrawingPoint& b) {
    const double length = squareTo(size, a, b);
    const double along = (p.x - a.x) * (b.x - a.x) * size.width * size.width +
                         (p.y - a.y) * (b.y - a.y) * size.height * size.height;
    const double share = length > 0 ? std::clamp(along / length, 0.0, 1.0) : 0;
    return squareTo(size, p, {a.x + share * (b.x - a.x), a.y + share * (b.y - a.y)});
}

} // namespace

double Sheet::widthOf(std::string_view word) const {
    return wordWidth ? wordWidth(word) : 0.7 * wordHeight * static_cast<double>(word.size());
}

Drawing drawMap(const MapScene& scene, const MapSight& sight, const Sheet& sheet, int chosen) {
    Drawing out;
    out.worded = true;
    out.summary = scene.summary;
    Painter painter(sight, sheet, out);
    painter.ground(scene.land.get());
    painter.grid();
    painter.routes(scene.routes, chosen);
    painter.strips(scene.strips);
    painter.bar();
    painter.places(scene.places, chosen);
    painter.legNames();
    painter.runwayNames();
    return out;
}

ScaleBar scaleBar(double pixelsOfRadian, double pixels) {
    const double pixelsOfMile = pixelsOfRadian * kDegree / 60;
    const double most = pixels / pixelsOfMile;
    const double magnitude = std::pow(10, std::floor(std::log10(most)));
    double miles = magnitude;
    for (const double factor : {2.0, 5.0}) {
        if (factor * magnitude <= most) miles = factor * magnitude;
    }
    return {miles, miles * pixelsOfMile};
}

const DrawingMark* markNear(const Drawing& drawing, const SheetSize& size, const DrawingPoint& at,
                            double radius) {
    const DrawingMark* found = nullptr;
    double best = radius * radius;
    for (const auto& mark : drawing.marks) {
        const double square = squareTo(size, mark.at, at);
        if (square <= best) best = square, found = &mark;
    }
    return found;
}

const DrawingLine* lineNear(const Drawing& drawing, const SheetSize& size, const DrawingPoint& at,
                            double radius) {
    const DrawingLine* found = nullptr;
    double best = radius * radius;
    for (const auto& line : drawing.lines) {
        if (line.id < 0) continue;
        for (std::size_t i = 1; i < line.points.size(); ++i) {
            const double square = squareToEdge(size, at, line.points[i - 1], line.points[i]);
            if (square <= best) best = square, found = &line;
        }
    }
    return found;
}

} // namespace gatewise::map
