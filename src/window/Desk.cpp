#include "window/Desk.h"

#include "window/Accessible.h"
#include "window/QtText.h"

#include <QApplication>
#include <QScreen>
#include <QTimer>

#include <algorithm>

namespace gatewise::window {

namespace {

constexpr int kNoteTime = 15000; // milliseconds
constexpr int kMostRounds = 8;   // of one sync, for changes that bring about further changes

/// A screen without controls, up for a moment of work. It may be gone before the window manager has given it
/// the keyboard, which would then lie with a hidden window: it never takes it.
bool isNotice(const Forms& forms, const Screen& screen) {
    return &screen == &forms.WaitForm || &screen == &forms.SplashForm;
}

} // namespace

Desk::Desk(Forms& forms, const Skin& skin) : forms_(forms), skin_(skin) {
    installAccessibility();
    static const ScreenLayout none;
    for (Screen* screen : forms_.all()) {
        const auto layout = skin.layout().screens.find(screen->name);
        windows_[screen] = std::make_unique<ScreenWindow>(
            *this, *screen, layout == skin.layout().screens.end() ? none : layout->second);
    }
    auto& main = forms_.MainForm;
    if (const QScreen* screen = QApplication::primaryScreen()) {
        const QPoint middle = screen->availableGeometry().center();
        main.left = std::max(0, middle.x() - main.designWidth / 2);
        main.top = std::max(0, middle.y() - main.designHeight / 2);
    }
    connect(qApp, &QApplication::focusChanged, this, [](QWidget*, QWidget* now) {
        if (now == nullptr) return;
        if (auto* window = dynamic_cast<ScreenWindow*>(now->window())) window->focusMoved(now);
    });
}

Desk::~Desk() {
    // Dialogs hang below other windows; each has one owner only.
    for (auto& [screen, window] : windows_) window->setParent(nullptr);
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
}

void Desk::syncOnce() {
    bool hidden = false;
    for (const auto& [screen, window] : windows_) {
        if (!screen->visible && window->isVisible()) {
            window->hide();
            hidden = true;
        }
    }
    for (auto at = forms_.front.rbegin(); at != forms_.front.rend(); ++at) {
        ScreenWindow& window = this->window(**at);
        window.sync();
        window.place();
        if (!window.isVisible()) showWindow(window);
    }
    if (!hidden) return;
    const auto now = std::find_if(forms_.front.begin(), forms_.front.end(),
                                  [this](const Screen* screen) { return !isNotice(forms_, *screen); });
    if (now != forms_.front.end()) window(**now).activateWindow();
}

void Desk::showWindow(ScreenWindow& window) {
    Screen& screen = window.screen();
    const bool main = &screen == &forms_.MainForm;
    const bool splash = &screen == &forms_.SplashForm;
    const bool notice = isNotice(forms_, screen);
    Qt::WindowFlags flags = Qt::FramelessWindowHint;
    flags |= main ? Qt::Window | Qt::WindowMinimizeButtonHint : splash ? Qt::SplashScreen : Qt::Dialog;
    if (notice) flags |= Qt::WindowDoesNotAcceptFocus;
    // A screen that comes up over a modal one belongs to it, else the modal one would block it.
    QWidget* owner = nullptr;
    if (!main && !splash) {
        owner = &this->window(forms_.MainForm);
        for (Screen* below : forms_.front) {
            if (below != &screen && below->modal) {
                owner = &this->window(*below);
                break;
            }
        }
    }
    if (window.parentWidget() != owner || window.windowFlags() != flags) window.setParent(owner, flags);
    window.setWindowModality(screen.modal ? Qt::ApplicationModal : Qt::NonModal);
    window.setAttribute(Qt::WA_ShowWithoutActivating, notice);
    window.putOut();
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

void Desk::showNote(const QString& text) {
    ScreenWindow* window = front();
    if (window == nullptr) return;
    delete note_;
    note_ = new QLabel(text, window);
    connect(note_, &QObject::destroyed, this, [this](QObject* gone) {
        if (gone == note_) note_ = nullptr;
    });
    note_->installEventFilter(this);
    note_->setWordWrap(true);
    note_->setFont(skin_.font("data"));
    note_->setTextFormat(Qt::PlainText);
    note_->setMargin(10);
    note_->setStyleSheet(QString("background:%1;color:%2;border-radius:4px")
                             .arg(skin_.style("tooltip.back").name(), skin_.style("tooltip.text").name()));
    note_->setAccessibleName(text);
    const int width = std::min(window->width() - 24, 480);
    note_->setFixedWidth(width);
    note_->adjustSize();
    note_->move((window->width() - width) / 2, window->height() - note_->height() - 12);
    note_->show();
    note_->raise();
    QAccessibleEvent event(note_, QAccessible::Alert);
    QAccessible::updateAccessibility(&event);
    QTimer::singleShot(kNoteTime, note_, &QObject::deleteLater);
}

bool Desk::eventFilter(QObject* object, QEvent* event) {
    if (object != note_ || event->type() != QEvent::MouseButtonPress)
        return QObject::eventFilter(object, event);
    note_->deleteLater();
    return true;
}

QString Desk::note() const {
    return note_ == nullptr ? QString() : note_->text();
}

} // namespace gatewise::window
