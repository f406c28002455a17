#include "map/LandData.h"
#include "map/MapDrawing.h"
#include "platform/Files.h"
#include "window/ChartView.h"

#include <QGuiApplication>
#include <QImage>
#include <QPainter>

#include <algorithm>
#include <cstdio>
#include <ctime>
#include <string>

// Frames of a map that is moved by hand, 2560 by 1440 pixels in software: drawing and painting of each, in
// milliseconds of the processor. The last column is the longest of them.

namespace {

using namespace gatewise;
using namespace gatewise::map;

constexpr SheetSize kSize{2560, 1440};
constexpr int kFrames = 120;
constexpr double kWay = 23; // pixels from frame to frame

struct SceneRow {
    const char* name;
    double latitude, longitude, span; // of the first frame
    int routes;
};
constexpr SceneRow kScenes[] = {{"world", 20, 0, 180, 0},
                                {"300 destinations", 51, 0, 150, 300},
                                {"continent", 50, 10, 50, 0},
                                {"country", 47, 8, 12, 0},
                                {"fjords", 62, 6, 4, 0},
                                {"archipelago", 60, 22, 2, 0},
                                {"islands of Canada", 73, -95, 25, 0},
                                {"airport", 40.6, -73.8, 0.2, 0}};

MapScene sceneOf(const SceneRow& row, const std::shared_ptr<const Land>& land) {
    MapScene scene;
    scene.land = land;
    for (int i = 0; i < row.routes; ++i) {
        const MapSpot to{static_cast<double>(51 - (i * 37) % 90), static_cast<double>((i * 53) % 360 - 180)};
        scene.routes.push_back({{{51, 0}, to}, Tone::Flight, 1.0 + i % 4, "", i, {}});
        scene.places.push_back({to, Tone::Fix, "K" + std::to_string(100 + i), "", i});
    }
    return scene;
}

double milliseconds() {
    timespec now{};
    clock_gettime(CLOCK_PROCESS_CPUTIME_ID, &now);
    return static_cast<double>(now.tv_sec) * 1e3 + static_cast<double>(now.tv_nsec) / 1e6;
}

void pan(const SceneRow& row, const std::shared_ptr<const Land>& land, const QFont& font) {
    const MapScene scene = sceneOf(row, land);
    const Sheet sheet{kSize, 9, {}};
    QImage image(static_cast<int>(kSize.width), static_cast<int>(kSize.height), QImage::Format_RGB32);
    MapSight sight{{row.latitude, row.longitude}, row.span};
    (void)drawMap(scene, sight, sheet); // the level of detail is made once
    std::vector<double> drawn, whole;
    for (int i = 0; i < kFrames; ++i) {
        const double before = milliseconds();
        const Drawing drawing = drawMap(scene, sight, sheet);
        drawn.push_back(milliseconds() - before);
        QPainter painter(&image);
        window::drawDrawing(painter, image.rect(), drawing, font);
        painter.end();
        whole.push_back(milliseconds() - before);
        sight = panned(sight, kSize, kWay, i % 40 < 20 ? kWay : -kWay);
    }
    std::sort(drawn.begin(), drawn.end());
    std::sort(whole.begin(), whole.end());
    std::printf("%-20s drawing %5.1f  frame %5.1f  longest %5.1f\n", row.name, drawn[kFrames / 2],
                whole[kFrames / 2], whole.back());
}

} // namespace

int main(int argc, char** argv) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QGuiApplication application(argc, argv);
    const auto bytes = files::readAll(GATEWISE_LAND);
    if (!bytes) return 1;
    const auto land = std::make_shared<const Land>(*bytes);
    QFont font;
    font.setPixelSize(12);
    for (const SceneRow& row : kScenes) pan(row, land, font);
    return 0;
}
