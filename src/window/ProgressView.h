#pragma once

#include "window/View.h"

#include <QProgressBar>

namespace gatewise::window {

/// A bar that fills as a work goes on.
class ProgressView : public QProgressBar, public View {
    Q_OBJECT
public:
    ProgressView(Actor& actor, Control* control, const ControlLayout& place, QWidget* parent);
    QWidget* widget() override { return this; }
    [[nodiscard]] std::span<const Event> emits() const override { return {}; }
    void sync() override;
    [[nodiscard]] QAccessible::Role role() const override { return QAccessible::ProgressBar; }

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    [[nodiscard]] const RangeControl& range() const { return static_cast<const RangeControl&>(*control); }
};

} // namespace gatewise::window
