#include "platform/AppFolder.h"
#include "platform/Files.h"
#include "platform/NativePath.h"
#include "tour/Tour.h"

#include <QApplication>
#include <QDir>
#include <QProcess>
#include <QTemporaryDir>

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <map>

namespace {

namespace fs = std::filesystem;

/// The program folder that the tour stands in, else that of the build.
fs::path program() {
    const fs::path own = gatewise::programFolder();
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

void keepPrints(const std::vector<gatewise::simulated::PrintedText>& prints, const fs::path& out) {
    for (std::size_t i = 0; i < prints.size(); ++i) {
        const fs::path file = out / ("printed " + std::to_string(i + 1) + ".txt");
        std::ofstream(file, std::ios::binary) << prints[i].text;
        std::cout << "  " << file.string() << '\n';
    }
}

int play(const std::string& folder, const std::string& out, bool fine) {
    gatewise::stage::Stage stage(
        gatewise::stage::makeProgramFolder(gatewise::files::utf8Of(program()), folder));
    stage.machine.registry.folder = gatewise::files::textOf(fs::path(folder) / "FS2002");
    const Times before = filesOf(folder);
    const Times delivered = filesOf(program());
    gatewise::tour::Tour tour(stage, out, fine);
    tour.play();
    for (const auto& picture : tour.pictures()) std::cout << picture << '\n';
    if (!fine) {
        keepFiles(folder, before, fs::path(out) / "files");
        keepPrints(stage.machine.printer.printed, fs::path(out) / "files");
    }
    for (const auto& complaint : tour.complaints()) std::cerr << "tour: " << complaint << '\n';
    for (const auto& miss : stage.misses) std::cerr << "tour: " << miss << '\n';
    const bool untouched = filesOf(program()) == delivered;
    if (!untouched) std::cerr << "tour: the delivered folder has changed\n";
    return untouched && tour.complaints().empty() && stage.misses.empty() ? EXIT_SUCCESS : EXIT_FAILURE;
}

} // namespace

/// tour [OUT_FOLDER]: plays the program without a display and leaves its pictures in the folder ("tour" when
/// none is named). The second round, for fine screens, runs in a process of its own, as its scale is settled
/// at the start.
int main(int count, char** arguments) {
    if (count > 2 || (count == 2 && arguments[1][0] == '-')) {
        std::cerr << "tour [OUT_FOLDER]\n";
        return EXIT_FAILURE;
    }
    const bool fine = qgetenv("QT_SCALE_FACTOR") == "2";
    const QTemporaryDir scratch;
    gatewise::stage::useRoomyDesk(scratch.path().toStdString());
    QApplication application(count, arguments);
    const QString out = QDir(count > 1 ? arguments[1] : "tour").absolutePath();
    QDir().mkpath(out);
    const int result = play(scratch.path().toStdString(), out.toStdString(), fine);
    if (fine || result != EXIT_SUCCESS) return result;
    QProcess second;
    auto environment = QProcessEnvironment::systemEnvironment();
    environment.insert("QT_SCALE_FACTOR", "2");
    second.setProcessEnvironment(environment);
    second.setProcessChannelMode(QProcess::ForwardedChannels);
    second.start(QCoreApplication::applicationFilePath(), {out});
    second.waitForFinished(-1);
    return second.exitCode();
}
