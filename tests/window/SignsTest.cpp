#include "window/StageTest.h"

#include "input/ShortCuts.h"
#include "input/UserEvents.h"
#include "window/Accelerators.h"
#include "window/Buttons.h"
#include "window/ToolTips.h"

#include <QApplication>
#include <QHelpEvent>
#include <QTest>
#include <QToolTip>
#include <QWheelEvent>

// Knowing where one is: marks, the shifted clock, the pages of the board, help, letters, tips, focus.

namespace gatewise::test {

namespace {

class Signs : public DeliveredStageTest {
protected:
    /// Whether a widget shows the amber of "where you are" in a part of it.
    bool amber(const Control& control, const QRect& part) {
        const QImage image = stage().widget(control).grab(part).toImage();
        for (int y = 0; y < image.height(); ++y) {
            for (int x = 0; x < image.width(); ++x) {
                if (image.pixelColor(x, y) == QColor(0xFF, 0xC5, 0x31)) return true;
            }
        }
        return false;
    }
    bool underlined(const Control& tab) {
        const QSize size = stage().widget(tab).size();
        return amber(tab, QRect(20, size.height() - 4, size.width() - 40, 4));
    }
    bool arrowed(const Control& head) {
        const QSize size = stage().widget(head).size();
        return amber(head, QRect(size.width() - 7, size.height() / 2 - 1, 2, 2));
    }
    void wheel(const Control& over, int notches) {
        QWidget& widget = stage().widget(over);
        const QPointF at = widget.rect().center();
        QWheelEvent event(at, widget.mapToGlobal(at), {}, {0, notches * 120}, Qt::NoButton, Qt::NoModifier,
                          Qt::NoScrollPhase, false);
        QApplication::sendEvent(&widget, &event);
    }
    std::string page() { return main().boardPage_LABEL.text; }
};

} // namespace

TEST_F(Signs, ThePageInViewHasTheMarkOnItsTab) {
    then([&] {
        EXPECT_EQ(main().statusboard_LABEL.mark, Mark::Current);
        EXPECT_TRUE(underlined(main().statusboard_LABEL));
        EXPECT_FALSE(underlined(main().main_LABEL));
        stage().click(main().log_LABEL);
    });
    then([&] {
        EXPECT_TRUE(underlined(main().log_LABEL));
        EXPECT_FALSE(underlined(main().statusboard_LABEL));
    });
    play();
}

TEST_F(Signs, TheHeadThatSortsHasTheMarkAndTheOthersSayThatTheyCan) {
    then([&] {
        auto& city = main().city_LABEL(20);
        EXPECT_TRUE(arrowed(main().time_LABEL(20)));
        EXPECT_FALSE(arrowed(city));
        EXPECT_EQ(window::tipOf(*stage().desk().mainWindow().view(city)),
                  "Double click to sort the board by this column");
        EXPECT_EQ(window::tipOf(*stage().desk().mainWindow().view(main().city_LABEL(3))), "");
        stage().doubleClick(city);
    });
    then([&] {
        EXPECT_EQ(main().city_LABEL(20).mark, Mark::Sorted);
        EXPECT_TRUE(arrowed(main().city_LABEL(20)));
        EXPECT_EQ(main().time_LABEL(20).mark, Mark::None);
        EXPECT_FALSE(arrowed(main().time_LABEL(20)));
    });
    play();
}

TEST_F(Signs, AShiftedClockSaysSoAndComesBack) {
    then([&] {
        EXPECT_FALSE(main().nowButton.visible);
        stage().click(main().gt_hrupButton);
        stage().click(main().gt_mindnButton);
        stage().advance(500);
        EXPECT_EQ(main().shift_LABEL.text, "+0:59");
        EXPECT_EQ(main().gt_hoursLABEL.text + main().gt_minutesLABEL.text, "0929");
        ASSERT_TRUE(stage().widget(main().nowButton).isVisible());
        stage().click(main().nowButton);
        EXPECT_EQ(main().gt_hoursLABEL.text + main().gt_minutesLABEL.text, "0830");
        EXPECT_FALSE(stage().widget(main().nowButton).isVisible());
        EXPECT_FALSE(stage().widget(main().shift_LABEL).isVisible());
    });
    play();
}

TEST_F(Signs, CtrlTSetsTheClockBack) {
    then([&] {
        stage().click(main().gt_hrdnButton);
        stage().advance(500);
        EXPECT_EQ(main().shift_LABEL.text, "-1:00");
        stage().key(Qt::Key_T, Qt::ControlModifier);
        EXPECT_EQ(main().gt_hoursLABEL.text, "08");
    });
    play();
}

TEST_F(Signs, WheelAndKeysTurnTheBoard) {
    then([&] {
        EXPECT_EQ(page(), "1/3");
        wheel(main().city_LABEL(3), -1);
        EXPECT_EQ(page(), "2/3");
        wheel(main().city_LABEL(3), 1);
        EXPECT_EQ(page(), "1/3");
        stage().key(Qt::Key_PageDown); // the focus is in a field that has no use for it
        EXPECT_EQ(page(), "2/3");
        stage().key(Qt::Key_PageUp);
        EXPECT_EQ(page(), "1/3");
        stage().key(Qt::Key_PageUp);
        EXPECT_EQ(page(), "1/3");
        ASSERT_TRUE(stage().tabTo(main().switchButton(0)));
        stage().key(Qt::Key_End);
        EXPECT_EQ(page(), "3/3");
        EXPECT_NE(main().header_LABEL.text.find("Page 3 of 3"), std::string::npos);
        stage().key(Qt::Key_Home);
        EXPECT_EQ(page(), "1/3");
    });
    play();
}

TEST_F(Signs, TheEndKeyInARowGoesToTheLastRowOfTheLastPage) {
    then([&] {
        ASSERT_TRUE(stage().tabTo(main().fltnum_LABEL(0)));
        stage().key(Qt::Key_End);
        EXPECT_EQ(page(), "3/3");
        const auto* last = dynamic_cast<Label*>(stage().focused());
        ASSERT_NE(last, nullptr);
        EXPECT_GT(last->index, 0);
        EXPECT_FALSE(trimmed(last->text).empty());
        stage().key(Qt::Key_Home);
        EXPECT_EQ(page(), "1/3");
        EXPECT_EQ(stage().focused(), &main().fltnum_LABEL(0));
    });
    play();
}

TEST_F(Signs, ARowThatLosesItsWordsHandsTheKeyboardOn) {
    constexpr int kLast = 19;
    const auto toLastRow = [&] {
        ASSERT_TRUE(stage().tabTo(main().fltnum_LABEL(0)));
        for (int i = 0; i < kLast; ++i) stage().key(Qt::Key_Down);
        ASSERT_EQ(stage().focused(), &main().fltnum_LABEL(kLast));
    };
    const auto inLastRow = [&] {
        EXPECT_EQ(page(), "3/3");
        ASSERT_TRUE(trimmed(main().fltnum_LABEL(kLast).text).empty()) << "else this tests nothing";
        const auto* row = dynamic_cast<Label*>(stage().focused());
        ASSERT_NE(row, nullptr);
        EXPECT_FALSE(trimmed(row->text).empty());
        EXPECT_TRUE(trimmed(main().fltnum_LABEL(row->index + 1).text).empty()) << "not the last one";
    };
    then(toLastRow);
    then([&] { stage().key(Qt::Key_End); });
    then(inLastRow);
    then([&] { stage().key(Qt::Key_Home); });
    then(toLastRow);
    then([&] {
        stage().key(Qt::Key_PageDown);
        EXPECT_EQ(stage().focused(), &main().fltnum_LABEL(kLast)) << "a row that is full keeps it";
        stage().key(Qt::Key_PageDown);
    });
    then(inLastRow);
    play();
}

TEST_F(Signs, F1OpensTheHelpOfTheScreen) {
    const auto& program = stage().window.program;
    then([&] {
        EXPECT_EQ(helpPageOf(program), "boards.htm");
        stage().click(main().log_LABEL);
    });
    then([&] {
        EXPECT_EQ(helpPageOf(program), "logbook.htm");
        stage().click(main().FlatButton(1));
    });
    then([&] { EXPECT_EQ(helpPageOf(program), "settings.htm"); });
    play();
}

TEST_F(Signs, EveryHelpPageOfAScreenIsThere) {
    auto& front = forms().front;
    const std::vector<Screen*> before = front;
    for (Screen* screen : forms().all()) {
        front = {screen};
        const std::string page = helpPageOf(stage().window.program);
        EXPECT_TRUE(std::filesystem::exists(std::filesystem::path(folder()) / "help" / page)) << screen->name;
    }
    front = before;
}

TEST_F(Signs, LettersShowWhileAltIsHeldAndPress) {
    then([&] {
        const auto letters = window::Accelerators::lettersOf(stage().desk().mainWindow());
        const auto of = [&](const Control& control) {
            for (const auto& [letter, view] : letters) {
                if (view->control == &control) return letter;
            }
            return QChar();
        };
        EXPECT_FALSE(of(main().log_LABEL).isNull());
        EXPECT_FALSE(of(main().FlatButton(1)).isNull());
        EXPECT_FALSE(of(main().departureText).isNull());
        EXPECT_TRUE(of(main().fltnum_LABEL(0)).isNull()); // rows are walked by arrows
        window::ScreenWindow& window = stage().desk().mainWindow();
        const auto layers = [&] { return window.findChildren<QWidget*>(Qt::FindDirectChildrenOnly).size(); };
        const auto before = layers();
        QTest::keyPress(window.windowHandle(), Qt::Key_Alt, Qt::AltModifier);
        EXPECT_EQ(layers(), before + 1); // the letters lie over everything else
        QTest::keyRelease(window.windowHandle(), Qt::Key_Alt);
        EXPECT_EQ(layers(), before);
        stage().key(static_cast<Qt::Key>(of(main().log_LABEL).unicode()), Qt::AltModifier);
    });
    then([&] { EXPECT_TRUE(main().log_pic.visible); });
    play();
}

TEST_F(Signs, EveryKeyThatHasOnlyAPictureHasATip) {
    for (Screen* screen : forms().all()) {
        for (window::View* view : stage().desk().window(*screen).views()) {
            const auto* key = dynamic_cast<window::ButtonView*>(view);
            if (key == nullptr || key->wordsOnPicture()) continue;
            EXPECT_FALSE(window::tipOf(*view).isEmpty() && view->control->toolTip.empty())
                << view->control->fullName();
        }
    }
}

TEST_F(Signs, ATipStandsBesideThePointer) {
    then([&] {
        QWidget& key = stage().widget(main().boardButton(1));
        const QPoint at = key.rect().center();
        QHelpEvent help(QEvent::ToolTip, at, key.mapToGlobal(at));
        QApplication::sendEvent(&key, &help);
        EXPECT_EQ(QToolTip::text(), "Next page, upper key (Page Down)");
        QToolTip::hideText();
    });
    play();
}

TEST_F(Signs, AfterADialogTheFocusIsAtTheKeyThatOpenedIt) {
    then([&] { stage().click(main().FlatButton(1)); });
    then([&] {
        ASSERT_TRUE(forms().SettingsForm.visible);
        stage().key(Qt::Key_Escape);
    });
    then([&] {
        EXPECT_FALSE(forms().SettingsForm.visible);
        EXPECT_EQ(stage().focused(), &main().FlatButton(1));
        stage().key(Qt::Key_Return); // not the picker of the field that had the focus before
    });
    then([&] {
        EXPECT_FALSE(forms().SelectForm.visible);
        EXPECT_TRUE(forms().SettingsForm.visible);
    });
    play();
}

TEST_F(Signs, TabGoesOnFromAKeyThatWasSwitchedOff) {
    then([&] { stage().doubleClick(main().city_LABEL(3)); });
    then([&] { stage().click(main().sendlogButton); });
    then([&] { stage().key(Qt::Key_Return); });
    then([&] { stage().click(main().log_LABEL); });
    then([&] {
        stage().click(main().log_press(0));
        stage().click(main().logButton(1));
    });
    then([&] { stage().key(Qt::Key_Escape); }); // the question; the key that asked it is off now
    then([&] {
        EXPECT_EQ(stage().focused(), &main().logButton(1));
        EXPECT_EQ(main().logButton(1).State, 0);
        stage().key(Qt::Key_Tab);
        Control* next = stage().focused();
        EXPECT_NE(next, &main().departureText) << "Enter would open the picker";
        stage().key(Qt::Key_Backtab, Qt::ShiftModifier);
        EXPECT_NE(stage().focused(), next);
        EXPECT_NE(stage().focused(), &main().departureText);
    });
    play();
}

} // namespace gatewise::test
