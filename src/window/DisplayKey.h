#pragma once

#include "window/View.h"

#include <QPushButton>

namespace gatewise::window {

/// The key to the menu of sizes and colours. No form knows it: how windows look is the window's alone.
class DisplayKey : public QPushButton, public View {
    Q_OBJECT
public:
    DisplayKey(Actor& actor, const ControlLayout& place, QWidget* parent);
    QWidget* widget() override { return this; }
    void sync() override {}
    [[nodiscard]] std::span<const Event> emits() const override { return {}; }
    [[nodiscard]] QString spokenName() const override { return text(); }
    [[nodiscard]] QAccessible::Role role() const override { return QAccessible::Button; }
    [[nodiscard]] bool takesFocus() const override { return isEnabled(); }
    [[nodiscard]] bool isKey() const override { return true; }
    void activate() override { click(); }

protected:
    void paintEvent(QPaintEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
};

} // namespace gatewise::window
