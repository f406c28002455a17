#include "dispatch/Terminal.h"
#include "pages/MsgForm.h"

namespace gatewise::test {

namespace {

class Messages : public testing::Test {
protected:
    Messages() {
        smallSchedule().write(folder, "/Data");
        writeSettings(folder);
        t.start();
        t.answers.clear();
    }
    void say(Heading heading, Message message) {
        EXPECT_EQ(ShowMessage(p, heading, message), Waited::Answered);
    }
    void say(const Notice& notice) { EXPECT_EQ(ShowMessage(p, notice), Waited::Answered); }

    TempFolder folder;
    Terminal t{folder};
    Program& p = t.p;
    forms::MsgForm& f = p.forms.MsgForm;
};

} // namespace

TEST_F(Messages, AHeadingOfZeroKeepsThePreviousHeading) {
    say(Heading::Warning, Message{4});
    EXPECT_EQ(f.type_LABEL.text, "Warning!");
    say(Heading{0}, Message{6});
    EXPECT_EQ(f.type_LABEL.text, "Warning!");
    EXPECT_EQ(f.Msg_LABEL.text, "Gatewise Terminal has saved the current Entry to your Log Book.");
    say(Heading::Information, Message{6});
    EXPECT_EQ(f.type_LABEL.text, "Information");
    say(Heading{3}, Message{6});
    EXPECT_EQ(f.type_LABEL.text, "Information");
}

TEST_F(Messages, AnIdOutsideTheTableLeavesTextAndMode) {
    say(Heading::Warning, Message{11});
    const std::string text = f.Msg_LABEL.text;
    for (const int id : {0, 20, -1}) {
        say(Heading::Information, Message{id});
        EXPECT_EQ(f.Msg_LABEL.text, text);
        EXPECT_EQ(p.session.desk.MessageMode, "path");
    }
    EXPECT_EQ(t.shown.size(), 4U);
}

TEST_F(Messages, TheModeOfATextSetsTheButtons) {
    for (int id = 1; id <= 19; ++id) {
        const std::string mode = id == 3               ? "del_log"
                                 : id == 11            ? "path"
                                 : id == 5 || id == 17 ? "fly_now"
                                                       : "regular";
        f.okButton.visible = false;
        f.Msg_LABEL.text.clear();
        say(Heading::Information, Message{id});
        EXPECT_EQ(p.session.desk.MessageMode, mode) << id;
        EXPECT_FALSE(f.Msg_LABEL.text.empty()) << id;
        EXPECT_TRUE(f.okButton.visible) << id;
        EXPECT_EQ(f.okButton.button_type, mode == "fly_now" ? "fly" : "ok") << id;
        EXPECT_EQ(f.okButton.picture, mode == "fly_now" ? "fly_regular" : "ok_regular") << id;
        EXPECT_EQ(f.cancelButton.visible, mode != "regular") << id;
        EXPECT_EQ(f.cancelButton.picture, "cancel_regular") << id;
    }
}

TEST_F(Messages, TheCancelButtonKeepsTheMousePictureThatItWasLeftWith) {
    say(Heading::Warning, Message{3});
    f.cancelButton.picture = "cancel_mouse";
    f.okButton.picture = "ok_mouse";
    say(Heading::Warning, Message{3});
    EXPECT_EQ(f.cancelButton.picture, "cancel_mouse");
    EXPECT_EQ(f.okButton.picture, "ok_regular");
}

TEST_F(Messages, AFailureIsToldWithItsNumberItsDescriptionAndItsFunction) {
    say(failure(-9, "Subscript out of range", "find_airline_code"));
    EXPECT_TRUE(f.Msg_LABEL.text.starts_with(
        "Gatewise Terminal has recieved an Error.\nError Number -9\nSubscript out of rangeIn Function "
        "find_airline_code \n"))
        << f.Msg_LABEL.text;
    EXPECT_TRUE(f.Msg_LABEL.text.ends_with("for further assistance."));
    EXPECT_EQ(f.type_LABEL.text, "Warning!");
}

TEST_F(Messages, TheSentFlightIsNamedByItsStem) {
    p.session.dispatch.CurrentFlight = p.session.schedule.DepartureFlights.front();
    say(Heading::Information, Message{5});
    EXPECT_EQ(
        f.Msg_LABEL.text,
        "Your flight has been sent to Flight Simulator 2002.  Please use the Select Flight Menu in FS2002 "
        "and select the FS2000 flight - Example Air Flight 10 AAA to BBB.\n\nTo Launch FS2002 please press "
        "FLY NOW or press CANCEL to fly later.");
}

TEST_F(Messages, MouseOverTheGroundOrTheTextPutsThePicturesBack) {
    for (Control* under : {static_cast<Control*>(&f.BG), static_cast<Control*>(&f.Msg_LABEL)}) {
        t.answers = {[&] {
            f.okButton.picture = "fly_mouse";
            f.cancelButton.picture = "cancel_mouse";
            user::move(*under);
            EXPECT_EQ(f.okButton.picture, "fly_regular");
            EXPECT_EQ(f.cancelButton.picture, "cancel_regular");
        }};
        say(Heading::Information, Message{17});
        EXPECT_TRUE(t.answers.empty());
    }
}

} // namespace gatewise::test
