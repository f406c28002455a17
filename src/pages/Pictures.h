#pragma once

#include "pages/Program.h"

#include <string_view>

namespace gatewise {

/// Set the pictures of one page: the button of type `t` gets its hover picture, the others the regular or
/// disabled one. " " and "" stand for none.
void RefreshMainButtons(Program& p, std::string_view t);
void RefreshBoardButtons(Program& p, std::string_view t);
void RefreshLogButtons(Program& p, std::string_view t);
void RefreshExportButtons(Program& p, std::string_view t);
void RefreshClockButtons(Program& p, std::string_view t);

/// The regular or, by State, disabled pictures of all buttons of a dialog.
void restorePictures(Screen& screen);

/// The click sound of buttons and tabs.
void playClick(Program& p);

} // namespace gatewise
