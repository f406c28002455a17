#pragma once

#include "window/View.h"

// What a screen reader calls the controls of a screen, from the labels that stand near.

namespace gatewise::window {

/// Whether a label only says what stands beside it, and shows no value of its own.
bool isCaption(const ControlLayout& place);

/// Ties fields and values to the label beside or above, and names the widgets.
void nameFields(const std::vector<View*>& views);

/// Puts together the tables that are made of texts in lines, and the sentences that their lines speak.
void nameRows(const std::vector<View*>& views);

} // namespace gatewise::window
