#pragma once

#include "window/FocusRing.h"
#include "window/View.h"

#include <deque>
#include <memory>
#include <vector>

namespace gatewise::window {

/// The window of a screen, built from its form and its layout. The same for all screens.
class ScreenWindow : public QWidget {
    Q_OBJECT
public:
    ScreenWindow(Actor& actor, Screen& screen, const ScreenLayout& layout);
    ~ScreenWindow() override;

    /// Brings the form onto the views.
    void sync();
    /// Puts the window where the form says, moved onto a screen that can be seen.
    void place();
    /// Where the keyboard starts each time that the screen comes up.
    void focusFirst();
    /// The focus went to a widget of this window.
    void focusMoved(QWidget* now);
    /// Puts out what was lit under a mouse that is not there any more.
    void putOut();
    /// Presses the key that closes the screen, if it has one.
    void pressClose();

    [[nodiscard]] Screen& screen() const { return screen_; }
    [[nodiscard]] const std::vector<View*>& views() const { return views_; }
    [[nodiscard]] View* view(const Control& control) const;
    /// Views at which the Tab key stops now, in its order.
    [[nodiscard]] std::vector<View*> stops() const;

protected:
    bool focusNextPrevChild(bool next) override;
    void keyPressEvent(QKeyEvent* event) override;
    void leaveEvent(QEvent* event) override;
    void closeEvent(QCloseEvent* event) override;
    void moveEvent(QMoveEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    struct Room {
        QWidget* widget;
        QPoint offset;
    };
    void buildGrounds(const ScreenLayout& layout);
    void buildViews(const ScreenLayout& layout);
    void nameFields(const ScreenLayout& layout);
    void nameRows();
    [[nodiscard]] QString wordsOfRow(int family, int row) const;
    View* make(Control* control, const ControlLayout& place, QWidget* parent);
    [[nodiscard]] View* rowLeader(int family) const;
    [[nodiscard]] QRect ringBox(View& view) const;
    bool moveRow(View& view, int key);
    bool pressRow(View& view, int key);
    void setFocusOn(View& view);

    Actor& actor_;
    Screen& screen_;
    std::deque<ControlLayout> grounds_; // layout of grounds, which the table lists as containers
    std::map<std::string, Room> rooms_;
    std::vector<View*> views_; // lowest first; owned as widgets
    std::vector<View*> tabOrder_;
    std::map<int, int> rowNow_; // line that the keyboard stands on, for each family
    View* focused_ = nullptr;
    FocusRing* ring_;
};

} // namespace gatewise::window
