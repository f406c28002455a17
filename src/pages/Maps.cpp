#include "pages/Maps.h"

#include "map/LandData.h"
#include "map/MapDrawing.h"
#include "map/SheetClip.h"

namespace gatewise {

std::shared_ptr<const map::Land> shownLand(const Program& p) {
    return map::readLand(p.session.appPath("\\Images\\land.bin"));
}

Drawing wholeScene(const MapChart& chart) {
    MapScene bare = chart.scene;
    bare.land = nullptr;
    if (bare.places.empty()) return {};
    const map::Sheet sheet;
    return map::withinSheet(drawMap(bare, fitted(bare, sheet.size), sheet));
}

Drawing paperMap(const MapScene& scene) {
    if (scene.places.empty()) return {};
    constexpr map::SheetSize kHalf{700, 480}; // pixels of a screen: half a sheet less its margins
    map::Sheet sheet;
    sheet.size = kHalf;
    sheet.wordHeight = 9;
    // Everything is printed in one pitch, ten points high.
    sheet.wordWidth = [](std::string_view word) { return 8.0 * static_cast<double>(word.size()); };
    sheet.grain = 0.15; // a printer shows more than a screen
    Drawing out = drawMap(scene, fitted(scene, kHalf), sheet);
    out.aspect = kHalf.width / kHalf.height;
    return out;
}

void setScene(MapChart& chart, MapScene scene) {
    chart.scene = std::move(scene);
    chart.chosen = -1;
    chart.drawing = wholeScene(chart);
    chart.drawing.summary = chart.scene.summary;
}

} // namespace gatewise
