#pragma once

#include "window/View.h"

namespace gatewise::window {

/// The ground of a screen or page.
class GroundView : public PaintedView {
    Q_OBJECT
public:
    GroundView(Actor& actor, Control* control, const ControlLayout& place, std::string picture,
               QWidget* parent);
    void sync() override { syncCommon(); }
    [[nodiscard]] QAccessible::Role role() const override { return QAccessible::Grouping; }

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    std::string picture_;
};

/// A text, with a dark well or without, that may be something to click.
class LabelView : public PaintedView {
    Q_OBJECT
public:
    using PaintedView::PaintedView;
    void sync() override;
    [[nodiscard]] std::span<const Event> emits() const override { return emitsWithKeys(); }
    [[nodiscard]] QString spokenName() const override;
    [[nodiscard]] QString spokenDetails() const override;
    [[nodiscard]] QAccessible::Role role() const override;
    [[nodiscard]] bool takesFocus() const override;
    [[nodiscard]] bool isKey() const override;
    [[nodiscard]] bool silent() const override;
    void activate() override;
    [[nodiscard]] QMargins beyond() const override;

    /// What the text wears now.
    [[nodiscard]] struct TextStyle style() const;

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    [[nodiscard]] const Label& label() const { return static_cast<const Label&>(*control); }
    std::string shownText_;
    Color shownColor_;
    bool shownEnabled_ = true;
    bool shownMark_ = false;
    Mark shownSign_ = Mark::None;
};

/// An area without looks of its own above others.
class HitAreaView : public PaintedView {
    Q_OBJECT
public:
    using PaintedView::PaintedView;
    void sync() override { syncCommon(); }
    [[nodiscard]] std::span<const Event> emits() const override { return emitsWithKeys(); }
    [[nodiscard]] QString spokenName() const override;
    [[nodiscard]] QString spokenDetails() const override;
    [[nodiscard]] QAccessible::Role role() const override;
    [[nodiscard]] bool takesFocus() const override;
    [[nodiscard]] bool silent() const override { return !takesFocus(); }
    void activate() override;
};

/// A picture that the program changes.
class PictureView : public PaintedView {
    Q_OBJECT
public:
    using PaintedView::PaintedView;
    void sync() override;
    [[nodiscard]] QString spokenName() const override;
    [[nodiscard]] QAccessible::Role role() const override { return QAccessible::Graphic; }

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    std::string shown_;
};

/// A frame with a heading around other controls.
class FrameView : public PaintedView {
    Q_OBJECT
public:
    using PaintedView::PaintedView;
    void sync() override { syncCommon(); }
    [[nodiscard]] QString spokenName() const override;
    [[nodiscard]] QAccessible::Role role() const override { return QAccessible::Grouping; }
    [[nodiscard]] QMargins beyond() const override;

protected:
    void paintEvent(QPaintEvent* event) override;
};

/// A piece of glass that no form knows.
class ShapeView : public PaintedView {
    Q_OBJECT
public:
    ShapeView(Actor& actor, const ControlLayout& place, QWidget* parent);
    void sync() override {}
    [[nodiscard]] bool silent() const override { return true; }

protected:
    void paintEvent(QPaintEvent* event) override;
};

/// Ground of the composite that shows one flight.
class FlightInfoView : public PaintedView {
    Q_OBJECT
public:
    using PaintedView::PaintedView;
    void sync() override { syncCommon(); }
    [[nodiscard]] QAccessible::Role role() const override { return QAccessible::Grouping; }
};

} // namespace gatewise::window
