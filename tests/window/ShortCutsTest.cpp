#include "window/StageTest.h"

#include <QApplication>
#include <QClipboard>
#include <QLineEdit>

#include <algorithm>

// Keys that copy, print and undo.

namespace gatewise::test {

namespace {

class ShortCuts : public DeliveredStageTest {
protected:
    QString clipboard() { return QGuiApplication::clipboard()->text(); }
};

} // namespace

TEST_F(ShortCuts, CopiesTheBoardThePassAndARowOfThePlan) {
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

TEST_F(ShortCuts, WhatAFieldMarksByItselfDoesNotStandBeforeTheScreen) {
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

TEST_F(ShortCuts, AMarkedTextOfAFieldIsCopiedBeforeTheScreen) {
    then([&] {
        ASSERT_TRUE(stage().tabTo(main().switchButton(0)));
        ASSERT_TRUE(stage().tabTo(main().departureText)); // which marks its text
        stage().key(Qt::Key_C, Qt::ControlModifier);
        EXPECT_EQ(clipboard(), "KATL");
    });
    play();
}

TEST_F(ShortCuts, CtrlPPrintsWhatIsShown) {
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

TEST_F(ShortCuts, CtrlZBringsARemovedPointBack) {
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

TEST_F(ShortCuts, CtrlZBringsADeletedEntryBack) {
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

} // namespace gatewise::test
