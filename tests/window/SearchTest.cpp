#include "window/StageTest.h"

#include "input/UserEvents.h"
#include "work/ConfigFile.h"

#include <QAbstractItemView>
#include <QApplication>
#include <QClipboard>
#include <QContextMenuEvent>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QTest>
#include <QTreeView>

#include <algorithm>

// Looking for something: the list that typing narrows, menus of fields, copies, prints, undo, the last place.

namespace gatewise::test {

namespace {

class Search : public DeliveredStageTest {
protected:
    QTreeView& list() { return *stage().widget(forms().SelectForm.List1).findChild<QTreeView*>(); }
    int shownRows() {
        int rows = 0;
        for (int row = 0; row < list().model()->rowCount(); ++row)
            rows += list().isRowHidden(row, {}) ? 0 : 1;
        return rows;
    }
    void openPicker() {
        then([&] { stage().click(main().main_LABEL); });
        then([&] {
            stage().click(main().departureText);
            stage().type("a");
            stage().click(main().enterButton);
        });
    }
    QString clipboard() { return QGuiApplication::clipboard()->text(); }
};

} // namespace

TEST_F(Search, TypingNarrowsThePickerAndEscapeWidensIt) {
    openPicker();
    then([&] {
        auto& form = forms().SelectForm.List1;
        const auto items = form.items;
        const int all = shownRows();
        ASSERT_GT(all, 2);
        stage().type("mia");
        EXPECT_GE(shownRows(), 1);
        EXPECT_LT(shownRows(), all);
        EXPECT_EQ(form.items, items); // the list itself stays
        EXPECT_NE(QString::fromStdString(form.text()).toLower().indexOf("mia"), -1);
        const int narrow = shownRows();
        stage().type("\x23"); // no row has this sign
        EXPECT_EQ(shownRows(), narrow);
        stage().key(Qt::Key_Backspace);
        stage().key(Qt::Key_Backspace);
        EXPECT_GE(shownRows(), narrow);
        stage().key(Qt::Key_Escape);
        EXPECT_EQ(shownRows(), all);
        EXPECT_TRUE(forms().SelectForm.visible);
        stage().key(Qt::Key_Escape);
    });
    then([&] { EXPECT_FALSE(forms().SelectForm.visible); });
    play();
}

TEST_F(Search, ALetterThatNoLineHasIsNamed) {
    const auto sign = [&] { return list().findChild<QLabel*>()->text(); };
    openPicker();
    then([&] {
        stage().type("#");
        EXPECT_EQ(sign(), "No line has \"#\".");
        stage().type("mi");
        EXPECT_EQ(sign(), "Only: mi  Esc shows all lines.");
        stage().type("#");
        EXPECT_EQ(sign(), "Only: mi  No line has \"mi#\".");
        stage().key(Qt::Key_Escape);
        stage().key(Qt::Key_Escape);
    });
    play();
}

TEST_F(Search, EnterTakesTheNarrowedLine) {
    openPicker();
    then([&] {
        stage().type("miami");
        stage().key(Qt::Key_Return);
    });
    then([&] {
        EXPECT_FALSE(forms().SelectForm.visible);
        EXPECT_NE(main().dept_LABEL.text.find("Miami"), std::string::npos);
    });
    play();
}

TEST_F(Search, APickerWithoutMatchesSaysWhatToDo) {
    then([&] { stage().click(main().main_LABEL); });
    then([&] {
        stage().click(main().departureText);
        stage().type("qqqqqq");
        stage().key(Qt::Key_Return);
    });
    then([&] {
        EXPECT_EQ(forms().SelectForm.List1.count(), 0);
        EXPECT_TRUE(stage().widget(forms().SelectForm.empty_LABEL).isVisible());
        stage().key(Qt::Key_Escape);
    });
    play();
}

TEST_F(Search, TheRightButtonHasAMenuInAField) {
    then([&] {
        auto& line = dynamic_cast<QLineEdit&>(stage().widget(main().departureText));
        line.setFocus();
        line.selectAll();
        QContextMenuEvent ask(QContextMenuEvent::Mouse, {5, 5}, line.mapToGlobal(QPoint(5, 5)));
        QApplication::sendEvent(&line, &ask);
        auto* menu = line.findChild<QMenu*>();
        ASSERT_NE(menu, nullptr);
        QStringList words;
        for (const QAction* action : menu->actions()) {
            if (!action->isSeparator()) words << action->text();
        }
        EXPECT_EQ(words, QStringList({"Undo", "Cut", "Copy", "Paste", "Select All"}));
        for (QAction* action : menu->actions()) {
            if (action->text() == "Cut") action->trigger();
        }
        menu->close();
        EXPECT_EQ(clipboard(), "KATL");
        EXPECT_EQ(main().departureText.text, "");
    });
    play();
}

/// By the mouse from the Status Board, where the key beside the schedule sets is not in sight.
TEST_F(Search, TheHelpKeyOffersTheImportToTheMouse) {
    then([&] { stage().click(main().statusboard_LABEL); });
    then([&] { stage().rightClick(main().FlatButton(2)); });
    then([&] {
        auto* menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
        ASSERT_NE(menu, nullptr);
        ASSERT_EQ(menu->actions().size(), 2);
        EXPECT_EQ(menu->actions()[0]->text(), "Help");
        QAction* import = menu->actions()[1];
        EXPECT_EQ(import->text(), "Import schedules...");
        QTest::mouseClick(menu->windowHandle(), Qt::LeftButton, {}, menu->actionGeometry(import).center());
    });
    then([&] {
        EXPECT_EQ(QApplication::activePopupWidget(), nullptr);
        EXPECT_TRUE(forms().ImportForm.visible);
        stage().key(Qt::Key_Escape);
    });
    then([&] {
        EXPECT_FALSE(forms().ImportForm.visible);
        EXPECT_TRUE(stage().machine.desktop.helpPages.empty());
    });
    play();
}

TEST_F(Search, TheHelpKeyOffersTheImportToTheKeyboard) {
    struct Row {
        Qt::Key key;
        Qt::KeyboardModifiers held;
    };
    for (const Row& row : {Row{Qt::Key_Menu, Qt::NoModifier}, Row{Qt::Key_F10, Qt::ShiftModifier}}) {
        then([this, row] {
            ASSERT_TRUE(stage().tabTo(main().FlatButton(2)));
            stage().key(row.key, row.held);
        });
        then([this] {
            ASSERT_NE(qobject_cast<QMenu*>(QApplication::activePopupWidget()), nullptr);
            stage().key(Qt::Key_Down);
            stage().key(Qt::Key_Down);
            stage().key(Qt::Key_Return);
        });
        then([this] {
            EXPECT_TRUE(forms().ImportForm.visible);
            stage().key(Qt::Key_Escape);
        });
        then([this] { EXPECT_FALSE(forms().ImportForm.visible); });
    }
    play();
}

TEST_F(Search, CopiesTheBoardThePassAndARowOfThePlan) {
    then([&] {
        ASSERT_TRUE(stage().tabTo(main().switchButton(0)));
        stage().key(Qt::Key_C, Qt::ControlModifier);
        const QStringList lines = clipboard().split('\n');
        ASSERT_EQ(lines.size(), 24); // two lines of the header, the heads, 20 rows, and the end of the last
        EXPECT_EQ(lines[2], "FLIGHT\tDEPARTING TO\tTIME\tSTATUS");
        EXPECT_EQ(lines[3].split('\t').size(), 4);
        EXPECT_EQ(lines[3].split('\t')[0].toStdString(), std::string(trimmed(main().fltnum_LABEL(0).text)));
        stage().doubleClick(main().city_LABEL(3));
    });
    then([&] {
        ASSERT_TRUE(stage().tabTo(main().viewButton));
        stage().key(Qt::Key_C, Qt::ControlModifier);
        EXPECT_TRUE(clipboard().contains("Flight\t"));
        EXPECT_TRUE(clipboard().contains(QString::fromStdString(main().fltLABEL_1.text)));
        stage().click(main().viewButton);
    });
    then([&] {
        auto& list = forms().ViewPlan.PlanList;
        ASSERT_TRUE(stage().tabTo(list));
        stage().key(Qt::Key_Down);
        stage().key(Qt::Key_Down);
        stage().key(Qt::Key_C, Qt::ControlModifier);
        ASSERT_GE(list.picked, 0);
        EXPECT_EQ(clipboard().split('\t').size(), 6);
        EXPECT_TRUE(clipboard().startsWith(QString::fromStdString(list.selected()->cells[0]).trimmed()));
    });
    play();
}

TEST_F(Search, WhatAFieldMarksByItselfDoesNotStandBeforeTheScreen) {
    const auto field = [&]() -> auto& {
        return dynamic_cast<QLineEdit&>(stage().widget(main().departureText));
    };
    then([&] {
        ASSERT_EQ(stage().focused(), &main().departureText);
        ASSERT_TRUE(field().hasSelectedText()) << "else this tests nothing";
        stage().key(Qt::Key_C, Qt::ControlModifier);
        EXPECT_TRUE(clipboard().contains("FLIGHT\tDEPARTING TO"));
        stage().doubleClick(main().city_LABEL(3));
    });
    then([&] {
        ASSERT_TRUE(main().main_pic.visible);
        stage().key(Qt::Key_C, Qt::ControlModifier);
        EXPECT_TRUE(clipboard().contains("Flight\t")) << "the pass";
        ASSERT_TRUE(stage().tabTo(main().viewButton));
        ASSERT_TRUE(stage().tabTo(main().departureText));
        stage().key(Qt::Key_C, Qt::ControlModifier);
        EXPECT_EQ(clipboard(), "KATL") << "the pilot came to it";
        field().deselect();
        stage().key(Qt::Key_C, Qt::ControlModifier);
        EXPECT_TRUE(clipboard().contains("Flight\t"));
        stage().key(Qt::Key_End);
        stage().key(Qt::Key_Left, Qt::ShiftModifier);
        stage().key(Qt::Key_C, Qt::ControlModifier);
        EXPECT_EQ(clipboard(), "L");
    });
    play();
}

TEST_F(Search, AMarkedTextOfAFieldIsCopiedBeforeTheScreen) {
    then([&] {
        ASSERT_TRUE(stage().tabTo(main().switchButton(0)));
        ASSERT_TRUE(stage().tabTo(main().departureText)); // which marks its text
        stage().key(Qt::Key_C, Qt::ControlModifier);
        EXPECT_EQ(clipboard(), "KATL");
    });
    play();
}

TEST_F(Search, CtrlPPrintsWhatIsShown) {
    auto& printed = stage().machine.printer.printed;
    then([&] {
        stage().key(Qt::Key_P, Qt::ControlModifier);
        EXPECT_TRUE(printed.empty()); // the board has no page
        stage().doubleClick(main().city_LABEL(3));
    });
    then([&] { stage().key(Qt::Key_P, Qt::ControlModifier); });
    then([&] {
        ASSERT_EQ(printed.size(), 1U);
        stage().click(main().log_LABEL);
    });
    then([&] { stage().key(Qt::Key_P, Qt::ControlModifier); });
    then([&] { EXPECT_EQ(printed.size(), 2U); });
    play();
}

TEST_F(Search, CtrlZBringsARemovedPointBack) {
    then([&] { stage().doubleClick(main().city_LABEL(3)); });
    then([&] { stage().click(main().viewButton); });
    then([&] {
        auto& list = forms().ViewPlan.PlanList;
        const auto names = [&list] {
            std::vector<std::string> all;
            for (const auto& row : list.rows) all.push_back(row.cells[0]);
            return all;
        };
        const auto whole = names();
        const auto fix = std::find_if(list.rows.begin(), list.rows.end(), [](const auto& row) {
            return row.cells[1].find("Intersection") != std::string::npos;
        });
        ASSERT_NE(fix, list.rows.end());
        list.select(static_cast<int>(fix - list.rows.begin()));
        stage().click(forms().ViewPlan.removeButton);
        ASSERT_NE(names(), whole);
        stage().key(Qt::Key_Z, Qt::ControlModifier);
        EXPECT_EQ(names(), whole);
        stage().key(Qt::Key_Z, Qt::ControlModifier); // nothing more to bring back
        EXPECT_EQ(names(), whole);
    });
    play();
}

TEST_F(Search, CtrlZBringsADeletedEntryBack) {
    const auto entries = [&]() -> auto& {
        return stage().window.program.session.log.LogEntries;
    };
    then([&] { stage().doubleClick(main().city_LABEL(3)); });
    then([&] { stage().click(main().sendlogButton); });
    then([&] { stage().key(Qt::Key_Return); });
    then([&] { stage().click(main().log_LABEL); });
    then([&] {
        ASSERT_EQ(entries().size(), 1U);
        EXPECT_FALSE(main().logEmpty_LABEL.visible);
        stage().click(main().log_press(0));
        stage().click(main().logButton(1));
    });
    then([&] {
        // Enter on a question that destroys is no.
        EXPECT_EQ(stage().focused(), &forms().MsgForm.cancelButton);
        stage().key(Qt::Key_Return);
    });
    then([&] {
        ASSERT_EQ(entries().size(), 1U);
        stage().click(main().log_press(0));
        stage().click(main().logButton(1));
    });
    then([&] { stage().click(forms().MsgForm.okButton); });
    then([&] {
        ASSERT_EQ(entries().size(), 0U);
        EXPECT_TRUE(stage().widget(main().logEmpty_LABEL).isVisible());
        stage().key(Qt::Key_Z, Qt::ControlModifier);
        EXPECT_EQ(entries().size(), 1U);
        EXPECT_FALSE(main().logEmpty_LABEL.visible);
        EXPECT_FALSE(trimmed(main().log_dept(0).text).empty());
    });
    play();
}

TEST_F(Search, NothingOfTheLastPlaceIsKeptUnlessThePilotWantsIt) {
    then([&] { stage().click(main().log_LABEL); });
    then([&] { stage().click(main().FlatButton(4)); });
    play();
    std::error_code error;
    const auto bytes = files::readAll(files::textOf(folder() / "GT.cfg"), &error).value_or(Bytes());
    EXPECT_EQ(std::string(asText(bytes)).find("LastPage"), std::string::npos);
    EXPECT_EQ(std::string(asText(bytes)).find("[Gatewise]"), std::string::npos);
}

TEST(ComeBack, APilotWhoWantsItFindsPageAndAirportAgain) {
    if (!std::filesystem::exists(GATEWISE_PROGRAM_DIR "/Data/index.gt1"))
        GTEST_SKIP() << "built without data sets";
    const QTemporaryDir scratch;
    const std::string appDir = stage::makeProgramFolder(GATEWISE_PROGRAM_DIR, scratch.path().toStdString());
    const auto simulator = files::textOf(std::filesystem::path(scratch.path().toStdString()) / "FS2002");
    {
        stage::Stage first(appDir);
        auto& main = first.forms().MainForm;
        first.machine.registry.folder = simulator;
        first.then([&] { first.click(main.FlatButton(1)); });
        first.then([&] {
            first.click(first.forms().SettingsForm.returnCHECK);
            first.key(Qt::Key_Escape);
        });
        first.then([&] { first.click(main.log_LABEL); });
        first.then([&] { first.click(main.FlatButton(4)); });
        first.play();
        EXPECT_TRUE(first.misses.empty());
    }
    Settings read;
    ReadConfig(appDir, read);
    EXPECT_EQ(read.ComeBack, 1);
    EXPECT_EQ(read.LastPage, 2);
    EXPECT_EQ(read.LastAirport, "KATL");
    stage::Stage again(appDir);
    again.machine.registry.folder = simulator;
    again.then([&] {
        EXPECT_TRUE(again.forms().MainForm.log_pic.visible);
        EXPECT_EQ(trimmed(again.forms().MainForm.departureText.text), "KATL");
    });
    again.play();
}

TEST_F(Search, TheWindowStandsWhereItWasLeftIfThePilotWantsIt) {
    QPoint wanted;
    then([&] { stage().click(main().FlatButton(1)); });
    then([&] {
        stage().click(forms().SettingsForm.returnCHECK);
        stage().key(Qt::Key_Escape);
    });
    then([&] {
        stage().desk().act([&] { user::moveTo(main(), 333, 77); });
        wanted = stage().desk().mainWindow().pos();
        EXPECT_EQ(wanted, QPoint(333, 77));
        stage().click(main().FlatButton(4));
    });
    play();
    restart();
    then([&] { EXPECT_EQ(stage().desk().mainWindow().pos(), wanted); });
    play();
}

} // namespace gatewise::test
