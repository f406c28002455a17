#pragma once

#include "window/View.h"

#include <QBasicTimer>
#include <QCheckBox>
#include <QRadioButton>
#include <QSlider>

namespace gatewise::window {

class CheckView : public QCheckBox, public View {
    Q_OBJECT
public:
    CheckView(Actor& actor, Control* control, const ControlLayout& place, QWidget* parent);
    QWidget* widget() override { return this; }
    [[nodiscard]] std::span<const Event> emits() const override;
    void sync() override;
    [[nodiscard]] QString spokenName() const override;
    [[nodiscard]] QAccessible::Role role() const override { return QAccessible::CheckBox; }
    [[nodiscard]] bool takesFocus() const override { return usable(); }

protected:
    void paintEvent(QPaintEvent* event) override;
    void nextCheckState() override {} // the form decides
    bool hitButton(const QPoint& at) const override { return rect().contains(at); }
};

class OptionView : public QRadioButton, public View {
    Q_OBJECT
public:
    OptionView(Actor& actor, Control* control, const ControlLayout& place, QWidget* parent);
    QWidget* widget() override { return this; }
    [[nodiscard]] std::span<const Event> emits() const override;
    void sync() override;
    [[nodiscard]] QString spokenName() const override;
    [[nodiscard]] QAccessible::Role role() const override { return QAccessible::RadioButton; }
    [[nodiscard]] bool takesFocus() const override { return usable(); }

protected:
    void paintEvent(QPaintEvent* event) override;
    void nextCheckState() override {}
    bool hitButton(const QPoint& at) const override { return rect().contains(at); }
};

/// A slider from left to right.
class SliderView : public QSlider, public View {
    Q_OBJECT
public:
    SliderView(Actor& actor, Control* control, const ControlLayout& place, QWidget* parent);
    QWidget* widget() override { return this; }
    [[nodiscard]] std::span<const Event> emits() const override;
    void sync() override;
    [[nodiscard]] QAccessible::Role role() const override { return QAccessible::Slider; }
    [[nodiscard]] bool takesFocus() const override { return usable(); }

protected:
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override { event->accept(); }

private:
    [[nodiscard]] RangeControl& range() const { return static_cast<RangeControl&>(*control); }
    void moveTo(double x);
};

/// Two arrows, one above the other. A slider without a groove, so that keys and screen readers know it.
class UpDownView : public QSlider, public View {
    Q_OBJECT
public:
    UpDownView(Actor& actor, Control* control, const ControlLayout& place, QWidget* parent);
    QWidget* widget() override { return this; }
    [[nodiscard]] std::span<const Event> emits() const override;
    void sync() override;
    [[nodiscard]] QAccessible::Role role() const override { return QAccessible::SpinBox; }
    [[nodiscard]] bool takesFocus() const override { return usable(); }

protected:
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent*) override { update(); }
    void mouseReleaseEvent(QMouseEvent*) override { held_.stop(); }
    void leaveEvent(QEvent*) override { update(); }
    void hideEvent(QHideEvent* event) override;
    void changeEvent(QEvent* event) override;
    void timerEvent(QTimerEvent* event) override;

private:
    [[nodiscard]] RangeControl& range() const { return static_cast<RangeControl&>(*control); }
    void step();
    int direction_ = 0; // of the arrow that is or was held
    QBasicTimer held_;  // runs while an arrow is held
};

} // namespace gatewise::window
