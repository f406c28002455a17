#include "window/RowsOf.h"
#include "window/StageTest.h"

#include "window/Rows.h"

#include <QApplication>
#include <QScrollBar>
#include <QTest>
#include <QWheelEvent>

// The list of a plan that is longer than its window, while points are taken out.

namespace gatewise::test {

namespace {

class PlanRows : public StageTest {
protected:
    void SetUp() override {
        if (!dataIsThere()) GTEST_SKIP() << "built without data sets";
        StageTest::SetUp();
        auto& main = forms().MainForm;
        then([&] { stage().click(main.main_LABEL); });
        then([&] {
            stage().click(main.arrSearch);
            stage().type("johannesburg");
            stage().click(main.arrivalButton);
        });
        then([&] {
            stage().key(Qt::Key_Home);
            stage().click(forms().SelectForm.selectButton);
        });
        then([&] {
            stage().key(Qt::Key_Home);
            stage().click(forms().FlightForm.flightButton);
        });
        then([&] { stage().click(main.viewButton); });
        then([&] {
            ASSERT_TRUE(forms().ViewPlan.visible);
            ASSERT_GT(list().rows.size(), 28U) << "no longer than its window";
        });
    }
    ListView& list() { return forms().ViewPlan.PlanList; }
    window::RowsTable& table() { return tableOf(stage(), list()); }
    QScrollBar& bar() { return *table().verticalScrollBar(); }
    [[nodiscard]] const std::vector<std::string>& cells(int row) {
        return list().rows.at(static_cast<std::size_t>(row)).cells;
    }
    /// A point of the plan's own, no top of climb or descent and no step.
    bool own(int row) { return !cells(row)[0].starts_with(" *"); }
    int ownFrom(int row) {
        while (!own(row)) ++row;
        return row;
    }
    /// Turns the wheel over the list until the row is the first in sight, or nothing is left below.
    void scrollTo(int row) {
        const QPoint at = table().viewport()->rect().center();
        while (bar().value() != row) {
            const int before = bar().value();
            QWheelEvent event(at, table().viewport()->mapToGlobal(QPointF(at)), {},
                              {0, before < row ? -40 : 40}, Qt::NoButton, Qt::NoModifier, Qt::NoScrollPhase,
                              false);
            QApplication::sendEvent(table().viewport(), &event);
            if (bar().value() == before) return;
        }
    }
    bool inSight(int row) {
        const QRect box = table().visualRect(table().model()->index(row, 0));
        return box.isValid() && table().viewport()->rect().contains(box.center());
    }
    void pick(int row) {
        ASSERT_TRUE(inSight(row)) << row;
        QTest::mouseClick(table().window()->windowHandle(), Qt::LeftButton, {}, middleOf(table(), row));
        ASSERT_EQ(list().picked, row);
    }
    /// Takes the picked point out; the one that followed is picked afterwards and stands in sight.
    void removePicked() {
        const std::string name = cells(ownFrom(list().picked + 1))[1];
        const auto rows = list().rows.size();
        stage().click(forms().ViewPlan.removeButton);
        EXPECT_LT(list().rows.size(), rows);
        ASSERT_GE(list().picked, 0);
        EXPECT_EQ(cells(list().picked)[1], name);
        EXPECT_EQ(table().currentIndex().row(), list().picked);
        EXPECT_TRUE(table().selectionModel()->isRowSelected(list().picked));
        EXPECT_TRUE(inSight(list().picked));
    }
    void leave() {
        then([&] { stage().key(Qt::Key_Escape); });
    }
};

} // namespace

TEST_F(PlanRows, ARemovalKeepsThePlaceAndPicksTheRowThatFollows) {
    then([&] {
        scrollTo(8);
        ASSERT_EQ(bar().value(), 8);
        pick(ownFrom(12));
        for (int i = 0; i < 4; ++i) {
            removePicked();
            EXPECT_EQ(bar().value(), 8) << "after " << i + 1;
        }
    });
    leave();
    play();
}

TEST_F(PlanRows, TheFirstRowInSightGoesAndTheListStaysWhereItIs) {
    then([&] {
        const int first = ownFrom(9);
        scrollTo(first);
        ASSERT_EQ(bar().value(), first);
        pick(first);
        removePicked();
        EXPECT_EQ(bar().value(), first);
    });
    leave();
    play();
}

TEST_F(PlanRows, AtItsEndTheListStaysAtItsEnd) {
    then([&] {
        scrollTo(1000);
        ASSERT_EQ(bar().value(), bar().maximum());
        int last = static_cast<int>(list().rows.size()) - 1;
        while (cells(last)[1].find("Total") == std::string::npos) --last;
        pick(last - 2 - (own(last - 2) ? 0 : 1)); // before the destination
        removePicked();
        EXPECT_EQ(bar().value(), bar().maximum());
    });
    leave();
    play();
}

TEST_F(PlanRows, TheKeyboardGoesOnFromTheRowThatFollows) {
    then([&] {
        scrollTo(8);
        pick(ownFrom(12));
        removePicked();
        const int followed = list().picked;
        ASSERT_TRUE(stage().tabTo(list()));
        stage().key(Qt::Key_Down);
        EXPECT_EQ(list().picked, followed + 1);
        EXPECT_EQ(bar().value(), 8);
    });
    leave();
    play();
}

} // namespace gatewise::test
