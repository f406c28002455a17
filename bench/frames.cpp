#include "map/LandData.h"
#include "map/MapDrawing.h"
#include "platform/Files.h"
#include "window/ChartView.h"
#include "window/MapPane.h"

#include <QGuiApplication>
#include <QImage>
#include <QPainter>
#include <QThread>

#include <algorithm>
#include <cstdio>
#include <ctime>
#include <string>

// Frames of a map that is moved by hand, in software: milliseconds of the processor that each takes from the
// thread of the window, the median and the longest. "drawn" makes the map anew for each of them, "moved" and
// "zoomed" are what the window does: 60 times a second it shows what was drawn beside its own work. The sheet
// is the whole of a screen of 2560 by 1440 pixels, then the largest map that the program's windows have on
// it, and the same at its own size.

namespace {

using namespace gatewise;
using namespace gatewise::map;

struct StandRow {
    const char* name;
    SheetSize size; // pixels of the layout
    double factor;
};
constexpr StandRow kStands[] = {{"2560 x 1440", {2560, 1440}, 1},
                                {"routes at 240 %", {588, 232}, 2.4},
                                {"routes at 100 %", {588, 232}, 1}};
constexpr int kFrames = 120;
constexpr double kWay = 23;         // pixels of the screen from frame to frame
constexpr double kPinch = 1.04;     // of the scale from frame to frame
constexpr double kFrameTime = 16.6; // milliseconds

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

double milliseconds(clockid_t clock = CLOCK_THREAD_CPUTIME_ID) {
    timespec now{};
    clock_gettime(clock, &now);
    return static_cast<double>(now.tv_sec) * 1e3 + static_cast<double>(now.tv_nsec) / 1e6;
}

void print(const char* what, std::vector<double> times) {
    std::sort(times.begin(), times.end());
    std::printf("  %s %5.1f longest %5.1f", what, times[times.size() / 2], times.back());
}

QSize pixelsOf(const StandRow& stand) {
    return (QSizeF(stand.size.width, stand.size.height) * stand.factor).toSize();
}

/// The sights that a hand goes through as it drags the map.
std::vector<MapSight> dragged(const SceneRow& row, const StandRow& stand) {
    std::vector<MapSight> out{{{row.latitude, row.longitude}, row.span}};
    const double way = kWay / stand.factor;
    for (int i = 0; i < kFrames; ++i)
        out.push_back(panned(out.back(), stand.size, way, i % 40 < 20 ? way : -way));
    return out;
}

/// As two fingers draw it together and apart.
std::vector<MapSight> pinched(const SceneRow& row, const StandRow& stand) {
    std::vector<MapSight> out{{{row.latitude, row.longitude}, row.span}};
    const SheetPoint about{stand.size.width / 3, stand.size.height / 3};
    for (int i = 0; i < kFrames; ++i)
        out.push_back(zoomed(out.back(), stand.size, i % 40 < 20 ? kPinch : 1 / kPinch, about));
    return out;
}

window::MapLook lookOf(const StandRow& stand, const QFont& font) {
    window::MapLook look;
    look.size = stand.size;
    look.pixels = pixelsOf(stand);
    look.factor = stand.factor;
    look.font = font;
    look.ground = Qt::black;
    return look;
}

void drawEach(const SceneRow& row, const StandRow& stand, const std::shared_ptr<const MapScene>& scene,
              const QFont& font) {
    window::MapLook look = lookOf(stand, font);
    look.scene = scene;
    const Sheet sheet = window::sheetOf(look);
    std::vector<double> drawn, whole;
    for (const MapSight& sight : dragged(row, stand)) {
        look.sight = sight;
        double before = milliseconds();
        (void)drawMap(*scene, sight, sheet);
        drawn.push_back(milliseconds() - before);
        before = milliseconds();
        (void)window::drawnMap(look);
        whole.push_back(milliseconds() - before);
    }
    print("lines", drawn);
    print("  drawn", whole);
}

void move(const char* what, const std::vector<MapSight>& sights, const StandRow& stand,
          const std::shared_ptr<const MapScene>& scene, const QFont& font) {
    QImage image(pixelsOf(stand), QImage::Format_RGB32);
    window::MapPane pane([] {});
    pane.stand(lookOf(stand, font));
    pane.show(scene, -1, sights.front());
    std::vector<double> times;
    for (const MapSight& sight : sights) {
        const double began = milliseconds(CLOCK_MONOTONIC);
        const double before = milliseconds();
        pane.look(sight);
        QPainter painter(&image);
        painter.scale(stand.factor, stand.factor);
        pane.paint(painter);
        painter.end();
        QCoreApplication::processEvents();
        // The first is at rest.
        if (&sight != &sights.front()) times.push_back(milliseconds() - before);
        const double left = kFrameTime - (milliseconds(CLOCK_MONOTONIC) - began);
        if (left > 0) QThread::usleep(static_cast<unsigned long>(left * 1000));
    }
    print(what, times);
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
    for (const StandRow& stand : kStands) {
        std::printf("%s\n", stand.name);
        for (const SceneRow& row : kScenes) {
            const auto scene = std::make_shared<const MapScene>(sceneOf(row, land));
            (void)drawMap(*scene, dragged(row, stand).front(), {stand.size, 9, {}}); // the level is made once
            std::printf("%-20s", row.name);
            drawEach(row, stand, scene, font);
            move("  moved", dragged(row, stand), stand, scene, font);
            move("  zoomed", pinched(row, stand), stand, scene, font);
            std::printf("\n");
        }
    }
    return 0;
}
