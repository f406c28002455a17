#include "window/StageTest.h"

#include "input/Bind.h"
#include "window/LabelText.h"
#include "window/PaintedViews.h"
#include "window/QtText.h"
#include "window/Witness.h"

#include <QAccessible>

#include <map>
#include <optional>
#include <set>

// One look at every screen: form, layout and window belong together.

namespace gatewise::test {

namespace {

using window::ScreenLayout;
using window::View;

class Screens : public StageTest {
protected:
    const ScreenLayout& layout(const Screen& screen) {
        return stage().window.skin.layout().screens.at(screen.name);
    }
};

bool needsName(const Control& control) {
    switch (control.kind) {
    case Kind::Label:
    case Kind::Container:
    case Kind::HitArea:
    case Kind::Timer:
        return false;
    default:
        return true;
    }
}

/// Writes down what is painted while it lives.
class Written : public window::Witness {
public:
    Written() { now = this; }
    ~Written() override { now = nullptr; }
    Written(const Written&) = delete;
    Written& operator=(const Written&) = delete;

    void text(const QPaintDevice& on, const QString& text, const QColor&) override {
        texts_.try_emplace(&on, text.toStdString());
    }
    void picture(const QPaintDevice&, const QPixmap&) override { ++pictures; }
    /// The first text on a widget.
    [[nodiscard]] std::string on(const QWidget& widget) const {
        const auto at = texts_.find(&widget);
        return at == texts_.end() ? "nothing painted" : at->second;
    }
    int pictures = 0;

private:
    std::map<const QPaintDevice*, std::string> texts_;
};

/// What a view without its picture shows in words; nothing for one that has none.
std::optional<QString> shownWords(const View& view) {
    if (view.control == nullptr) return std::nullopt;
    const Control& control = *view.control;
    if (control.kind == Kind::Label && !view.place.font.empty())
        return window::toQt(static_cast<const Label&>(control).text);
    const bool key = control.kind >= Kind::FlatButton && control.kind <= Kind::PushButton;
    if (key || control.kind == Kind::Picture) return view.spokenName();
    return std::nullopt;
}

} // namespace

TEST_F(Screens, EveryScreenHasALayoutOfItsSize) {
    for (const Screen* screen : forms().all()) {
        ASSERT_TRUE(stage().window.skin.layout().screens.contains(screen->name)) << screen->name;
        EXPECT_EQ(layout(*screen).size, QSize(screen->designWidth, screen->designHeight)) << screen->name;
    }
}

TEST_F(Screens, EveryControlOfTheLayoutStandsInTheForm) {
    for (const Screen* screen : forms().all()) {
        std::set<std::string> seen;
        for (const auto& place : layout(*screen).controls) {
            if (place.kind == "shape" || place.kind == "displaykey") continue; // the window's own
            EXPECT_NE(screen->find(place.name, place.index), nullptr)
                << screen->name << "." << place.name << " " << place.index;
            const std::string key = place.name + "/" + std::to_string(place.index);
            EXPECT_TRUE(seen.insert(key).second) << screen->name << "." << key << " stands twice";
        }
    }
}

TEST_F(Screens, EveryControlOfTheFormHasAView) {
    for (const Screen* screen : forms().all()) {
        for (const Control* control : screen->controls) {
            if (control->kind == Kind::Timer) continue;
            EXPECT_NE(stage().desk().window(*screen).view(*control), nullptr) << control->fullName();
        }
    }
}

TEST_F(Screens, TextsOfFormAndLayoutAgree) {
    for (const Screen* screen : forms().all()) {
        for (const View* view : stage().desk().window(*screen).views()) {
            if (view->control == nullptr || view->control->kind != Kind::Label) continue;
            if (view->place.text.empty() || view->place.text.starts_with("(")) continue;
            EXPECT_EQ(static_cast<const Label*>(view->control)->text, view->place.text)
                << view->control->fullName();
        }
    }
}

TEST_F(Screens, EveryViewLiesInsideItsParent) {
    for (const Screen* screen : forms().all()) {
        for (View* view : stage().desk().window(*screen).views()) {
            const QWidget* widget = view->widget();
            const QRect room = widget->parentWidget()->rect();
            EXPECT_TRUE(room.adjusted(0, 0, 1, 1).contains(widget->geometry()))
                << screen->name << "." << view->place.name;
        }
    }
}

TEST_F(Screens, EveryControlHasANameForScreenReaders) {
    bindScreens(stage().window.program); // some controls get their words from what the program knows
    for (const Screen* screen : forms().all()) {
        stage().desk().window(*screen).sync();
        for (View* view : stage().desk().window(*screen).views()) {
            if (view->control == nullptr || !needsName(*view->control)) continue;
            QWidget* inside = view->widget()->focusProxy();
            QAccessibleInterface* access =
                QAccessible::queryAccessibleInterface(inside != nullptr ? inside : view->widget());
            ASSERT_NE(access, nullptr) << view->control->fullName();
            const QString name = access->text(QAccessible::Name);
            EXPECT_FALSE(name.isEmpty()) << view->control->fullName();
            EXPECT_LT(name.size(), 70) << view->control->fullName() << " is called " << name.toStdString();
        }
    }
}

TEST_F(Screens, NamesTellControlsOfAScreenApart) {
    for (const Screen* screen : forms().all()) {
        std::map<std::string, std::string> owners;
        for (View* view : stage().desk().window(*screen).views()) {
            if (view->control == nullptr || !view->takesFocus()) continue;
            if (view->lines != nullptr) continue; // told apart by their line and column
            const std::string name = view->spokenName().toStdString();
            const auto [at, fresh] = owners.try_emplace(name, view->control->name);
            EXPECT_TRUE(fresh) << screen->name << ": " << at->second << " and " << view->control->name
                               << " are both called " << name;
        }
    }
}

TEST_F(Screens, ButtonsAreButtonsAndListsAreReachable) {
    for (const Screen* screen : forms().all()) {
        for (View* view : stage().desk().window(*screen).views()) {
            if (view->control == nullptr) continue;
            const Kind kind = view->control->kind;
            if (kind < Kind::FlatButton || kind > Kind::PushButton) continue;
            QAccessibleInterface* access = QAccessible::queryAccessibleInterface(view->widget());
            ASSERT_NE(access, nullptr);
            EXPECT_EQ(access->role(), QAccessible::Button) << view->control->fullName();
            EXPECT_NE(access->actionInterface(), nullptr) << view->control->fullName();
        }
    }
}

TEST_F(Screens, CaptionsAreNotClipped) {
    int looked = 0;
    for (const Screen* screen : forms().all()) {
        for (View* view : stage().desk().window(*screen).views()) {
            auto* label = dynamic_cast<window::LabelView*>(view);
            if (label == nullptr || view->place.font.empty()) continue;
            const QString text = window::toQt(static_cast<const Label*>(view->control)->text);
            if (text.trimmed().isEmpty()) continue;
            ++looked;
            auto style = label->style();
            const int room = style.lines;
            style.ellipsis = window::Ellipsis::None; // what would have to be cut is too long
            style.lines = 0;
            const double width = view->place.box.width() - 2 * style.pad;
            const auto lines = window::linesOf(text, style, width);
            if (room > 0) {
                EXPECT_LE(lines.size(), room) << view->control->fullName();
            }
            for (const QString& line : lines) {
                EXPECT_LE(window::advance(line.trimmed(), style), width + 0.5)
                    << view->control->fullName() << ": " << line.toStdString();
            }
            const double height =
                style.role.line * static_cast<double>(lines.size() - 1) + style.role.size * 0.72;
            EXPECT_LE(height, view->place.box.height()) << view->control->fullName();
        }
    }
    EXPECT_GT(looked, 140) << "most labels have a text before the program fills them";
}

TEST_F(Screens, TabStopsFollowTheLayout) {
    for (const Screen* screen : forms().all()) {
        auto& window = stage().desk().window(*screen);
        window.setAttribute(Qt::WA_DontShowOnScreen);
        window.show();
        int last = 0;
        for (const View* view : window.stops()) {
            if (view->place.tab == 0) {
                last = 1 << 20; // those without a number come last
                continue;
            }
            EXPECT_GT(view->place.tab, last) << view->control->fullName();
            last = view->place.tab;
        }
        window.hide();
    }
}

TEST_F(Screens, WithoutPicturesEveryScreenIsStillDrawn) {
    const QTemporaryDir empty;
    makeStage(empty.path().toStdString());
    // One page of the main screen: what lies under another is not painted.
    for (Control* page : {&forms().MainForm.status_pic, &forms().MainForm.log_pic}) page->visible = false;
    for (Screen* screen : forms().all()) {
        auto& window = stage().desk().window(*screen);
        window.sync();
        const Written written;
        EXPECT_FALSE(window.grab().isNull()) << screen->name;
        EXPECT_EQ(written.pictures, 0) << screen->name;
        for (View* view : window.views()) {
            const QWidget* widget = view->widget();
            if (view->control == nullptr || !widget->isVisibleTo(&window)) continue;
            const auto words = shownWords(*view);
            if (!words) continue;
            EXPECT_EQ(written.on(*widget), words->toStdString()) << view->control->fullName();
        }
    }
}

} // namespace gatewise::test
