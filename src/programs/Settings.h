#pragma once

#include "platform/Profile.h"
#include "platform/UserFolders.h"
#include "programs/Send.h"

#include <string>
#include <string_view>
#include <vector>

// What the pilot chose for each program, and what is done with it.

namespace gatewise::programs {

struct Choice {
    bool ticked = false;
    std::string folder; // a text of the program
};

struct Choices {
    std::vector<Choice> lines; // one for each format, in the table's order
    bool withComputed = false; // top and step points too
    bool onDispatch = false;   // again for every flight that is selected
};

/// The choices that a settings file keeps in its section Programs. A line that it does not name is not ticked
/// and has the folder that is proposed for it.
Choices choicesIn(const Profile& profile, const UserFolders& folders);

/// The same as keys. A folder is kept where its line is ticked or its folder is not the one that is proposed.
std::vector<ProfileValue> valuesOf(const Choices& choices, const UserFolders& folders);

/// What is sent: the plan, and the flight and moment that it is sent for.
struct Dispatch {
    const Plan& plan;
    std::string stem;
    DateTime utc;
    Regions regions = {}; // of the plan's points
};

/// Writes the plan for each ticked line, whatever becomes of the others. In the table's order, one result for
/// each ticked line.
std::vector<Sent> sendTicked(const Choices& choices, const Dispatch& dispatch);

/// The line of a ticked format that goes to the clipboard, without its end; empty when there is none.
std::string clipboardText(const Choices& choices, const Dispatch& dispatch);

} // namespace gatewise::programs
