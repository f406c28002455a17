// What a frame of the main window takes at each size, on a desk of 3840 x 2160 without a display. A whole
// frame paints every view anew; a frame must be ready within 16 ms.

#include "tour/Stage.h"

#include <QApplication>
#include <QTemporaryDir>
#include <benchmark/benchmark.h>
#include <filesystem>
#include <fstream>

namespace {

void useLargeDesk(const std::string& folder) {
    const std::string file = folder + "/desk.json";
    std::ofstream(file)
        << R"({"windowFrameMargins":false,"screens":[{"name":"desk","x":0,"y":0,"width":3840,)"
           R"("height":2160,"logicalDpi":96,"dpr":1}]})";
    qputenv("QT_QPA_PLATFORM", QByteArray::fromStdString("offscreen:configfile=" + file));
}

gatewise::stage::Stage* theStage = nullptr;

/// The whole board at so many percent.
void boardFrame(benchmark::State& state) {
    auto& stage = *theStage;
    stage.window.display.choosePercent(static_cast<int>(state.range(0)));
    // The ground of all: the window itself lies below it and would not be painted at all.
    QWidget& ground = stage.widget(stage.forms().MainForm.BG);
    ground.repaint(); // the pictures of this size are made once
    for (auto _ : state) ground.repaint();
}

/// The texts of all rows, each put on the screen by itself: more than a turn of the board, which is one
/// frame.
void boardTurn(benchmark::State& state) {
    auto& stage = *theStage;
    stage.window.display.choosePercent(static_cast<int>(state.range(0)));
    auto& main = stage.forms().MainForm;
    stage.desk().mainWindow().repaint();
    for (auto _ : state) {
        for (int i = 0; i < 20; ++i) {
            for (const gatewise::Label* label :
                 {&main.fltnum_LABEL(i), &main.city_LABEL(i), &main.time_LABEL(i)})
                stage.widget(*label).repaint();
        }
    }
}

BENCHMARK(boardFrame)->Arg(100)->Arg(150)->Arg(200)->Arg(300)->Unit(benchmark::kMillisecond);
BENCHMARK(boardTurn)->Arg(100)->Arg(300)->Unit(benchmark::kMillisecond);

} // namespace

int main(int count, char** arguments) {
    benchmark::Initialize(&count, arguments);
    const QTemporaryDir scratch;
    const std::string folder = scratch.path().toStdString();
    useLargeDesk(folder);
    QApplication application(count, arguments);
    gatewise::stage::Stage stage(gatewise::stage::makeProgramFolder(GATEWISE_PROGRAM_DIR, folder));
    stage.machine.registry.folder = folder + "/FS2002";
    theStage = &stage;
    stage.then([&stage] { stage.click(stage.forms().MainForm.statusboard_LABEL); });
    stage.then([] { benchmark::RunSpecifiedBenchmarks(); });
    stage.play();
    return 0;
}
