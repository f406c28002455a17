#include "window/Desk.h"

#include "input/Blocking.h"
#include "input/UserEvents.h"
#include "window/Accessible.h"
#include "window/QtText.h"
#include "window/ToolTips.h"

#include <QApplication>
#include <QScreen>
#include <QToolTip>

#include <algorithm>

namespace gatewise::window {

namespace {

constexpr int kMostRounds = 8; // of one sync, for changes that bring about further changes

/// A screen without controls, up for a moment of work. It may be gone before the window manager has given it
/// the keyboard, which would then lie with a hidden window: it never takes it.
bool isNotice(const Forms& forms, const Screen& screen) {
    return &screen == &forms.WaitForm || &screen == &forms.SplashForm;
}

Qt::WindowFlags flagsOf(const Forms& forms, const Screen& screen) {
    Qt::WindowFlags flags = Qt::FramelessWindowHint;
    flags |= &screen == &forms.MainForm     ? Qt::Window | Qt::WindowMinimizeButtonHint
             : &screen == &forms.SplashForm ? Qt::SplashScreen
                                            : Qt::Dialog;
    if (isNotice(forms, screen)) flags |= Qt::WindowDoesNotAcceptFocus;
    return flags;
}

} // namespace

Desk::Desk(Forms& forms, Skin& skin) : forms_(forms), skin_(skin) {
    installAccessibility();
    static const ScreenLayout none;
    for (Screen* screen : forms_.all()) {
        const auto layout = skin.layout().screens.find(screen->name);
        windows_[screen] = std::make_unique<ScreenWindow>(
            *this, *screen, layout == skin.layout().screens.end() ? none : layout->second);
    }
    // The sound asks for the handle of this window before it is shown. It has to stay the same: the system
    // lets the sound be heard while just that window is in front.
    mainWindow().setWindowFlags(flagsOf(forms_, forms_.MainForm));
    centreMain();
    qApp->installEventFilter(this);
    connect(qApp, &QApplication::focusChanged, this, [](QWidget*, QWidget* now) {
        if (now == nullptr) return;
        if (auto* window = dynamic_cast<ScreenWindow*>(now->window())) window->focusMoved(now);
    });
}

Desk::~Desk() {
    // Dialogs hang below other windows; each has one owner only.
    for (auto& [screen, window] : windows_) window->setParent(nullptr);
}

void Desk::centreMain() {
    auto& main = forms_.MainForm;
    if (const QScreen* screen = QApplication::primaryScreen()) {
        const QPointF middle = QPointF(screen->availableGeometry().center()) / skin_.zoom().factor;
        main.left = std::max(0.0, middle.x() - main.designWidth / 2.0);
        main.top = std::max(0.0, middle.y() - main.designHeight / 2.0);
    }
    mainWindow().place();
}

void Desk::act(const std::function<void()>& what) {
    what();
    sync();
}

void Desk::sync() {
    if (syncing_) {
        again_ = true;
        return;
    }
    syncing_ = true;
    int rounds = 0;
    do {
        again_ = false;
        syncOnce();
    } while (again_ && ++rounds < kMostRounds);
    syncing_ = false;
    if (afterSync) afterSync();
    if (QAccessible::isActive()) announce(mainWindow(), speech_.look(forms_.MainForm));
}

void Desk::setZoom(double factor) {
    const double before = skin_.zoom().factor;
    if (factor == before) return;
    auto& main = forms_.MainForm;
    const auto moved = [&](double at, int size) {
        return (at + size / 2.0) * before / factor - size / 2.0 - at;
    };
    const double right = moved(main.left, main.designWidth);
    const double down = moved(main.top, main.designHeight);
    skin_.setZoom(factor);
    QToolTip::setFont(skin_.widgetFont("body"));
    for (const auto& [screen, window] : windows_) {
        auto* form = const_cast<Screen*>(screen);
        form->left += right;
        form->top += down;
        window->takeSizes();
    }
    delete note_; // it has the old size
    sync();
}

void Desk::setSteady(bool steady) {
    if (skin_.steady == steady) return;
    skin_.steady = steady;
    sync();
}

void Desk::repaintAll() {
    skin_.forgetPictures();
    for (const auto& [screen, window] : windows_) window->takeSizes();
    sync();
}

void Desk::syncOnce() {
    bool hidden = false;
    for (const auto& [screen, window] : windows_) {
        if (!screen->visible && window->isVisible()) {
            window->hide();
            hidden = true;
        }
    }
    // Showing a window moves the focus, whose handlers may show and hide screens: the walk goes over a copy
    // and asks again at each.
    const std::vector<Screen*> walk(forms_.front.rbegin(), forms_.front.rend());
    for (const Screen* screen : walk) {
        if (screen->visible) syncWindow(window(*screen));
    }
    if (!hidden) return;
    const auto now = std::find_if(forms_.front.begin(), forms_.front.end(),
                                  [this](const Screen* screen) { return !isNotice(forms_, *screen); });
    if (now != forms_.front.end()) window(**now).activateWindow();
}

void Desk::syncWindow(ScreenWindow& window) {
    window.sync();
    window.place();
    if (!window.isVisible()) showWindow(window);
}

/// The window that a screen's own one belongs to and lies over: the main one, or that of the innermost modal
/// screen below it, which would block it otherwise.
QWidget* Desk::ownerOf(const Screen& screen) const {
    if (&screen == &forms_.MainForm || &screen == &forms_.SplashForm) return nullptr;
    const Screen* modal = user::modalBelow(forms_, screen);
    return &window(modal == nullptr ? forms_.MainForm : *modal);
}

void Desk::showWindow(ScreenWindow& window) {
    Screen& screen = window.screen();
    const bool notice = isNotice(forms_, screen);
    const Qt::WindowFlags flags = flagsOf(forms_, screen);
    QWidget* owner = ownerOf(screen);
    if (window.parentWidget() != owner || window.windowFlags() != flags) window.setParent(owner, flags);
    window.setWindowModality(screen.modal ? Qt::ApplicationModal : Qt::NonModal);
    window.setAttribute(Qt::WA_ShowWithoutActivating, notice);
    window.place();
    window.show();
    window.raise();
    if (notice) return;
    window.activateWindow();
    window.focusFirst();
}

void Desk::paint() {
    sync();
    const bool outer = painting_;
    painting_ = true;
    for (const auto& [screen, window] : windows_) {
        if (window->isVisible()) window->repaint();
    }
    QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents | QEventLoop::ExcludeSocketNotifiers);
    painting_ = outer;
}

