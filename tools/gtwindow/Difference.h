#pragma once

#include "window/Desk.h"

#include <optional>
#include <string>

namespace gatewise::gtwindow {

/// Where what the window shows of a control differs from its form, in words; nothing when they agree, or when
/// the control is not in sight.
std::optional<std::string> difference(window::Desk& desk, const Control& control);
/// The same of the window of a screen: whether and where it is up.
std::optional<std::string> difference(window::Desk& desk, const Screen& screen);

} // namespace gatewise::gtwindow
