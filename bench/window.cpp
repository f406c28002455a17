#include "tour/Stage.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QProcess>
#include <QTemporaryDir>
#include <QTest>

#include <benchmark/benchmark.h>

#include <algorithm>
#include <cstdlib>
#include <string_view>

// The window as a person feels it: frames of 16 ms, the start beside the smallest window that the toolkit can
// make, and what the board takes while nobody touches it.

namespace gatewise::bench {
namespace {

constexpr std::string_view kBoard = "--board";
constexpr std::string_view kSmallest = "--smallest";

/// Ends with the window painted as it is now.
void paintNow(QWidget& window) {
    QCoreApplication::processEvents();
    QEvent due(QEvent::UpdateRequest);
    QCoreApplication::sendEvent(&window, &due);
}

/// Milliseconds that `work` and the paint after it take.
template<class Work> double frame(stage::Stage& stage, Work work) {
    QElapsedTimer clock;
    clock.start();
    work();
    paintNow(stage.desk().mainWindow());
    return static_cast<double>(clock.nsecsElapsed()) / 1e6;
}

/// Plays `work` on a stage of its own, after the start.
template<class Work> void onStage(Work work) {
    const QTemporaryDir scratch;
    stage::Stage stage(stage::makeProgramFolder(GATEWISE_PROGRAM_DIR, scratch.path().toStdString()),
                       stage::Time::Simulated);
    stage.then([&] { work(stage); });
    stage.play();
}

void Hover(benchmark::State& state) {
    onStage([&](stage::Stage& stage) {
        auto& main = stage.forms().MainForm;
        double worst = 0;
        int key = 0;
        for (auto _ : state) {
            key = 2 - key;
            worst = std::max(worst, frame(stage, [&] { stage.hover(main.switchButton(key)); }));
        }
        state.counters["worst_ms"] = worst;
    });
}
BENCHMARK(Hover)->Unit(benchmark::kMillisecond);

void PageTurn(benchmark::State& state) {
    onStage([&](stage::Stage& stage) {
        auto& main = stage.forms().MainForm;
        double worst = 0;
        bool board = true;
        for (auto _ : state) {
            board = !board;
            worst = std::max(
                worst, frame(stage, [&] { stage.click(board ? main.statusboard_LABEL : main.main_LABEL); }));
        }
        state.counters["worst_ms"] = worst;
    });
}
BENCHMARK(PageTurn)->Unit(benchmark::kMillisecond);

/// A process of this program from its birth to its end, which comes with the first paint.
void timeProcess(benchmark::State& state, const QStringList& words) {
    double worst = 0;
    for (auto _ : state) {
        QElapsedTimer clock;
        clock.start();
        QProcess process;
        process.start(QCoreApplication::applicationFilePath(), words);
        if (!process.waitForFinished() || process.exitCode() != EXIT_SUCCESS) {
            state.SkipWithError("the window was not painted");
            return;
        }
        const double seconds = static_cast<double>(clock.nsecsElapsed()) / 1e9;
        state.SetIterationTime(seconds);
        worst = std::max(worst, seconds * 1e3);
    }
    state.counters["worst_ms"] = worst;
}

void StartToFirstPaintedBoard(benchmark::State& state) {
    const QTemporaryDir scratch;
    const std::string folder = stage::makeProgramFolder(GATEWISE_PROGRAM_DIR, scratch.path().toStdString());
    timeProcess(state, {QString::fromUtf8(kBoard.data()), QString::fromStdString(folder)});
}
BENCHMARK(StartToFirstPaintedBoard)->UseManualTime()->Unit(benchmark::kMillisecond);

void StartOfTheSmallestWindow(benchmark::State& state) {
    timeProcess(state, {QString::fromUtf8(kSmallest.data())});
}
BENCHMARK(StartOfTheSmallestWindow)->UseManualTime()->Unit(benchmark::kMillisecond);

int showBoard(const char* folder) {
    stage::Stage stage(folder, stage::Time::Real);
    stage.then([&] {
        paintNow(stage.desk().mainWindow());
        std::_Exit(stage.forms().MainForm.status_pic.visible ? EXIT_SUCCESS : EXIT_FAILURE);
    });
    stage.play();
    return EXIT_FAILURE;
}

int showSmallest() {
    QWidget window;
    window.resize(800, 600);
    window.show();
    paintNow(window);
    std::_Exit(EXIT_SUCCESS);
}

int run(int count, char** arguments) {
    const std::string_view mode = count > 1 ? arguments[1] : "";
    const QTemporaryDir scratch;
    stage::useRoomyDesk(scratch.path().toStdString());
    QApplication application(count, arguments);
    if (mode == kBoard && count > 2) return showBoard(arguments[2]);
    if (mode == kSmallest) return showSmallest();
    benchmark::Initialize(&count, arguments);
    benchmark::RunSpecifiedBenchmarks();
    return EXIT_SUCCESS;
}

} // namespace
} // namespace gatewise::bench

int main(int count, char** arguments) {
    return gatewise::bench::run(count, arguments);
}
