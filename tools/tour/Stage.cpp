#include "tour/Stage.h"

#include "gtwindow/OffscreenDesk.h"
#include "input/UserEvents.h"
#include "platform/Files.h"
#include "platform/NativePath.h"
#include "platform/Profile.h"
#include "window/MapView.h"

#include <QApplication>
#include <QPainter>
#include <QTest>
#include <QTimer>

#include <chrono>
#include <filesystem>
#include <fstream>
#include <utility>

namespace gatewise::stage {

namespace fs = std::filesystem;

void useDesk(const std::string& scratch, int width, int height) {
    const fs::path file = files::pathOfUtf8(scratch + "/desk.json");
    std::ofstream(file)
        << "{\"windowFrameMargins\":false,\"screens\":[{\"name\":\"desk\",\"x\":0,\"y\":0,\"width\":" << width
        << ",\"height\":" << height << ",\"logicalDpi\":96,\"dpr\":1}]}";
    qputenv("QT_QPA_PLATFORM", gtwindow::offscreenDesk(file));
}

void useRoomyDesk(const std::string& scratch) {
    const double scale = qEnvironmentVariable("QT_SCALE_FACTOR", "1").toDouble();
    useDesk(scratch, static_cast<int>(1920 * scale), static_cast<int>(1200 * scale));
}

namespace {

/// A link to a file or folder; a copy of it where the system makes no links.
void link(const fs::path& from, const fs::path& to) {
    std::error_code error;
    if (fs::is_directory(from))
        fs::create_directory_symlink(from, to, error);
    else
        fs::create_symlink(from, to, error);
    if (error) fs::copy(from, to, fs::copy_options::recursive);
}

/// A folder of its own with links to the files of another: what the program writes there stays there.
void linkFiles(const fs::path& from, const fs::path& to) {
    if (!fs::exists(from)) return;
    fs::create_directories(to);
    for (const auto& entry : fs::directory_iterator(from)) {
        if (entry.is_directory())
            linkFiles(entry.path(), to / entry.path().filename());
        else
            link(entry.path(), to / entry.path().filename());
    }
}

} // namespace

std::string makeProgramFolder(const std::string& program, const std::string& scratch) {
    const fs::path from = files::pathOfUtf8(program);
    const fs::path to = files::pathOfUtf8(scratch) / "Gatewise";
    const fs::path simulator = files::pathOfUtf8(scratch) / "FS2002";
    fs::create_directories(to);
    fs::create_directories(simulator);
    // The log book comes to lie beside the data: that folder is a copy.
    if (fs::exists(from / "Data")) fs::copy(from / "Data", to / "Data", fs::copy_options::recursive);
    for (const char* folder : {"Images", "Fonts", "help"}) {
        if (fs::exists(from / folder)) link(from / folder, to / folder);
    }
    linkFiles(from / "Wavs", to / "Wavs");
    const std::string config = files::textOf(to / "GT.cfg");
    const auto delivered = files::readAll(files::textOf(from / "GT.cfg")).value_or(Bytes());
    Profile settings(asText(delivered));
    settings.set("Main", "First", "Amelia");
    settings.set("Main", "Last", "Hart");
    if (const auto error = files::replace(config, settings.content())) throw std::system_error(error);
    std::ofstream(simulator / "fs2002.cfg") << "[USERINTERFACE]\r\n";
    std::ofstream(simulator / "FS2002.exe") << "";
    fs::create_directories(simulator / "Aircraft" / "b737_800" / "panel");
    for (const char* flights : {"fs2kflts", "myflts"})
        fs::create_directories(simulator / "flights" / flights);
    std::ofstream(simulator / "Aircraft" / "b737_800" / "aircraft.cfg")
        << "[fltsim.0]\r\ntitle=Boeing 737-800 Quillmark\r\nsim=Boeing737-800\r\n";
    return files::textOf(to);
}

namespace {

QtMessageHandler printMessage = nullptr;

/// The platform without a display cannot bring a window to the front, and says so at each one.
void quietHandler(QtMsgType type, const QMessageLogContext& context, const QString& text) {
    if (!text.startsWith("This plugin does not support raise")) printMessage(type, context, text);
}

} // namespace

void StageLoop::work(const std::function<void()>& job) {
    constexpr std::chrono::minutes kPatience(5); // a step that fails must not hold the stage for ever
    if (!std::exchange(holds_, false)) return QtLoop::work(job);
    ++depth;
    QtLoop::work([&] {
        (void)gate_.try_acquire_for(kPatience);
        job();
    });
}

void StageLoop::letGo() {
    --depth;
    gate_.release();
}

Stage::Stage(const std::string& appDir, Time time)
    : loop_(timeOf(time)),
      window({machine.clock, machine.locale, machine.registry, machine.processes, machine.random, sound_,
              time == Time::Real ? nullptr : &machine.printer, &timeOf(time), &loop_},
             appDir) {
    if (printMessage == nullptr) printMessage = qInstallMessageHandler(quietHandler);
    machine.clock.set({2002, 6, 15, 8, 30, 14, 0});
    machine.clock.setBias(300);
    machine.loop.stopped = [this] { return window.program.ending; };
}

/// Whether the next step may begin: no step is on its way, or the one that is waits in a modal screen.
bool Stage::free() {
    if (window.desk.painting() || window.program.session.desk.StartupDone == kFalse) return false;
    // A window that has just come up gets the keyboard a moment later.
    constexpr int kPatience = 200;
    const QWidget* front = window.desk.front();
    const bool settled = front == nullptr || front->isActiveWindow() || ++waited_ > kPatience;
    if (!settled) return false;
    waited_ = 0;
    return running_.empty() || loop_.depth > running_.back();
}

void Stage::schedule() {
    QTimer::singleShot(1, &window.desk, [this] { nextStep(); });
}

void Stage::nextStep() {
    schedule();
    if (!free()) return;
    if (steps_.empty()) {
        window.program.ending = true;
        return;
    }
    const Step step = std::move(steps_.front());
    steps_.pop_front();
    running_.push_back(loop_.depth);
    step();
    running_.pop_back();
}

void Stage::play() {
    schedule();
    window.run();
}

void Stage::advance(std::int64_t milliseconds) {
    desk().act([&] { machine.loop.advance(milliseconds); });
}

QImage Stage::picture() {
    auto& clock = forms().MainForm;
    if (!clock.gt_sepLABEL.visible) desk().act([&] { user::tick(clock.GTclock_Timer); });
    desk().paint();
    QWidget* main = &desk().mainWindow();
    if (!clock.visible && desk().front() != nullptr) main = desk().front();
    std::vector<QWidget*> windows = {main};
    for (auto at = forms().front.rbegin(); at != forms().front.rend(); ++at) {
        QWidget& over = desk().window(**at);
        if (&over != main && over.isVisible()) windows.push_back(&over);
    }
    QRect all;
    for (const QWidget* one : windows) {
        all |= one->frameGeometry();
        for (window::MapView* map : one->findChildren<window::MapView*>()) map->settle();
    }
    const double ratio = main->devicePixelRatioF();
    QImage image(all.size() * ratio, QImage::Format_RGB32);
    image.setDevicePixelRatio(ratio);
    image.fill(Qt::black);
    QPainter painter(&image);
    for (QWidget* one : windows) painter.drawPixmap(one->pos() - all.topLeft(), one->grab());
    return image;
}

QPoint Stage::middle(const Control& control) {
    QWidget& target = widget(control);
    return target.mapTo(target.window(), target.rect().center());
}

QWindow* Stage::windowOf(const Control& control) {
    window::ScreenWindow& screen = desk().window(*control.screen);
    QWidget& target = widget(control);
    if (screen.isVisible() && target.isVisible() && target.isEnabled()) return screen.windowHandle();
    misses.push_back(control.fullName() + " cannot be reached");
    return nullptr;
}

void Stage::hover(Control& control) {
    if (QWindow* at = windowOf(control)) QTest::mouseMove(at, middle(control));
}

void Stage::click(Control& control) {
    hover(control);
    if (QWindow* at = windowOf(control)) QTest::mouseClick(at, Qt::LeftButton, {}, middle(control));
}

void Stage::doubleClick(Control& control) {
    hover(control);
    if (QWindow* at = windowOf(control)) QTest::mouseDClick(at, Qt::LeftButton, {}, middle(control));
}

void Stage::rightClick(Control& control) {
    hover(control);
    if (QWindow* at = windowOf(control)) QTest::mouseClick(at, Qt::RightButton, {}, middle(control));
}

void Stage::type(const QString& text) {
    for (const QChar c : text) {
        if (QWindow* at = QGuiApplication::focusWindow()) QTest::keyClick(at, c.toLatin1());
    }
}

void Stage::key(Qt::Key key, Qt::KeyboardModifiers modifiers) {
    if (QWindow* at = QGuiApplication::focusWindow())
        QTest::keyClick(at, key, modifiers);
    else
        misses.push_back("no window has the keyboard");
}

Control* Stage::focused() {
    const auto* view = window::viewOf(QApplication::focusWidget());
    return view == nullptr ? nullptr : view->control;
}

bool Stage::tabTo(const Control& control) {
    for (std::size_t i = 0; i < 80; ++i) {
        if (focused() == &control) return true;
        key(Qt::Key_Tab);
    }
    return false;
}

} // namespace gatewise::stage
