#include "window/RowsOf.h"
#include "window/StageTest.h"

#include "input/UserEvents.h"
#include "window/Buttons.h"
#include "window/Note.h"
#include "window/QtText.h"
#include "window/Rows.h"
#include "window/Witness.h"

#include <QTest>
#include <QTimer>

// Keys, arrows and sliders, each by the hand and by the keyboard.

namespace gatewise::test {

namespace {

class Keys : public DeliveredStageTest {
protected:
    /// Presses, moves to and lets go at points of a widget, given as shares of its box.
    void drag(const Control& control, QPointF from, QPointF to) {
        QWidget& widget = stage().widget(control);
        QWindow* at = widget.window()->windowHandle();
        const auto spot = [&](QPointF share) {
            return widget.mapTo(widget.window(),
                                QPointF(share.x() * widget.width(), share.y() * widget.height()).toPoint());
        };
        QTest::mouseMove(at, spot(from));
        QTest::mousePress(at, Qt::LeftButton, {}, spot(from));
        if (to != from) QTest::mouseMove(at, spot(to));
        QTest::mouseRelease(at, Qt::LeftButton, {}, spot(to));
    }
    void clickAt(const Control& control, QPointF share) { drag(control, share, share); }
};

} // namespace

TEST_F(Keys, EnterAndSpacePressAKeyWhoseFormHearsOfClicksAlone) {
    for (const Qt::Key key : {Qt::Key_Return, Qt::Key_Space}) {
        then([&, key] {
            ASSERT_FALSE(main().FlatButton(1).handles(Event::Enter));
            ASSERT_TRUE(stage().tabTo(main().FlatButton(1)));
            stage().key(key);
        });
        then([&] {
            EXPECT_TRUE(forms().SettingsForm.visible);
            stage().key(Qt::Key_Escape);
        });
    }
    play();
}

TEST_F(Keys, EnterPressesAKeyWhoseFormHearsOfPressesAlone) {
    then([&] {
        const auto page = stage().window.program.session.board.BoardPage;
        ASSERT_TRUE(stage().tabTo(main().boardButton(1)));
        stage().key(Qt::Key_Return);
        EXPECT_EQ(stage().window.program.session.board.BoardPage, page + 1);
    });
    play();
}

TEST_F(Keys, AKeyThatTheKeyboardPressedIsNotLeftLit) {
    then([&] {
        for (const Qt::Key key : {Qt::Key_Return, Qt::Key_Space}) {
            ASSERT_TRUE(stage().tabTo(main().gt_minupButton));
            stage().key(key);
            EXPECT_EQ(main().gt_minupButton.picture, "plus_regular");
        }
    });
    play();
}

TEST_F(Keys, EveryKeyHasThePictureThatItShows) {
    int keys = 0;
    for (const Screen* screen : forms().all()) {
        for (window::View* view : stage().desk().window(*screen).views()) {
            auto* key = dynamic_cast<window::ButtonView*>(view);
            if (key == nullptr || static_cast<const SkinnedButton*>(key->control)->picture.empty()) continue;
            ++keys;
            EXPECT_FALSE(stage().desk().skin().picture(key->paintedTail(), 1).isNull())
                << key->control->fullName() << " shows " << key->paintedTail();
        }
    }
    EXPECT_GT(keys, 60);
}

TEST_F(Keys, EachOfTwoArrowsGoesItsWay) {
    then([&] { stage().doubleClick(main().city_LABEL(3)); });
    then([&] { stage().click(main().viewButton); });
    then([&] {
        auto& range = forms().ViewPlan.AltUpDown;
        stage().desk().act([&] { range.value = 10000; });
        clickAt(range, {0.5, 0.75});
        EXPECT_EQ(range.value, 10000 - range.step);
        clickAt(range, {0.5, 0.75});
        EXPECT_EQ(range.value, 10000 - 2 * range.step);
        clickAt(range, {0.5, 0.25});
        EXPECT_EQ(range.value, 10000 - range.step);
        EXPECT_EQ(forms().ViewPlan.altNew.text, std::to_string(range.value));
        stage().key(Qt::Key_Escape);
    });
    play();
}

TEST_F(Keys, ASliderComesToWhereTheMouseIs) {
    auto& range = forms().FlyForm.fuelSLIDER;
    then([&] { stage().doubleClick(main().city_LABEL(3)); });
    then([&] { stage().click(main().FlatButton(3)); });
    then([&] {
        ASSERT_TRUE(forms().FlyForm.visible);
        const auto share = [&] {
            return static_cast<double>(range.value - range.min) / (range.max - range.min);
        };
        clickAt(range, {0.75, 0.4});
        EXPECT_NEAR(share(), 0.75, 0.04);
        drag(range, {0.75, 0.4}, {0.25, 0.4});
        EXPECT_NEAR(share(), 0.25, 0.04);
        stage().key(Qt::Key_Escape);
    });
    play();
}

TEST_F(Keys, AQuickSecondPressIsOneToo) {
    int presses = 0, clicks = 0;
    then([&] {
        auto& key = main().gt_minupButton;
        key.on(Event::Press, [&] { ++presses; });
        key.on(Event::Click, [&] { ++clicks; });
        QWidget& widget = stage().widget(key);
        QTest::mouseDClick(widget.window()->windowHandle(), Qt::LeftButton, {},
                           widget.mapTo(widget.window(), widget.rect().center()));
        EXPECT_EQ(presses, 2);
        EXPECT_EQ(clicks, 2);
    });
    play();
}

TEST_F(Keys, AScreenThatTakesNoInputHearsOfNoPress) {
    then([&] {
        stage().desk().act([&] { main().enabled = false; });
        EXPECT_FALSE(stage().desk().mainWindow().isEnabled());
        clickAt(main().FlatButton(1), {0.5, 0.5});
        EXPECT_FALSE(forms().SettingsForm.visible);
        stage().desk().act([&] { main().enabled = true; });
        clickAt(main().FlatButton(1), {0.5, 0.5});
        EXPECT_TRUE(forms().SettingsForm.visible);
        stage().key(Qt::Key_Escape);
    });
    play();
}

TEST_F(Keys, TabGoesOnAndWithShiftBack) {
    then([&] {
        const auto stops = stage().desk().mainWindow().stops();
        ASSERT_GT(stops.size(), 4U);
        ASSERT_TRUE(stage().tabTo(*stops[1]->control));
        stage().key(Qt::Key_Tab);
        EXPECT_EQ(stage().focused(), stops[2]->control);
        stage().key(Qt::Key_Tab);
        EXPECT_EQ(stage().focused(), stops[3]->control);
        stage().key(Qt::Key_Backtab, Qt::ShiftModifier);
        EXPECT_EQ(stage().focused(), stops[2]->control);
    });
    play();
}

TEST_F(Keys, AFrameShowsItsHeading) {
    /// The texts that one paint of a widget puts on it.
    class Read : public window::Witness {
    public:
        explicit Read(QWidget& widget) : widget_(widget) {
            now = this;
            (void)widget.grab();
        }
        ~Read() override { now = nullptr; }
        Read(const Read&) = delete;
        Read& operator=(const Read&) = delete;
        void text(const QPaintDevice& on, const QString& text, const QColor&) override {
            if (&on == &widget_) texts.push_back(window::fromQt(text));
        }
        void picture(const QPaintDevice&, const QPixmap&) override {}
        std::vector<std::string> texts;

    private:
        const QPaintDevice& widget_;
    };
    int frames = 0;
    for (const Screen* screen : forms().all()) {
        for (const Control* control : screen->controls) {
            if (control->kind != Kind::Frame || static_cast<const Frame*>(control)->text.empty()) continue;
            ++frames;
            stage().desk().window(*screen).sync();
            const Read read(stage().widget(*control));
            ASSERT_FALSE(read.texts.empty()) << control->fullName();
            EXPECT_EQ(read.texts.front(), static_cast<const Frame*>(control)->text) << control->fullName();
        }
    }
    EXPECT_GT(frames, 0);
}

TEST_F(Keys, ANoteGoesByItself) {
    then([&] {
        stage().window.desktop.notify("A line of news");
        auto* note = stage().desk().mainWindow().findChild<window::Note*>();
        ASSERT_NE(note, nullptr);
        auto* end = note->findChild<QTimer*>();
        ASSERT_NE(end, nullptr);
        ASSERT_TRUE(end->isActive() && end->isSingleShot());
        EXPECT_LE(end->interval(), 15000);
        end->start(0); // the time has come
        EXPECT_TRUE(QTest::qWaitFor([&] { return stage().desk().note().isEmpty(); }, 30000));
    });
    play();
}

TEST_F(Keys, AClickOnThePickedRowIsAClickToo) {
    int clicks = 0;
    then([&] { stage().doubleClick(main().city_LABEL(3)); });
    then([&] { stage().click(main().newButton); });
    then([&] {
        auto& list = forms().FlightForm.FlightList;
        list.on(Event::Click, [&] { ++clicks; });
        auto& table = tableOf(stage(), list);
        for (int i = 1; i <= 2; ++i) {
            QTest::mouseClick(table.window()->windowHandle(), Qt::LeftButton, {}, middleOf(table, 1));
            EXPECT_EQ(list.picked, 1);
            EXPECT_EQ(clicks, i);
        }
        stage().key(Qt::Key_Escape);
    });
    play();
}

TEST_F(Keys, AFolderThatIsOpenedTellsSo) {
    int changes = 0;
    auto& f = forms().DirForm;
    then([&] { stage().click(main().FlatButton(1)); });
    then([&] { stage().click(forms().SettingsForm.pathButton); });
    then([&] {
        const std::string scratch = files::textOf(folder().parent_path());
        stage().desk().act([&] { user::path(f.Dir1, scratch); });
        const int line = f.Dir1.find("Gatewise");
        ASSERT_GT(line, 0);
        f.Dir1.on(Event::Change, [&] { ++changes; });
        auto& table = tableOf(stage(), f.Dir1);
        QTest::mouseDClick(table.window()->windowHandle(), Qt::LeftButton, {}, middleOf(table, line));
        EXPECT_TRUE(f.Dir1.path.ends_with("Gatewise")) << f.Dir1.path;
        EXPECT_EQ(changes, 1);
        stage().key(Qt::Key_Escape);
    });
    then([&] { stage().key(Qt::Key_Escape); });
    play();
}

TEST_F(Keys, AFormHearsOfTheMouseOverItsList) {
    int moves = 0;
    then([&] { stage().doubleClick(main().city_LABEL(3)); });
    then([&] { stage().click(main().newButton); });
    then([&] {
        auto& list = forms().FlightForm.FlightList;
        list.on(Event::Move, [&] { ++moves; });
        auto& table = tableOf(stage(), list);
        for (int row = 0; row < 3; ++row) {
            QTest::mouseMove(table.window()->windowHandle(), middleOf(table, row));
            EXPECT_EQ(moves, row + 1);
        }
        stage().key(Qt::Key_Escape);
    });
    play();
}

} // namespace gatewise::test
