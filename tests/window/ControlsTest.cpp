#include "window/StageTest.h"

#include "input/UserEvents.h"
#include "pages/Screens.h"
#include "window/Buttons.h"

#include <QAbstractItemView>
#include <QAccessible>
#include <QApplication>
#include <QCheckBox>
#include <QDir>
#include <QHeaderView>
#include <QHelpEvent>
#include <QLabel>
#include <QLineEdit>
#include <QScreen>
#include <QScrollBar>
#include <QTest>
#include <QToolTip>
#include <QTreeView>

// What a person does at single controls, and what is seen of it.

namespace gatewise::test {

namespace {

class Controls : public DeliveredStageTest {
protected:
    void open(Screen& screen) {
        stage().desk().act([&] { showScreen(stage().window.program, screen); });
    }
    /// The table of a list on a screen that comes up with these rows alone in it.
    QAbstractItemView* openWith(ItemControl& list, const std::vector<std::string>& rows) {
        open(*list.screen);
        stage().desk().act([&] {
            list.clear();
            for (const auto& row : rows) list.add(row);
        });
        return stage().widget(list).findChild<QAbstractItemView*>();
    }
};

} // namespace

TEST_F(Controls, HoverLightsOneButtonAtATime) {
    then([&] {
        stage().hover(main().switchButton(0));
        EXPECT_EQ(main().switchButton(0).picture, "airline_mouse");
        stage().hover(main().switchButton(2));
        EXPECT_EQ(main().switchButton(0).picture, "airline_regular");
        EXPECT_EQ(main().switchButton(2).picture, "options_mouse");
        QEvent leave(QEvent::Leave);
        QApplication::sendEvent(&stage().desk().mainWindow(), &leave);
        EXPECT_EQ(main().switchButton(2).picture, "options_regular");
    });
    play();
}

TEST_F(Controls, AHeldButtonRepeats) {
    then([&] {
        const int before = stage().window.program.session.clock.HourOffset;
        const QPoint at =
            stage().widget(main().gt_hrupButton).mapTo(&stage().desk().mainWindow(), QPoint(8, 8));
        QWindow* window = stage().desk().mainWindow().windowHandle();
        QTest::mousePress(window, Qt::LeftButton, {}, at);
        EXPECT_EQ(main().gt_hrupButton.picture, "plus_down");
        stage().advance(650); // every 200 ms
        QTest::mouseRelease(window, Qt::LeftButton, {}, at);
        EXPECT_EQ(stage().window.program.session.clock.HourOffset, before + 4);
        stage().advance(1000);
        EXPECT_EQ(stage().window.program.session.clock.HourOffset, before + 4);
    });
    play();
}

TEST_F(Controls, TheGroundDragsTheWindow) {
    then([&] {
        auto& window = stage().desk().mainWindow();
        const QPoint from = window.pos();
        const QPoint grip(400, 16);
        QTest::mousePress(window.windowHandle(), Qt::LeftButton, {}, grip);
        QTest::mouseMove(window.windowHandle(), grip + QPoint(30, 20));
        EXPECT_EQ(window.pos(), from + QPoint(30, 20));
        QTest::mouseRelease(window.windowHandle(), Qt::LeftButton, {}, grip);
        EXPECT_EQ(main().left, from.x() + 30);
    });
    play();
}

TEST_F(Controls, AModalScreenHoldsTheKeyboard) {
    then([&] { stage().rightClick(main().city_LABEL(0)); });
    then([&] {
        ASSERT_TRUE(forms().InfoForm.visible);
        EXPECT_EQ(QApplication::activeModalWidget(), &stage().desk().window(forms().InfoForm));
        for (int i = 0; i < 5; ++i) {
            stage().key(Qt::Key_Tab);
            ASSERT_NE(stage().focused(), nullptr);
            EXPECT_EQ(stage().focused()->screen, &forms().InfoForm);
        }
        stage().key(Qt::Key_Escape);
    });
    then([&] { EXPECT_FALSE(forms().InfoForm.visible); });
    play();
}

TEST_F(Controls, EscapeLeavesTheMainScreenAlone) {
    then([&] { stage().key(Qt::Key_Escape); });
    then([&] {
        EXPECT_FALSE(stage().window.program.ending);
        EXPECT_TRUE(stage().desk().mainWindow().isVisible());
    });
    play();
}

TEST_F(Controls, TextBoxesKeepToThePage) {
    then([&] {
        stage().click(main().main_LABEL);
        stage().click(main().arrSearch);
        auto& line = dynamic_cast<QLineEdit&>(stage().widget(main().arrSearch));
        line.insert(QString::fromUtf8("Z\u00fcrich \u4e2d"));
        EXPECT_EQ(main().arrSearch.text, "Z\xfcrich ?");
        EXPECT_EQ(line.text(), QString::fromUtf8("Z\u00fcrich ?"));
    });
    play();
}

TEST_F(Controls, ChecksAndOptionsFollowTheForm) {
    then([&] { open(forms().OptionsForm); });
    then([&] {
        auto& f = forms().OptionsForm;
        const int before = f.d2_CHECK.value;
        stage().click(f.d2_CHECK);
        EXPECT_EQ(f.d2_CHECK.value, before == 0 ? 1 : 0);
        EXPECT_EQ(dynamic_cast<QCheckBox&>(stage().widget(f.d2_CHECK)).isChecked(), f.d2_CHECK.value == 1);
        stage().click(f.cityOption);
        EXPECT_TRUE(f.cityOption.value);
        EXPECT_FALSE(f.timeOption.value);
        ASSERT_TRUE(stage().tabTo(f.cityOption));
        stage().key(Qt::Key_Up);
        EXPECT_TRUE(f.timeOption.value);
        EXPECT_FALSE(f.cityOption.value);
        stage().key(Qt::Key_Escape);
    });
    play();
}

TEST_F(Controls, ADisabledButtonIsNoTabStopAndSaysSo) {
    then([&] { stage().click(main().main_LABEL); });
    then([&] {
        ASSERT_EQ(main().viewButton.State, 0);
        QAccessibleInterface* access =
            QAccessible::queryAccessibleInterface(&stage().widget(main().viewButton));
        EXPECT_EQ(access->text(QAccessible::Name), "View Flight Plan");
        EXPECT_TRUE(access->state().disabled);
        EXPECT_FALSE(stage().tabTo(main().viewButton));
    });
    play();
}

TEST_F(Controls, ARowSpeaksAsASentence) {
    then([&] {
        QAccessibleInterface* access =
            QAccessible::queryAccessibleInterface(&stage().widget(main().fltnum_LABEL(0)));
        const QString words = access->text(QAccessible::Description);
        EXPECT_EQ(words.count(", "), 3) << words.toStdString();
        EXPECT_TRUE(words.contains("departure time ")) << words.toStdString();
        EXPECT_EQ(access->role(), QAccessible::RowHeader);
        EXPECT_TRUE(words.startsWith(access->text(QAccessible::Name))) << words.toStdString();
        EXPECT_TRUE(access->state().focusable);
    });
    play();
}

TEST_F(Controls, AScreenReaderCanPressAButton) {
    then([&] {
        QAccessibleInterface* access =
            QAccessible::queryAccessibleInterface(&stage().widget(main().switchButton(2)));
        access->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
    });
    then([&] {
        EXPECT_TRUE(forms().OptionsForm.visible);
        stage().key(Qt::Key_Escape);
    });
    play();
}

TEST_F(Controls, ListsShowTheFormsRowsAndPick) {
    then([&] { stage().click(main().switchButton(0)); });
    then([&] {
        auto& list = forms().SelectForm.List1;
        auto* table = stage().widget(list).findChild<QAbstractItemView*>();
        ASSERT_NE(table, nullptr);
        EXPECT_EQ(table->model()->rowCount(), list.count());
        ASSERT_GT(list.count(), 2);
        const QRect row = table->visualRect(table->model()->index(1, 0));
        QTest::mouseClick(table->viewport(), Qt::LeftButton, {}, row.center());
        EXPECT_EQ(list.picked, 1);
        stage().key(Qt::Key_Down);
        EXPECT_EQ(list.picked, 2);
        stage().key(Qt::Key_Escape);
    });
    then([&] { EXPECT_FALSE(forms().SelectForm.visible); });
    play();
}

TEST_F(Controls, TheFocusAlonePicksNothingInAList) {
    auto& list = forms().DirForm.File1;
    auto* table = openWith(list, {"first.pln", "second.pln"});
    ASSERT_NE(table, nullptr);
    ASSERT_GT(list.count(), 1);
    ASSERT_EQ(list.picked, -1);
    ASSERT_TRUE(QTest::qWaitForWindowActive(table->window()));
    table->clearFocus();
    table->setFocus(Qt::TabFocusReason);
    ASSERT_TRUE(table->hasFocus());
    EXPECT_EQ(list.picked, -1);
    EXPECT_FALSE(table->currentIndex().isValid());
    QTest::keyClick(table, Qt::Key_Down);
    EXPECT_EQ(list.picked, 0);
    EXPECT_TRUE(table->selectionModel()->isRowSelected(0));
}

TEST_F(Controls, AFolderReadsAsAPathOfThisComputer) {
    auto& list = forms().DirForm.Dir1;
    auto* table = openWith(list, {"/games/FS2002\\flights"});
    ASSERT_NE(table, nullptr);
    const QString separator = QDir::separator();
    EXPECT_EQ(table->model()->index(0, 0).data().toString(),
              QStringList({"", "games", "FS2002", "flights"}).join(separator));
    EXPECT_EQ(list.items.at(0), "/games/FS2002\\flights");
}

TEST_F(Controls, TheEndOfALongFolderIsSeen) {
    auto& list = forms().DirForm.Dir1;
    const std::string way = "/" + std::string(200, 'w');
    const auto seen = [&](const std::string& path) {
        auto* table = openWith(list, {path});
        return table == nullptr ? QImage() : table->viewport()->grab().toImage();
    };
    const QImage flights = seen(way + "/flights");
    EXPECT_NE(flights, seen(way + "/modules"));
    EXPECT_EQ(flights, seen("/another/" + way + "/flights")) << "the begin is seen in place of the end";
}

TEST_F(Controls, ACutRowIsShownWholeBesideThePointer) {
    const std::string whole = "A flight with a name that no list of this width has room for.pln";
    auto* table = openWith(forms().DirForm.File1, {whole, "short.pln"});
    ASSERT_NE(table, nullptr);
    const auto point = [&](int row) {
        const QPoint at = table->visualRect(table->model()->index(row, 0)).center();
        QHelpEvent help(QEvent::ToolTip, at, table->viewport()->mapToGlobal(at));
        QApplication::sendEvent(table->viewport(), &help);
    };
    point(0);
    EXPECT_EQ(QToolTip::text().toStdString(), whole);
    point(1);
    EXPECT_TRUE(QTest::qWaitFor([] { return !QToolTip::isVisible(); })); // it fades
}

TEST_F(Controls, ATextEndsWithDotsBeforeTheScrollBar) {
    auto& list = forms().CareerForm.totals;
    open(*list.screen);
    stage().desk().act([&] { list.rows.assign(40, {"", {"Aircraft", std::string(80, 'W')}, false}); });
    auto* table = stage().widget(list).findChild<QAbstractItemView*>();
    ASSERT_NE(table, nullptr);
    ASSERT_TRUE(QTest::qWaitFor([&] { return table->verticalScrollBar()->isVisible(); }));
    ASSERT_GT(list.columns[0].width + list.columns[1].width, table->viewport()->width());
    const QRect row = table->visualRect(table->model()->index(0, 0));
    const QImage seen = table->viewport()->grab().toImage();
    for (int x = seen.width() - 3; x < seen.width(); ++x) {
        for (int y = row.top(); y <= row.bottom(); ++y)
            EXPECT_EQ(seen.pixel(x, y), seen.pixel(2, y)) << x << ' ' << y;
    }
}

TEST_F(Controls, AStandbyNoticeNeverTakesTheKeyboard) {
    auto& program = stage().window.program;
    stage().desk().act([&] { showScreen(program, program.forms.WaitForm); });
    auto* notice = stage().widget(forms().WaitForm.BG).window();
    EXPECT_TRUE(notice->windowFlags() & Qt::WindowDoesNotAcceptFocus);
    EXPECT_NE(QApplication::activeWindow(), notice);
    stage().desk().act([&] { hideScreen(program, program.forms.WaitForm); });
    EXPECT_TRUE(QTest::qWaitForWindowActive(&stage().desk().mainWindow()));
}

TEST_F(Controls, AMainWindowThatTakesNoInputCannotBeClosed) {
    auto& program = stage().window.program;
    stage().desk().act([&] { main().enabled = false; });
    stage().desk().mainWindow().close();
    EXPECT_FALSE(program.ending);
    stage().desk().act([&] { main().enabled = true; });
}

TEST_F(Controls, ANoteWaitsForNobodyAndGoesByAClick) {
    then([&] {
        stage().window.desktop.notify("There is no printer.");
        EXPECT_EQ(stage().desk().note(), "There is no printer.");
        auto* note = stage().desk().mainWindow().findChild<QLabel*>();
        ASSERT_NE(note, nullptr);
        QTest::mouseClick(note, Qt::LeftButton);
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    });
    then([&] { EXPECT_EQ(stage().desk().note(), ""); });
    play();
}

TEST_F(Controls, AWindowOutsideOfTheDeskComesBack) {
    then([&] {
        main().left = 5000;
        main().top = -300;
        stage().desk().sync();
        const QRect desk = QGuiApplication::primaryScreen()->availableGeometry();
        EXPECT_TRUE(desk.contains(stage().desk().mainWindow().frameGeometry()));
        EXPECT_EQ(main().left, stage().desk().mainWindow().x());
    });
    play();
}

TEST_F(Controls, ADraggedColumnIsResetByItsHead) {
    then([&] { stage().doubleClick(main().city_LABEL(3)); });
    then([&] { stage().click(main().viewButton); });
    then([&] {
        auto& list = forms().ViewPlan.PlanList;
        auto* table = stage().widget(list).findChild<QTreeView*>();
        ASSERT_NE(table, nullptr);
        const double before = list.columns[1].width;
        EXPECT_EQ(table->header()->sectionSize(1), static_cast<int>(before));
        table->header()->resizeSection(1, 60);
        EXPECT_EQ(list.columns[1].width, 60);
        const QPoint head(table->header()->sectionViewportPosition(1) + 20, 10);
        QTest::mouseClick(table->header()->viewport(), Qt::LeftButton, {}, head);
        EXPECT_EQ(list.columns[1].width, before);
        EXPECT_EQ(table->header()->sectionSize(1), static_cast<int>(before));
        stage().key(Qt::Key_Escape);
    });
    then([&] { EXPECT_FALSE(forms().ViewPlan.visible); });
    play();
}

TEST_F(Controls, AKeyThatCannotBePressedLooksIt) {
    then([&] { open(forms().SettingsForm); });
    then([&] {
        auto& f = forms().SettingsForm;
        auto& key = dynamic_cast<window::ButtonView&>(stage().widget(f.airlineSearchButton));
        if (f.anyairlineCHECK.value == 1) stage().click(f.anyairlineCHECK);
        const QImage on = key.grab().toImage();
        stage().click(f.anyairlineCHECK);
        ASSERT_EQ(f.airlineSearchButton.State, 0);
        EXPECT_EQ(key.paintedTail(), "\\Images\\Buttons\\selair_disabled.bmp");
        EXPECT_NE(key.grab().toImage(), on);
        stage().click(f.anyairlineCHECK);
        EXPECT_EQ(key.grab().toImage(), on);
        stage().key(Qt::Key_Escape);
    });
    play();
}

} // namespace gatewise::test
