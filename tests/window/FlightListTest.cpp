#include "window/RowsOf.h"
#include "window/StageTest.h"

#include "window/Rows.h"

#include <QApplication>
#include <QScrollBar>
#include <QTest>

// The list of flights: what the mouse and the keyboard do in it.

namespace gatewise::test {

namespace {

class FlightList : public StageTest {
protected:
    void SetUp() override {
        if (!dataIsThere()) GTEST_SKIP() << "built without data sets";
        StageTest::SetUp();
        then([&] { stage().doubleClick(forms().MainForm.city_LABEL(3)); });
        then([&] { stage().click(forms().MainForm.newButton); });
    }
    forms::FlightForm& form() { return forms().FlightForm; }
    window::RowsTable& table() { return tableOf(stage(), form().FlightList); }
    void press(Qt::MouseButton button, int row) {
        QTest::mouseClick(table().window()->windowHandle(), button, {}, middleOf(table(), row));
    }
    /// The flight that the information screen tells of.
    std::string shown() { return forms().InfoForm.FlightInfo1.pointer; }
    std::string flightOf(int row) {
        return form().FlightList.rows.at(static_cast<std::size_t>(row)).key.substr(6);
    }
    void leaveInformation() {
        then([&] {
            EXPECT_TRUE(forms().InfoForm.visible);
            stage().key(Qt::Key_Escape);
        });
        then([&] { EXPECT_FALSE(forms().InfoForm.visible); });
    }
};

} // namespace

TEST_F(FlightList, TheRightButtonPicksTheRowUnderItAndTellsAllAboutIt) {
    then([&] {
        ASSERT_GE(form().FlightList.rows.size(), 2U);
        press(Qt::LeftButton, 0);
        EXPECT_EQ(form().FlightList.picked, 0);
        press(Qt::RightButton, 1);
    });
    then([&] {
        EXPECT_EQ(form().FlightList.picked, 1);
        EXPECT_EQ(shown(), flightOf(1));
    });
    leaveInformation();
    play();
}

TEST_F(FlightList, SpaceTellsAllAboutThePickedRow) {
    then([&] {
        stage().key(Qt::Key_Home);
        stage().key(Qt::Key_Down);
        EXPECT_EQ(form().FlightList.picked, 1);
        stage().key(Qt::Key_Space);
    });
    then([&] { EXPECT_EQ(shown(), flightOf(1)); });
    leaveInformation();
    play();
}

TEST_F(FlightList, WithoutAPickedRowSpaceAndTheRightButtonTellNothing) {
    then([&] {
        ASSERT_EQ(form().FlightList.picked, -1);
        table().setFocus();
        stage().key(Qt::Key_Space);
        EXPECT_FALSE(forms().InfoForm.visible);
        const QPoint below(table().viewport()->width() / 2, table().viewport()->height() - 2);
        QTest::mouseClick(table().window()->windowHandle(), Qt::RightButton, {},
                          table().viewport()->mapTo(table().window(), below));
    });
    then([&] {
        EXPECT_FALSE(forms().InfoForm.visible);
        EXPECT_EQ(form().FlightList.picked, -1);
        stage().key(Qt::Key_Escape);
    });
    play();
}

TEST_F(FlightList, ADoubleClickTakesTheFlight) {
    std::string flight;
    then([&] {
        press(Qt::LeftButton, 1);
        flight = form().FlightList.rows.at(1).cells.at(0);
        QTest::mouseDClick(table().window()->windowHandle(), Qt::LeftButton, {}, middleOf(table(), 1));
    });
    then([&] {
        EXPECT_FALSE(form().visible);
        std::erase(flight, ' ');
        EXPECT_EQ(forms().MainForm.fltLABEL_1.text, flight);
    });
    play();
}

TEST_F(FlightList, ADraggedEdgeWidensItsColumnInTheForm) {
    then([&] {
        auto* head = table().header();
        const double before = form().FlightList.columns[0].width;
        const QPoint edge(head->sectionViewportPosition(1) - 1, head->height() / 2);
        QWidget* at = head->viewport();
        QTest::mouseMove(at, edge);
        QTest::mousePress(at, Qt::LeftButton, {}, edge);
        QTest::mouseMove(at, edge + QPoint(25, 0));
        QTest::mouseRelease(at, Qt::LeftButton, {}, edge + QPoint(25, 0));
        EXPECT_NEAR(form().FlightList.columns[0].width, before + 25, 1);
        EXPECT_EQ(head->sectionSize(0), static_cast<int>(form().FlightList.columns[0].width));
        stage().key(Qt::Key_Escape);
    });
    play();
}

TEST_F(FlightList, ADoubleClickOnAnEdgeMakesTheColumnAsWideAsItsLongestText) {
    then([&] {
        auto* head = table().header();
        head->resizeSection(1, 20);
        const QPoint edge(head->sectionViewportPosition(2) - 1, head->height() / 2);
        QTest::mouseMove(head->viewport(), edge);
        QTest::mouseDClick(head->viewport(), Qt::LeftButton, {}, edge);
        EXPECT_GT(head->sectionSize(1), 60);
        EXPECT_EQ(form().FlightList.columns[1].width, head->sectionSize(1));
        stage().key(Qt::Key_Escape);
    });
    play();
}

/// The list keeps its place when it is filled anew around a picked row, and begins at its top without one.
TEST_F(FlightList, ARefilledListKeepsItsPlaceAroundThePickedRow) {
    then([&] {
        auto& list = form().FlightList;
        const auto fill = [&](int picked) {
            stage().desk().act([&] {
                list.clear();
                for (int i = 0; i < 80; ++i) list.rows.push_back({"", {"row " + std::to_string(i)}, false});
                list.rows[0].cells[0] += std::to_string(picked);
                list.picked = picked;
            });
        };
        fill(-1);
        EXPECT_EQ(table().verticalScrollBar()->value(), 0);
        fill(50);
        const int place = table().verticalScrollBar()->value();
        EXPECT_GT(place, 30);
        fill(49);
        EXPECT_EQ(table().verticalScrollBar()->value(), place);
        EXPECT_EQ(table().currentIndex().row(), 49);
        fill(-1);
        EXPECT_EQ(table().verticalScrollBar()->value(), 0);
        stage().key(Qt::Key_Escape);
    });
    play();
}

} // namespace gatewise::test
