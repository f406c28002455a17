// check_window FOLDER: from the key to the sheet on Windows: a flight is picked on the board, its plan is
// shown and printed as it ships. Copies what was printed into the folder, the pages as PDF and the text that
// was handed over. Then a lock that a program left which had the number of this one.

#include "platform/AppFolder.h"
#include "platform/NativePath.h"
#include "tour/Stage.h"
#include "window/OneInstance.h"

#include <QApplication>
#include <QFile>
#include <QLockFile>
#include <QTemporaryDir>

#include <cstdlib>
#include <filesystem>
#include <iostream>

namespace {

namespace fs = std::filesystem;
using namespace gatewise;

void printPlan(stage::Stage& stage) {
    Forms& forms = stage.forms();
    stage.then([&] { stage.doubleClick(forms.MainForm.city_LABEL(3)); });
    stage.then([&] { stage.click(forms.MainForm.viewButton); });
    stage.then([&] { stage.click(forms.ViewPlan.chartsButton); });
    stage.then([&] { stage.click(forms.ViewPlan.printButton); });
    stage.then([&] { stage.key(Qt::Key_Escape); });
    stage.then([&] { stage.key(Qt::Key_Escape); });
    stage.play();
    for (const auto& miss : stage.misses) std::cerr << "check_window: " << miss << '\n';
}

/// Writes the bytes of a lock of this program back when it has let go of it: they are those of one that was
/// killed.
QByteArray leaveLock(const QString& file) {
    QByteArray bytes;
    {
        QLockFile lock(file);
        lock.tryLock(0);
        QFile in(file);
        if (in.open(QIODevice::ReadOnly)) bytes = in.readAll();
    }
    QFile out(file);
    if (out.open(QIODevice::WriteOnly)) out.write(bytes);
    return bytes;
}

bool takesOverOwnNumber(const std::string& scratch) {
    const QString folder = QString::fromStdString(scratch);
    const QByteArray left = leaveLock(folder + "/gatewise.lock");
    const bool own = left.startsWith(QByteArray::number(QCoreApplication::applicationPid()) + "\n");
    if (own && window::OneInstance(folder).first()) return true;
    std::cerr << "check_window: the lock is not taken over: " << left.toStdString() << '\n';
    return false;
}

} // namespace

int main(int count, char** arguments) {
    const auto words = files::commandLine(count, arguments);
    if (words.size() != 1) return 2;
    const fs::path out = files::pathOfUtf8(words[0]);
    const QTemporaryDir scratch;
    const std::string folder = scratch.path().toStdString();
    stage::useRoomyDesk(folder);
    QApplication application(count, arguments);
    stage::Stage stage(stage::makeProgramFolder(files::utf8Of(programFolder()), folder), stage::Time::Real);
    printPlan(stage);
    std::error_code error;
    fs::create_directories(out, error);
    const auto replace = fs::copy_options::overwrite_existing;
    for (const char* name : {"Printout 1.pdf", "Printout 1.txt"}) {
        if (!error)
            fs::copy_file(files::pathOfUtf8(folder) / "Gatewise" / "Printouts" / name, out / name, replace,
                          error);
    }
    if (error) std::cerr << "check_window: nothing was printed: " << error.message() << '\n';
    const bool taken = takesOverOwnNumber(folder);
    return error || !stage.misses.empty() || !taken ? EXIT_FAILURE : EXIT_SUCCESS;
}
