#pragma once

#include "window/FocusRing.h"
#include "window/FocusWalk.h"
#include "window/ScreenViews.h"
#include "window/Skin.h"

namespace gatewise::window {

/// The window of a screen, built from its form and its layout. The same for all screens.
class ScreenWindow : public QWidget {
    Q_OBJECT
public:
    ScreenWindow(Actor& actor, Screen& screen, const ScreenLayout& layout);

    /// Brings the form onto the views.
    void sync();
    /// Takes its size, and that of all in it, at the zoom of now.
    void takeSizes();
    /// Puts the window where the form says, moved onto a screen that can be seen.
    void place();
    /// Where the keyboard starts each time that the screen comes up.
    void focusFirst();
    /// The person at the desk used the mouse, or the keyboard: the ring shows what keys would reach.
    void touched(bool byMouse) { byMouse_ = byMouse; }
    /// The focus went to a widget of this window.
    void focusMoved(QWidget* now);
    /// Presses the key that closes the screen, if it has one.
    void pressClose();

    [[nodiscard]] Screen& screen() const { return screen_; }
    [[nodiscard]] const std::vector<View*>& views() const { return views_.all; }
    [[nodiscard]] View* view(const Control& control) const;
    /// Views at which the Tab key stops now, in its order.
    [[nodiscard]] std::vector<View*> stops() const { return walk_.stops(); }

protected:
    bool focusNextPrevChild(bool next) override;
    void keyPressEvent(QKeyEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void enterEvent(QEnterEvent* event) override;
    void leaveEvent(QEvent* event) override;
    void closeEvent(QCloseEvent* event) override;
    void moveEvent(QMoveEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    [[nodiscard]] const Zoom& zoom() const { return actor_.skin().zoom(); }
    [[nodiscard]] QRect ringBox(View& view) const;
    void givenByWindow();
    void movedTo(QPoint corner);
    /// Puts out what was lit under a mouse that is not there any more.
    void putOut();

    Actor& actor_;
    Screen& screen_;
    ScreenViews views_;
    FocusWalk walk_;
    View* focused_ = nullptr;
    FocusRing* ring_;
    const QSize size_; // in pixels of the layout
    QPoint grip_;      // of the mouse in the title strip that it holds
    bool gripped_ = false;
    bool byMouse_ = false;
};

} // namespace gatewise::window
