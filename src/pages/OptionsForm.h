#pragma once

#include "board/Board.h"
#include "pages/Program.h"

#include <string_view>

namespace gatewise {

/// "vol_up", "vol_dn": the ambience's target, heard and shown at once.
void changeVolume(Program& p, std::string_view type);

/// "ann_dn", "ann_up": the volume of announcements, from the next one on.
void changeAnnouncementVolume(Program& p, std::string_view type);

/// Silence, or none, as the settings say.
void muteSounds(Program& p);

/// Shows the board's settings in the controls of this screen.
void showOptions(Program& p);

/// The board is sorted so from now on.
void chooseSort(Program& p, BoardSort sort);

void bindOptionsForm(Program& p);

} // namespace gatewise
