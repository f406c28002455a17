#pragma once

#include <QWheelEvent>

namespace gatewise::window {

/// Whole notches out of the turns of a wheel, of which fine ones come in parts of a notch.
class Notches {
public:
    /// The notches that this turn completes; negative towards the person.
    int take(const QWheelEvent& event) {
        turned_ += event.angleDelta().y();
        const int notches = turned_ / QWheelEvent::DefaultDeltasPerStep;
        turned_ -= notches * QWheelEvent::DefaultDeltasPerStep;
        return notches;
    }

private:
    int turned_ = 0; // since the last notch, eighths of a degree
};

} // namespace gatewise::window
