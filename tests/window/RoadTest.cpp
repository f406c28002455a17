#include "window/StageTest.h"

#include <QApplication>

// The road of one flight: airport, flights, boarding pass; once with the mouse, once without it.

namespace gatewise::test {

namespace {

class Road : public DeliveredStageTest {};

} // namespace

TEST_F(Road, WithTheMouseFromTheBoard) {
    then([&] {
        EXPECT_TRUE(main().status_pic.visible);
        EXPECT_TRUE(stage().widget(main().status_pic).isVisible());
        EXPECT_FALSE(stage().widget(main().main_pic).isVisible());
        stage().doubleClick(main().city_LABEL(3));
    });
    then([&] {
        EXPECT_TRUE(stage().widget(main().main_pic).isVisible());
        EXPECT_FALSE(main().fltLABEL_1.text.empty());
        EXPECT_TRUE(main().export_LABEL.enabled);
    });
    play();
}

TEST_F(Road, WithTheMouseFromTheMainPage) {
    then([&] { stage().click(main().main_LABEL); });
    then([&] {
        stage().click(main().arrSearch);
        stage().click(main().departureText);
        EXPECT_EQ(stage().focused(), &main().departureText);
        stage().type("KATL"); // replaces what was there: the focus has selected it
        EXPECT_EQ(main().departureText.text, "KATL");
        stage().click(main().enterButton);
    });
    then([&] {
        ASSERT_TRUE(forms().SelectForm.visible);
        EXPECT_EQ(QApplication::activeModalWidget(), &stage().desk().window(forms().SelectForm));
        stage().key(Qt::Key_Home);
        stage().click(forms().SelectForm.selectButton);
    });
    then([&] {
        EXPECT_FALSE(stage().desk().window(forms().SelectForm).isVisible());
        stage().click(main().arrSearch);
        stage().type("miami");
        stage().click(main().arrivalButton);
    });
    then([&] {
        stage().key(Qt::Key_Home);
        stage().click(forms().SelectForm.selectButton);
    });
    then([&] {
        ASSERT_TRUE(forms().FlightForm.visible);
        stage().key(Qt::Key_Home);
        stage().click(forms().FlightForm.flightButton);
    });
    then([&] {
        EXPECT_FALSE(forms().FlightForm.visible);
        EXPECT_EQ(main().destLABEL_1.text.substr(0, 5), "Miami");
        EXPECT_EQ(main().viewButton.State, 1);
    });
    play();
}

TEST_F(Road, WithTheKeyboardAlone) {
    then([&] {
        ASSERT_TRUE(stage().tabTo(main().main_LABEL));
        stage().key(Qt::Key_Return);
    });
    then([&] {
        EXPECT_TRUE(main().main_pic.visible);
        ASSERT_TRUE(stage().tabTo(main().departureText));
        stage().type("KATL");
        stage().key(Qt::Key_Return);
    });
    then([&] {
        ASSERT_TRUE(forms().SelectForm.visible);
        EXPECT_EQ(stage().focused(), &forms().SelectForm.List1);
        stage().key(Qt::Key_Home);
        EXPECT_EQ(forms().SelectForm.List1.picked, 0);
        stage().key(Qt::Key_Return);
    });
    then([&] {
        EXPECT_FALSE(forms().SelectForm.visible);
        ASSERT_TRUE(stage().tabTo(main().arrSearch));
        stage().type("miami");
        ASSERT_TRUE(stage().tabTo(main().arrivalButton));
        stage().key(Qt::Key_Space);
    });
    then([&] {
        ASSERT_TRUE(forms().SelectForm.visible);
        stage().key(Qt::Key_Down);
        stage().key(Qt::Key_Home);
        ASSERT_TRUE(stage().tabTo(forms().SelectForm.selectButton));
        stage().key(Qt::Key_Return);
    });
    then([&] {
        ASSERT_TRUE(forms().FlightForm.visible);
        stage().key(Qt::Key_Home);
        stage().key(Qt::Key_Return);
    });
    then([&] {
        EXPECT_FALSE(forms().FlightForm.visible);
        EXPECT_EQ(main().destLABEL_1.text.substr(0, 5), "Miami");
        EXPECT_FALSE(main().seatLABEL_1.text.empty());
    });
    play();
}

TEST_F(Road, BoardRowsAreWalkedWithArrows) {
    std::string second;
    then([&] {
        ASSERT_TRUE(stage().tabTo(main().fltnum_LABEL(0)));
        stage().key(Qt::Key_Down);
        EXPECT_EQ(stage().focused(), &main().fltnum_LABEL(1));
        stage().key(Qt::Key_Up);
        stage().key(Qt::Key_Up);
        EXPECT_EQ(stage().focused(), &main().fltnum_LABEL(0));
        stage().key(Qt::Key_End);
        stage().key(Qt::Key_Home);
        stage().key(Qt::Key_Down);
        second = main().fltnum_LABEL(1).text;
        stage().key(Qt::Key_Space); // what a right click shows
    });
    then([&] {
        ASSERT_TRUE(forms().InfoForm.visible);
        stage().key(Qt::Key_Escape);
    });
    then([&] {
        EXPECT_FALSE(forms().InfoForm.visible);
        EXPECT_EQ(stage().focused(), &main().fltnum_LABEL(1));
        stage().key(Qt::Key_Return);
    });
    then([&] {
        const auto blank = second.find_first_not_of(' ');
        EXPECT_EQ(main().fltLABEL_1.text, second.substr(blank, second.find_last_not_of(' ') - blank + 1));
    });
    play();
}

} // namespace gatewise::test
