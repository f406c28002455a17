#pragma once

#include "window/View.h"

#include <QPushButton>

namespace gatewise::window {

/// A button of one of the five picture classes.
class ButtonView : public PaintedView {
    Q_OBJECT
public:
    ButtonView(Actor& actor, Control* control, const ControlLayout& place, QWidget* parent);
    void sync() override;
    [[nodiscard]] std::span<const Event> emits() const override { return emitsWithKeys(); }
    [[nodiscard]] QString spokenName() const override;
    [[nodiscard]] QAccessible::Role role() const override { return QAccessible::Button; }
    [[nodiscard]] bool takesFocus() const override { return usable(); }
    [[nodiscard]] bool isKey() const override { return true; }
    void activate() override;

    /// Whether the picture has words on it.
    [[nodiscard]] bool wordsOnPicture() const;
    /// File of the form's picture below the program folder.
    [[nodiscard]] std::string pictureTail() const;
    /// File of the picture that is painted: that of a key that cannot be pressed where the form leaves a lit
    /// or a regular one on it.
    [[nodiscard]] std::string paintedTail() const;

protected:
    void paintEvent(QPaintEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void leaveEvent(QEvent* event) override;

private:
    void putOut();
    [[nodiscard]] SkinnedButton& button() const { return static_cast<SkinnedButton&>(*control); }
    void byKey(const std::function<void()>& what);
    std::string shown_;
    int shownState_ = 1;
};

/// A standard push button, drawn like a key.
class PushButtonView : public QPushButton, public View {
    Q_OBJECT
public:
    PushButtonView(Actor& actor, Control* control, const ControlLayout& place, QWidget* parent);
    QWidget* widget() override { return this; }
    [[nodiscard]] std::span<const Event> emits() const override;
    void sync() override;
    [[nodiscard]] QString spokenName() const override;
    [[nodiscard]] QAccessible::Role role() const override { return QAccessible::Button; }
    [[nodiscard]] bool takesFocus() const override { return usable(); }
    [[nodiscard]] bool isKey() const override { return true; }
    void activate() override;

protected:
    void paintEvent(QPaintEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
};

/// A key without a picture.
void drawKey(QPainter& painter, const QRectF& box, const QString& caption, const Skin& skin, bool lit,
             bool usable);

} // namespace gatewise::window
