#pragma once

#include <functional>

class QObject;

namespace gatewise::window {

/// What a person has set for all programs of the computer.
struct Wishes {
    bool highContrast = false;
    bool stillSigns = false; // no moving or blinking
    double textScale = 1;
};

/// Asks the desk of the computer, and tells each answer that differs from the last while `owner` lives. Where
/// there is nobody to ask, nothing is told.
void askWishes(QObject* owner, std::function<void(const Wishes&)> tell);

} // namespace gatewise::window
