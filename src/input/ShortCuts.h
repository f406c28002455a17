#pragma once

#include "pages/Program.h"

#include <span>
#include <string>
#include <string_view>

// The keys that work wherever the focus is. One table says what they do, to the program and to the help.

namespace gatewise {

struct ShortCut {
    const char* keys;  // "Ctrl+P", "PgDown": the names that keys have among programmers
    const char* where; // on which screens, in words
    const char* words; // what it does
    /// Does it on the screen in front; false when there it means nothing. Null: the controls do it
    /// themselves, the row is for the help alone.
    bool (*run)(Program& p) = nullptr;
};

std::span<const ShortCut> shortCuts();

/// Does what the keys mean on the screen in front. False when they mean nothing there.
bool runShortCut(Program& p, std::string_view keys);

/// The page of the help with all of them, as it stands in assets/help.
std::string shortCutPage();

/// The page of the help that tells of the screen in front: "boards.htm".
std::string helpPageOf(const Program& p);

} // namespace gatewise
