#include "gtwindow/WindowBackend.h"

#include "drive/Controls.h"
#include "gtwindow/Difference.h"
#include "gtwindow/Lists.h"
#include "gtwindow/Ranges.h"
#include "input/UserEvents.h"
#include "window/MapView.h"
#include "window/PickView.h"
#include "window/QtText.h"

#include <QApplication>
#include <QClipboard>
#include <QDesktopServices>
#include <QDialog>
#include <QTimer>
#include <QWindow>

namespace gatewise::gtwindow {

namespace {

bool isRows(const Control& control) {
    return control.kind == Kind::ListBox || control.kind == Kind::ListView ||
           control.kind == Kind::FolderList || control.kind == Kind::FileList;
}

int pickedOf(const Control& control) {
    if (control.kind == Kind::ListView) return static_cast<const ListView&>(control).picked;
    return static_cast<const ItemControl&>(control).picked;
}

Qt::Key codeOf(drive::Key key) {
    switch (key) {
    case drive::Key::Enter:
        return Qt::Key_Return;
    case drive::Key::Space:
        return Qt::Key_Space;
    case drive::Key::Escape:
        break;
    }
    return Qt::Key_Escape;
}

} // namespace

WindowBackend::WindowBackend(drive::Bench& bench)
    : bench_(bench),
      window_({bench.machine.clock, bench.machine.locale, bench.machine.registry, bench.machine.processes,
               bench.machine.random, bench.sounds.device, &bench.machine.printer, &time_, &loop_},
              bench.appDir) {
    QDesktopServices::setUrlHandler("file", this, "openHelp");
    qApp->installEventFilter(this);
}

void WindowBackend::openHelp(const QUrl& page) {
    bench_.machine.desktop.helpPages.push_back(window::fromQt(page.toLocalFile()));
}

/// Nobody sits at this desk to answer dialogs of the toolkit: what they propose is taken.
bool WindowBackend::eventFilter(QObject* object, QEvent* event) {
    if (event->type() == QEvent::Show) {
        if (auto* dialog = qobject_cast<QDialog*>(object)) {
            if (dynamic_cast<window::ScreenWindow*>(object) == nullptr) answerDialog(*dialog);
        }
    }
    return QObject::eventFilter(object, event);
}

void WindowBackend::answerDialog(QDialog& dialog) {
    constexpr int kMostTries = 20; // with Enter, until it is given up
    auto* again = new QTimer(&dialog);
    connect(again, &QTimer::timeout, &dialog, [&dialog, tries = 0]() mutable {
        if (!dialog.isVisible() || QApplication::activeModalWidget() != &dialog) return;
        if (++tries > kMostTries) {
            dialog.reject();
            return;
        }
        dialog.activateWindow();
        Keyboard::press(Qt::Key_Return);
    });
    again->start(5);
}

void WindowBackend::start() {
    window_.desktop.dotsPerInch = bench_.machine.desktop.dotsPerInch;
    window_.start();
}

void WindowBackend::advance(std::int64_t milliseconds) {
    window_.desk.act([&] { bench_.machine.loop.advance(milliseconds); });
}

void WindowBackend::tick(Timer& timer) {
    window_.desk.act([&] { user::tick(timer); });
}

/// Where the mouse goes for a control: in a list to its picked row.
std::optional<Spot> WindowBackend::spotOf(const Control& control) {
    return isRows(control) ? pickedSpot(pointer_, control, pickedOf(control)) : pointer_.reach(control);
}

void WindowBackend::click(Control& control) {
    if (const auto spot = spotOf(control)) pointer_.click(*spot);
}

void WindowBackend::doubleClick(Control& control) {
    if (const auto spot = spotOf(control)) pointer_.doubleClick(*spot);
}

void WindowBackend::press(Control& control) {
    if (const auto spot = spotOf(control)) pointer_.press(*spot);
}

void WindowBackend::release(Control& control) {
    pointer_.release(control, spotOf(control));
}

void WindowBackend::rightPress(Control& control) {
    if (const auto spot = spotOf(control)) pointer_.click(*spot, Qt::RightButton);
}

void WindowBackend::move(Control& control) {
    auto* table = isRows(control) ? tableOf(pointer_, control) : nullptr;
    const auto spot = table == nullptr
                          ? pointer_.reach(control)
                          : pointer_.reach(control, *table->viewport(), table->viewport()->rect());
    if (spot) pointer_.move(*spot);
}

void WindowBackend::drag(Control& ground, int dx, int dy) {
    if (const auto spot = pointer_.reach(ground, true)) pointer_.drag(*spot, {dx, dy});
}

void WindowBackend::focus(Control& control) {
    if (Keyboard::focused() == &control) Keyboard::press(Qt::Key_Tab);
    keyboard_.walkTo(control);
}

void WindowBackend::key(Control& control, drive::Key key, int repeats) {
    if (keyboard_.walkTo(control))
        Keyboard::hold(codeOf(key), repeats);
    else if (key == drive::Key::Escape && control.enabled)
        escape(*control.screen);
}

void WindowBackend::escape(Screen& screen) {
    if (!desk().window(screen).isVisible()) return;
    keyboard_.turnTo(screen);
    Keyboard::press(Qt::Key_Escape);
}

/// The platform's own window is told, as by the sign in its frame; what comes of it comes back through the
/// queue of the window system.
void WindowBackend::close(Screen& screen) {
    QPointer<QWindow> window = desk().window(screen).windowHandle();
    if (window == nullptr || !desk().window(screen).isVisible()) return;
    const auto tell = [window] {
        if (window != nullptr) window->close();
    };
    QMetaObject::invokeMethod(qApp, tell, Qt::QueuedConnection);
    QCoreApplication::processEvents();
}

void WindowBackend::type(TextBox& box, std::string text) {
    const auto spot = pointer_.reach(box);
    if (!spot) return;
    pointer_.click(*spot);
    if (Keyboard::focused() != &box) return;
    if (!box.multiLine) text.resize(std::min(text.size(), text.find_first_of("\r\n")));
    Keyboard::press(Qt::Key_A, Qt::ControlModifier);
    if (text.empty())
        Keyboard::press(Qt::Key_Delete);
    else
        Keyboard::type(window::toQt(text));
}

/// The point of a chart that shows what has that id.
std::optional<Spot> WindowBackend::spotOf(const Control& chart, int id) {
    auto* view = dynamic_cast<window::PickView*>(pointer_.viewOf(chart));
    if (view == nullptr) return std::nullopt;
    const auto at = view->pointOf(id);
    return at ? pointer_.reach(chart, *view->widget(), QRect(*at, QSize(1, 1))) : std::nullopt;
}

void WindowBackend::hover(Chart& chart, int id) {
    const auto spot = id < 0 ? pointer_.reach(*chart.screen->controls.front()) : spotOf(chart, id);
    if (spot) pointer_.move(*spot);
}

void WindowBackend::choose(Control& list, int place) {
    if (list.kind == Kind::Chart) {
        if (const auto spot = spotOf(list, place)) pointer_.click(*spot);
    } else if (isRows(list))
        chooseRow(pointer_, list, place);
    else
        chooseItem(pointer_, list, place);
}

/// A click turns a check box: one that shows the value already is turned and turned back. An option stays.
void WindowBackend::check(Control& box, int value) {
    const auto now = [&] {
        return box.kind == Kind::Check ? static_cast<const Check&>(box).value
                                       : static_cast<int>(static_cast<const Option&>(box).value);
    };
    for (int clicks = 0; clicks < 2; ++clicks) {
        const auto spot = pointer_.reach(box);
        if (!spot) return;
        pointer_.click(*spot);
        if (now() == value) return;
    }
}

void WindowBackend::slide(RangeControl& range, int value) {
    slideTo(pointer_, keyboard_, range, value);
}

void WindowBackend::column(ListView& list, int column) {
    clickColumn(pointer_, list, column);
}

void WindowBackend::path(PathList& list, std::string path) {
    walkFolders(pointer_, list, path);
}

bool WindowBackend::busy() const {
    return QApplication::overrideCursor() != nullptr;
}

std::string WindowBackend::clipboard() const {
    return window::fromQt(QGuiApplication::clipboard()->text());
}

std::optional<std::string> WindowBackend::differs(const Control& control) {
    return difference(window_.desk, control);
}

std::optional<std::string> WindowBackend::differs(const Screen& screen) {
    return difference(window_.desk, screen);
}

/// A map that is still being drawn would outlive what it is drawn with.
void WindowBackend::leave() {
    for (QWidget* widget : QApplication::allWidgets()) {
        if (auto* map = dynamic_cast<window::MapView*>(widget)) map->finish();
    }
}

} // namespace gatewise::gtwindow
