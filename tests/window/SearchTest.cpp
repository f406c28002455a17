#include "window/StageTest.h"

#include <QLabel>
#include <QTreeView>

// Looking for something: the list that typing narrows.

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

} // namespace gatewise::test
