#include "pages/MsgForm.h"

#include "pages/Placement.h"
#include "pages/Screens.h"
#include "platform/Text.h"
#include "schedule/FlightTexts.h"

namespace gatewise {

namespace {

struct Message {
    int id;
    const char* text; // {flight}, {number} and {error} stand for what the moment puts in
    const char* mode;
};

constexpr Message kMessages[] = {
    {1,
     "Gatewise Terminal has Exported your flight plan to the Flight Management Computer(s) that were "
     "selected.  "
     "Please refer to FMC product specific documentation on how to load the flight plan.",
     "regular"},
    {2,
     "Gatewise Terminal has created a Log Book Entry for the currently selected flight.  To view or change "
     "the Log "
     "Book Entry, please select the Log Book Page.",
     "regular"},
    {3,
     "Gatewise Terminal is about to permanently delete the selected Log Book Entry!\n\nDo you wish to "
     "continue?",
     "del_log"},
    {4, "Gatewise Terminal was unable to find any schedule airine service from this airport.", "regular"},
    {5,
     "Your flight has been sent to Flight Simulator 2002.  Please use the Select Flight Menu in FS2002 and "
     "select "
     "the FS2000 flight - {flight}.\n\nTo Launch FS2002 please press FLY NOW or press CANCEL to fly later.",
     "fly_now"},
    {6, "Gatewise Terminal has saved the current Entry to your Log Book.", "regular"},
    {7,
     "Gatewise Terminal has exported the current flight plan to the Microsoft Flight Simulator 2000 Flight "
     "Plan "
     "Format.",
     "regular"},
    {8, "Gatewise Terminal has exported the current flight plan to the ACS-GPS Flight Plan Format.",
     "regular"},
    {9, "Gatewise Terminal has exported the current flight plan to the SquawkBox Flight Plan Format.",
     "regular"},
    {10, "Gatewise Terminal has exported the current flight plan to the Radar Contact Flight Plan Format.",
     "regular"},
    {11,
     "Path to Flight Simulator 2002 not found.  Gatewise Terminal will now bring up the Select FS2002 Path "
     "dialog for "
     "you to select your path.  Please locate and double-click your FS2002.exe file to set the correct path "
     "to Flight "
     "Simulator.",
     "path"},
    {12,
     "Gatewise Terminal is unable to proccess this request.  The currently selected flight plan is too long "
     "for Radar "
     "Contact.  The plan contains more than the maximum 29 waypoints!",
     "regular"},
    {13,
     "Gatewise Terminal is unable to find the installation of AETI's ProFlight 2000 on your computer.  "
     "Please verify "
     "that your path to FS2002 is correct and AETI's ProFlight 2000 is correctly installed.",
     "regular"},
    {14,
     "Gatewise Terminal has recieved an Error.\nError Number {number}\n{error}\nPlease contact Gatewise "
     "support at "
     "support@gatewise.example for further assistance.",
     "regular"},
    {15,
     "Gatewise Terminal is now using a new set of Route Data.  Please select a Departure Airport to "
     "Continue.",
     "regular"},
    {16, "Gatewise Terminal found now arriving flights for this time.", "regular"},
    {17,
     "Your flight has been sent to Flight Simulator 2002.  The Flight is set as your Default FS2002 Flight.  "
     "To Launch "
     "Flight Simulator 2002 please press FLY NOW or press CANCEL to fly later.",
     "fly_now"},
    {18, "Gatewise Terminal has exported the current flight plan to the FSNavigator 4 Flight Plan Format.",
     "regular"},
    {19, "Gatewise Terminal has been unable to find FSNavigator 4 installed on your computer.", "regular"},
};

struct ModeButtons {
    const char* mode;
    const char* okType; // its picture is okType + "_regular"
    bool cancel;
};

constexpr ModeButtons kMessageModes[] = {
    {"del_log", "ok", true},
    {"path", "ok", true},
    {"fly_now", "fly", true},
    {"regular", "ok", false},
};

void regularPictures(forms::MsgForm& f) {
    f.okButton.picture = f.okButton.button_type + "_regular";
    f.cancelButton.picture = "cancel_regular";
}

void setButtons(Program& p) {
    auto& f = p.forms.MsgForm;
    CenterOnMain(p, f);
    for (const auto& row : kMessageModes) {
        if (p.g.MessageMode != row.mode) continue;
        f.okButton.button_type = row.okType;
        f.okButton.picture = f.okButton.button_type + "_regular";
        f.cancelButton.visible = row.cancel;
    }
    f.okButton.visible = true;
}

} // namespace

void ShowMessage(Program& p, int heading, int id, int errorNumber) {
    auto& f = p.forms.MsgForm;
    loadScreen(f);
    if (heading == kInformation) f.type_LABEL.text = "Information";
    if (heading == kWarning) f.type_LABEL.text = "Warning!";
    for (const auto& message : kMessages) {
        if (message.id != id) continue;
        std::string text = replaceAll(message.text, "{flight}", flightStem(p.g.tables, p.g.CurrentFlight));
        text = replaceAll(text, "{number}", std::to_string(errorNumber));
        f.Msg_LABEL.text = replaceAll(text, "{error}", p.g.ErrorText);
        p.g.MessageMode = message.mode;
    }
    if (f.visible) {
        setButtons(p);
        return;
    }
    showModal(p, f);
}

void ShowFailure(Program& p, int errorNumber, std::string_view description, std::string_view function) {
    p.g.ErrorText = std::string(description) + "In Function " + std::string(function) + " ";
    ShowMessage(p, kWarning, 14, errorNumber);
}

void ShowFailure(Program& p, const std::error_code& error, std::string_view function) {
    ShowFailure(p, error.value(), textFromUtf8(error.message()) + " ", function);
}

void ShowMsgBox(Program& p, std::string text) {
    p.forms.MsgBox.text.text = std::move(text);
    showModal(p, p.forms.MsgBox);
}

void bindMsgForm(Program& p) {
    auto& f = p.forms.MsgForm;
    f.load = [&p] { placeScreen(p, p.forms.MsgForm); };
    f.activate = [&p] { setButtons(p); };
    f.BG.on(Event::Move, [&f] { regularPictures(f); });
    f.Msg_LABEL.on(Event::Move, [&f] { regularPictures(f); });

    auto& box = p.forms.MsgBox;
    box.load = [&p] { placeScreen(p, p.forms.MsgBox); };
    box.activate = [&p] { CenterOnMain(p, p.forms.MsgBox); };
    const auto close = [&p] { hideScreen(p, p.forms.MsgBox); };
    box.okButton.on(Event::Click, close);
    box.okButton.on(Event::Enter, close);
}

} // namespace gatewise
