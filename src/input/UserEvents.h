#pragma once

#include "forms/Forms.h"

#include <string>

// What a person does at a control, in the one order in which the program sees it. The window and the text
// driver turn their input into these calls and into nothing else. A disabled control takes nothing but the
// mouse moving over it, and says nothing. Refusing input to screens that a modal one blocks is theirs.

namespace gatewise::user {

void click(Control& control);   // press, release, click
void clicked(Control& control); // the click alone, after a press and a release that were told before
void doubleClick(Control& control);
void press(Control& control, int x = 0, int y = 0);
void release(Control& control, int x = 0, int y = 0);
void rightPress(Control& control);
void move(Control& control, int x = 0, int y = 0, bool left = false);
void focus(Control& control);
void enter(Control& control);
void space(Control& control);

/// Replaces the text as typing would; longer texts are cut where the box has a limit.
void type(TextBox& box, std::string text);
/// An item of a combo or list box, or a row of a list view. False when there is no such place.
bool choose(Control& control, int place);
void check(Control& control, int value); // check or option box
void slide(RangeControl& control, int value);
void column(ListView& list, int column);
/// Turns the pages that lie on a ground: so many on, or back when negative.
void turn(Control& ground, int pages);
/// Drags the edge of a column's head to `width` pixels.
void widen(ListView& list, int column, int width);
/// A mark or route of a chart is picked by its id; false when nothing there has it.
bool pickOf(Chart& chart, int id);
/// The pointer stands on it, or with -1 on none.
void pointAt(Chart& chart, int id);
/// Moves a drive or folder list.
void path(PathList& list, std::string path);

/// The person or the window manager puts a screen elsewhere; pixels of the desk.
void moveTo(Screen& screen, double left, double top);
/// The person turned to a screen, which comes before the others. The main screen lies below its dialogs all
/// the same, and one that a modal screen blocks stays where it is.
void turnTo(Forms& forms, Screen& screen);

/// What a timer does when it falls due; a timer never ticks inside its own tick.
void tick(Timer& timer);

} // namespace gatewise::user
