#pragma once

#include "window/View.h"

#include <deque>
#include <vector>

namespace gatewise::window {

/// What the window of a screen is made of.
struct ScreenViews {
    std::deque<ControlLayout> grounds; // layout of grounds, which the table lists as containers
    std::vector<View*> all;            // lowest first; owned as widgets of the window
};

/// One view for each control of the layout that the screen has, of the one class of its kind, as children of
/// `window` or of the ground or frame in which it stands. `layout` must outlive the views.
ScreenViews buildViews(Actor& actor, Screen& screen, const ScreenLayout& layout, QWidget* window);

} // namespace gatewise::window
