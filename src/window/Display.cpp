#include "window/Display.h"

#include "platform/Profile.h"
#include "window/Desk.h"
#include "window/DisplayKey.h"
#include "window/Sheets.h"
#include "window/Tone.h"
#include "work/ConfigFile.h"

#include <QApplication>
#include <QKeyEvent>
#include <QMenu>
#include <QScreen>
#include <QWheelEvent>

#include <algorithm>
#include <cmath>

namespace gatewise::window {

namespace {

constexpr const char* kSection = "Window";
constexpr double kShare = 0.7;    // of the screen's height that is proposed
constexpr double kLargest = 3;    // 300 %
constexpr double kSmallest = 0.5; // on a screen that is smaller still the window is cut

std::string zoomKey(const QSize& size) {
    return "Zoom" + std::to_string(size.width()) + "x" + std::to_string(size.height());
}

/// The skins in the order of their choice: as the profile and as the menu calls them.
struct SkinRow {
    const char* word;
    const char* shown;
};
constexpr SkinRow kSkins[] = {{"computer", "Colours as the computer has them"},
                              {"night", "Colours of the terminal at night"},
                              {"contrast", "High contrast"}};

SkinChoice skinOf(const std::string& word) {
    for (std::size_t i = 0; i < std::size(kSkins); ++i) {
        if (word == kSkins[i].word) return static_cast<SkinChoice>(i);
    }
    return SkinChoice::AsComputer;
}

/// The percent that the profile has under a key, -1 for what none of the rows has.
int zoomOf(const std::string& word) {
    if (word == "fit") return 0;
    for (const int percent : kZoomPercent) {
        if (percent != 0 && word == std::to_string(percent)) return percent;
    }
    return -1;
}

int keyStep(int key) {
    return key == Qt::Key_Plus || key == Qt::Key_Equal ? 1 : key == Qt::Key_Minus ? -1 : 0;
}

} // namespace

int proposedPercent(double height, double fit, double text) {
    constexpr int kStep = 25;
    const double wanted = std::max(kShare * height / 600, text) * 100;
    const int nearest = static_cast<int>(std::lround(wanted / kStep)) * kStep;
    const int room = static_cast<int>(std::floor(fit * 100 / kStep)) * kStep;
    return std::clamp(std::min(nearest, room), 75, 300);
}

Display::Display(Forms& forms, Desk& desk) : forms_(forms), desk_(desk) {
    desk.afterSync = [this] { follow(); };
    qApp->installEventFilter(this);
    for (View* view : desk.window(forms.SettingsForm).views()) {
        auto* key = dynamic_cast<DisplayKey*>(view);
        if (key == nullptr) continue;
        connect(key, &QPushButton::clicked, this,
                [this, key] { makeMenu(key)->popup(key->mapToGlobal(QPoint(0, key->height()))); });
    }
}

Display::~Display() {
    desk_.afterSync = nullptr;
    setHighContrast(false);
}

const QScreen* Display::screen() const {
    const QScreen* at = desk_.mainWindow().QWidget::screen(); // its own screen() is the form
    return at != nullptr ? at : QGuiApplication::primaryScreen();
}

double Display::fit() const {
    const QScreen* at = screen();
    if (at == nullptr) return 1;
    const QSizeF room = at->availableGeometry().size();
    const double most =
        std::min(room.width() / forms_.MainForm.designWidth, room.height() / forms_.MainForm.designHeight);
    return std::clamp(std::floor(most * 100) / 100, kSmallest, kLargest);
}

double Display::factor() const {
    if (percent_ < 0) return 1;
    return percent_ == 0 ? fit() : std::min(percent_ / 100.0, fit());
}

/// After each event: brings size and colours to what is chosen. A window under the mouse keeps its size.
void Display::follow() {
    if (following_ || (QGuiApplication::mouseButtons() & Qt::LeftButton)) return;
    following_ = true;
    if (!appDir_.empty() && screen() != nullptr && screen()->size() != screenSize_) recall();
    const bool contrast =
        skin_ == SkinChoice::HighContrast || (skin_ == SkinChoice::AsComputer && wishes_.highContrast);
    if (contrast != highContrast()) {
        setHighContrast(contrast);
        desk_.repaintAll();
    }
    desk_.setSteady(steady_);
    desk_.setZoom(factor());
    following_ = false;
}

void Display::remember(const std::string& appDir) {
    appDir_ = appDir;
    recall();
    follow();
}

void Display::heed(const Wishes& wishes) {
    wishes_ = wishes;
    if (!appDir_.empty()) recall();
    desk_.sync();
}

void Display::recall() {
    const Profile profile = loadProfile(configPath(appDir_));
    screenSize_ = screen() != nullptr ? screen()->size() : QSize();
    percent_ = zoomOf(textIn(profile, kSection, zoomKey(screenSize_)));
    if (percent_ < 0) percent_ = proposedPercent(screenSize_.height(), fit(), wishes_.textScale);
    skin_ = skinOf(textIn(profile, kSection, "Skin"));
    const std::string steady = textIn(profile, kSection, "Steady");
    steady_ = steady.empty() ? wishes_.stillSigns : steady == "1";
}

void Display::keep(const std::string& key, const std::string& value) {
    if (appDir_.empty()) return;
    if (const auto error = WriteValues({{kSection, key, value}}, configPath(appDir_)))
        desk_.showNote("GT.cfg could not be written: " + QString::fromStdString(error.message()));
}

void Display::choosePercent(int percent) {
    percent_ = percent;
    if (screen() != nullptr) screenSize_ = screen()->size();
    keep(zoomKey(screenSize_), percent == 0 ? "fit" : std::to_string(percent));
    desk_.sync();
}

void Display::chooseSkin(SkinChoice skin) {
    skin_ = skin;
    keep("Skin", kSkins[static_cast<std::size_t>(skin)].word);
    desk_.sync();
}

void Display::chooseSteady(bool steady) {
    steady_ = steady;
    keep("Steady", steady ? "1" : "0");
    desk_.sync();
}

/// To the next size in that direction, from whatever is shown now; no larger than the screen.
void Display::step(int by) {
    const int now = static_cast<int>(std::lround(desk_.skin().zoom().factor * 100));
    int next = -1;
    for (const int percent : kZoomPercent) {
        if (percent == 0) continue;
        if (by > 0 && percent > now && next < 0) next = percent;
        if (by < 0 && percent < now) next = percent;
    }
    if (next > 0 && (by < 0 || next / 100.0 <= fit())) choosePercent(next);
}

QMenu* Display::makeMenu(QWidget* owner) {
    auto* menu = new QMenu(owner);
    menu->setAttribute(Qt::WA_DeleteOnClose);
    menu->setFont(desk_.skin().widgetFont("data"));
    menu->setStyleSheet(menuSheet(desk_.skin()));
    const auto add = [menu](const QString& text, bool on, bool usable, auto choose) {
        QAction* action = menu->addAction(text, menu, choose);
        action->setCheckable(true);
        action->setChecked(on);
        action->setEnabled(usable);
    };
    for (const int percent : kZoomPercent) {
        const QString text =
            percent == 0 ? QString("As large as the screen allows") : QString::number(percent) + " %";
        add(text, percent == percent_, percent / 100.0 <= fit(), [this, percent] { choosePercent(percent); });
    }
    menu->addSeparator();
    for (std::size_t i = 0; i < std::size(kSkins); ++i) {
        const auto skin = static_cast<SkinChoice>(i);
        add(kSkins[i].shown, skin == skin_, true, [this, skin] { chooseSkin(skin); });
    }
    menu->addSeparator();
    add("Signs stay lit instead of blinking", steady_, true, [this] { chooseSteady(!steady_); });
    return menu;
}

/// The wheel and the keys with Ctrl, in any window of the program.
bool Display::eventFilter(QObject* object, QEvent* event) {
    const bool wheel = event->type() == QEvent::Wheel;
    const bool key = event->type() == QEvent::KeyPress;
    if ((!wheel && !key) || !object->isWidgetType()) return false;
    if (dynamic_cast<ScreenWindow*>(static_cast<QWidget*>(object)->window()) == nullptr) return false;
    if (wheel) {
        const auto* turned = static_cast<const QWheelEvent*>(event);
        if (!turned->modifiers().testFlag(Qt::ControlModifier)) return false;
        if (const int notches = wheel_.take(*turned); notches != 0) step(notches);
        return true;
    }
    const auto* pressed = static_cast<const QKeyEvent*>(event);
    if ((pressed->modifiers() & ~(Qt::ShiftModifier | Qt::KeypadModifier)) != Qt::ControlModifier)
        return false;
    if (pressed->key() == Qt::Key_0)
        choosePercent(100);
    else if (keyStep(pressed->key()) != 0)
        step(keyStep(pressed->key()));
    else
        return false;
    return true;
}

} // namespace gatewise::window