ScreenWindow* Desk::front() const {
    return forms_.front.empty() ? nullptr : &window(*forms_.front.front());
}

void Desk::showNote(const QString& text, const QString& file) {
    delete note_;
    if (ScreenWindow* window = front()) note_ = new Note(text, file, *window, skin_);
}

QString Desk::note() const {
    return note_ == nullptr ? QString() : note_->text();
}

void Desk::turnTo(ScreenWindow& window) {
    user::turnTo(forms_, window.screen());
    if (front() != &window) return;
    window.raise();
    window.activateWindow();
}

/// Whether the event would close a window that a modal screen blocks: not every way in asks.
bool Desk::closesBlocked(const QObject& object, const QEvent& event) const {
    if (event.type() != QEvent::Close) return false;
    const auto* window = dynamic_cast<const ScreenWindow*>(&object);
    return window != nullptr && user::blockedBy(forms_, window->screen()) != nullptr;
}

/// A press or a key in a window is the person's turning to it.
bool Desk::eventFilter(QObject* object, QEvent* event) {
    if (showTip(object, event)) return true;
    if (closesBlocked(*object, *event)) {
        event->ignore();
        return true;
    }
    const bool turns = event->type() == QEvent::MouseButtonPress || event->type() == QEvent::KeyPress;
    if (turns && object->isWidgetType()) {
        auto* window = dynamic_cast<ScreenWindow*>(static_cast<QWidget*>(object)->window());
        if (window != nullptr && front() != window) turnTo(*window);
        if (window != nullptr) window->touched(event->type() == QEvent::MouseButtonPress);
    }
    return QObject::eventFilter(object, event);
}

} // namespace gatewise::window
