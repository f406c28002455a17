#include "drive/Session.h"
#include "gtwindow/OffscreenDesk.h"
#include "gtwindow/WindowBackend.h"
#include "platform/Files.h"
#include "platform/NativePath.h"

#include <QApplication>
#include <QTemporaryDir>

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <memory>

namespace {

/// A desk without a display, wide enough for windows that are dragged about, with the main window's corner at
/// its origin as on the desk of the driver without a window.
void useWideDesk(const std::filesystem::path& folder) {
    const auto file = folder / "desk.json";
    std::ofstream(file) << R"({"windowFrameMargins":false,"screens":[{"name":"desk","x":-4000,"y":-4000,)"
                           R"("width":6400,"height":6400,"logicalDpi":96,"dpr":1}]})";
    qputenv("QT_QPA_PLATFORM", gatewise::gtwindow::offscreenDesk(file));
}

QtMessageHandler printMessage = nullptr;

/// The platform without a display says what it cannot do at every window.
void quietHandler(QtMsgType type, const QMessageLogContext& context, const QString& text) {
    if (!text.startsWith("This plugin does not support") && !text.startsWith("QStandardPaths"))
        printMessage(type, context, text);
}

} // namespace

int main(int count, char** arguments) {
    namespace fs = std::filesystem;
    using namespace gatewise;
    if (count != 2) {
        std::cerr << "usage: gtwindow PROGRAM_FOLDER\n";
        return EXIT_FAILURE;
    }
    std::error_code error;
    const std::string named = files::commandLine(count, arguments).at(0);
    fs::path folder = fs::absolute(files::pathOfUtf8(named), error).lexically_normal();
    if (!folder.has_filename()) folder = folder.parent_path();
    if (files::kindOf(folder) != files::Kind::Folder) {
        std::cerr << "gtwindow: no folder " << named << '\n';
        return EXIT_FAILURE;
    }
    std::ios::sync_with_stdio(false);
    auto scratch = std::make_unique<QTemporaryDir>(); // the process ends without unwinding
    // Who names the platform alone gets its wide desk too: its own is smaller than two windows.
    const fs::path stood = fs::current_path(error);
    const QByteArray platform = qgetenv("QT_QPA_PLATFORM");
    if (platform.isEmpty() || platform == "offscreen")
        useWideDesk(files::pathOfUtf8(scratch->path().toStdString()));
    printMessage = qInstallMessageHandler(quietHandler);
    QApplication application(count, arguments);
    scratch.reset();
    fs::current_path(stood, error);      // the desk's file may have wanted another drive
    QApplication::setCursorFlashTime(0); // two looks at a field show the same

    drive::Bench bench(files::textOf(folder));
    gtwindow::WindowBackend backend(bench);
    drive::Session session(bench, backend, std::cin, std::cout);
    gtwindow::Pump pump(session);
    backend.attach(pump);
    while (true) QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
}
