#pragma once

#include "window/View.h"

#include <QComboBox>
#include <QLineEdit>
#include <QPlainTextEdit>

namespace gatewise::window {

/// A line to type in.
class LineView : public QLineEdit, public View {
    Q_OBJECT
public:
    LineView(Actor& actor, Control* control, const ControlLayout& place, QWidget* parent);
    QWidget* widget() override { return this; }
    [[nodiscard]] std::span<const Event> emits() const override;
    void sync() override;
    void takePlace() override;
    [[nodiscard]] QAccessible::Role role() const override { return QAccessible::EditableText; }
    [[nodiscard]] bool takesFocus() const override;
    /// Whether the pilot marked text here: came to it by mouse or key, or marked it then.
    [[nodiscard]] bool markedByHand() const { return byHand_ && hasSelectedText(); }
    /// The window chose the field by itself, as where the keyboard starts.
    void givenByWindow() { byHand_ = false; }

protected:
    void paintEvent(QPaintEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;

private:
    [[nodiscard]] TextBox& box() const { return static_cast<TextBox&>(*control); }
    void markAll();
    bool byMouse_ = false; // the focus came with a mouse press that has not ended
    bool selectLater_ = false;
    bool byHand_ = true;
};

/// Several lines to type in.
class NotesView : public QPlainTextEdit, public View {
    Q_OBJECT
public:
    NotesView(Actor& actor, Control* control, const ControlLayout& place, QWidget* parent);
    QWidget* widget() override { return this; }
    [[nodiscard]] std::span<const Event> emits() const override;
    void sync() override;
    void takePlace() override;
    [[nodiscard]] QAccessible::Role role() const override { return QAccessible::EditableText; }
    [[nodiscard]] bool takesFocus() const override { return usable(); }

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    [[nodiscard]] TextBox& box() const { return static_cast<TextBox&>(*control); }
    void typed();
    bool syncing_ = false;
};

/// Combo boxes and drive lists.
class ComboView : public QComboBox, public View {
    Q_OBJECT
public:
    ComboView(Actor& actor, Control* control, const ControlLayout& place, QWidget* parent);
    QWidget* widget() override { return this; }
    [[nodiscard]] std::span<const Event> emits() const override;
    void sync() override;
    void takePlace() override;
    [[nodiscard]] QAccessible::Role role() const override { return QAccessible::ComboBox; }
    [[nodiscard]] bool takesFocus() const override { return usable() && !list().locked; }

protected:
    void paintEvent(QPaintEvent* event) override;
    void wheelEvent(QWheelEvent* event) override { event->ignore(); }

private:
    void pick(int at);
    [[nodiscard]] ItemControl& list() const { return static_cast<ItemControl&>(*control); }
    std::vector<std::string> shown_;
};

} // namespace gatewise::window
