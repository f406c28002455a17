#include "platform/AppFolder.h"
#include "platform/Files.h"
#include "platform/NativePath.h"
#include "tour/Tour.h"

#include <QApplication>
#include <QProcess>
#include <QTemporaryDir>

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <iterator>
#include <map>
#include <string>
#include <vector>

namespace {

namespace fs = std::filesystem;
using namespace gatewise;

/// The program folder that the tour stands in, else that of the build.
fs::path program() {
    const fs::path own = programFolder();
    return fs::is_directory(own / "Images") ? own : fs::path(GATEWISE_PROGRAM_DIR);
}

using Times = std::map<fs::path, fs::file_time_type>;

/// The files below a folder, links left out.
Times filesOf(const fs::path& folder) {
    Times out;
    std::error_code error;
    for (const auto& entry : fs::recursive_directory_iterator(folder, error)) {
        const bool file = !entry.is_symlink(error) && entry.is_regular_file(error);
        if (file) out[fs::relative(entry.path(), folder, error)] = entry.last_write_time(error);
    }
    return out;
}

/// Lists what the program wrote since `before` and keeps it beside the pictures.
void keepFiles(const fs::path& folder, const Times& before, const fs::path& out) {
    std::cout << "Files written:\n";
    for (const auto& [name, time] : filesOf(folder)) {
        const auto old = before.find(name);
        if (old != before.end() && old->second == time) continue;
        std::error_code error;
        fs::create_directories((out / name).parent_path(), error);
        fs::copy_file(folder / name, out / name, fs::copy_options::overwrite_existing, error);
        std::cout << "  " << (out / name).string() << (error ? " (not kept)" : "") << '\n';
    }
}

void keepPrints(const std::vector<simulated::PrintedText>& prints, const fs::path& out) {
    for (std::size_t i = 0; i < prints.size(); ++i) {
        const fs::path file = out / ("printed " + std::to_string(i + 1) + ".txt");
        std::ofstream(file, std::ios::binary) << prints[i].text;
        std::cout << "  " << file.string() << '\n';
    }
}

/// One play of the tour on a desk of its own.
struct Round {
    const char* name;   // of the folder of its pictures, empty: that of all
    const char* ending; // of their names
    double scale;       // of the screen: its pixels to the program's
    int width, height;  // of the screen, its pixels
    int percent;        // zoom of the program's own, 0: as large as the screen allows
    window::SkinChoice skin;
    bool whole; // all pictures, and the files that were written
};

constexpr auto kNight = window::SkinChoice::Night;
constexpr Round kRounds[] = {
    {"", "", 1, 1920, 1200, 100, kNight, true},
    {"", "@2x", 2, 3840, 2400, 100, kNight, false},
    {"zoom-150", "", 1, 1920, 1200, 150, kNight, true},
    {"zoom-200", "", 1, 1920, 1200, 200, kNight, true},
    {"1024x768", "", 1, 1024, 768, 100, kNight, true},
    {"1024x768-by-1.5", "", 1.5, 1024, 768, 0, kNight, true},
    {"contrast", "", 1, 1920, 1200, 100, window::SkinChoice::HighContrast, true},
};
constexpr int kUsual = 2; // rounds without --rounds

int play(const std::string& folder, const fs::path& out, const Round& round) {
    stage::Stage stage(stage::makeProgramFolder(files::utf8Of(program()), folder));
    stage.machine.registry.folder = files::textOf(fs::path(folder) / "FS2002");
    stage.then([&] {
        stage.window.display.choosePercent(round.percent);
        stage.window.display.chooseSkin(round.skin);
    });
    const Times before = filesOf(folder);
    const Times delivered = filesOf(program());
    const fs::path pictures = out / round.name;
    fs::create_directories(pictures);
    tour::Tour tour(stage, {files::utf8Of(pictures), round.ending, round.whole});
    tour.play();
    for (const auto& picture : tour.pictures()) std::cout << picture << '\n';
    if (&round == kRounds) {
        keepFiles(folder, before, out / "files");
        keepPrints(stage.machine.printer.printed, out / "files");
    }
    const std::string where = "tour" + (round.name[0] != 0 ? " " + std::string(round.name) : "") + ": ";
    for (const auto& complaint : tour.complaints()) std::cerr << where << complaint << '\n';
    for (const auto& miss : stage.misses) std::cerr << where << miss << '\n';
    const bool untouched = filesOf(program()) == delivered;
    if (!untouched) std::cerr << "tour: the delivered folder has changed\n";
    return untouched && tour.complaints().empty() && stage.misses.empty() ? EXIT_SUCCESS : EXIT_FAILURE;
}

int playAlone(int count, char** arguments, const Round& round, const fs::path& out) {
    const QTemporaryDir scratch;
    stage::useDesk(scratch.path().toStdString(), round.width, round.height);
    const QApplication application(count, arguments);
    return play(scratch.path().toStdString(), out, round);
}

/// Each in a process of its own, as screen and scale are settled at the start.
int playAll(int count, char** arguments, int rounds, const fs::path& out) {
    const QCoreApplication application(count, arguments);
    int result = EXIT_SUCCESS;
    for (int i = 0; i < rounds; ++i) {
        QProcess round;
        auto environment = QProcessEnvironment::systemEnvironment();
        environment.insert("QT_SCALE_FACTOR", QString::number(kRounds[i].scale));
        round.setProcessEnvironment(environment);
        round.setProcessChannelMode(QProcess::ForwardedChannels);
        round.start(QCoreApplication::applicationFilePath(),
                    {"--round", QString::number(i), QString::fromStdString(files::utf8Of(out))});
        round.waitForFinished(-1);
        if (round.exitStatus() != QProcess::NormalExit || round.exitCode() != EXIT_SUCCESS)
            result = EXIT_FAILURE;
    }
    return result;
}

int usage() {
    std::cerr << "tour [--rounds] [OUT_FOLDER]\n";
    return EXIT_FAILURE;
}

} // namespace

/// tour [--rounds] [OUT_FOLDER]: plays the program without a display and leaves its pictures in the folder
/// ("tour" when none is named), a few of them once more for fine screens. With --rounds also at other sizes,
/// on a small screen and in high contrast, in a folder each.
int main(int count, char** arguments) {
    const std::vector<std::string> words = files::commandLine(count, arguments);
    const bool alone = words.size() == 3 && words[0] == "--round";
    const bool all = !words.empty() && words[0] == "--rounds";
    const std::size_t own = alone ? 2 : all ? 1 : 0; // words before the folder
    if (words.size() > own + 1 || (words.size() == own + 1 && words[own].starts_with('-'))) return usage();
    const fs::path out = fs::absolute(files::pathOfUtf8(words.size() > own ? words[own] : "tour"));
    fs::create_directories(out);
    if (!alone) return playAll(count, arguments, all ? static_cast<int>(std::size(kRounds)) : kUsual, out);
    const int number = std::atoi(words[1].c_str());
    if (number < 0 || number >= static_cast<int>(std::size(kRounds))) return usage();
    return playAlone(count, arguments, kRounds[number], out);
}
