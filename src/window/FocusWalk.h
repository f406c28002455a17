#pragma once

#include "window/View.h"

#include <map>
#include <vector>

namespace gatewise::window {

/// Where the keyboard goes inside of a window: from stop to stop with Tab, from line to line of a table with
/// the arrow keys.
class FocusWalk {
public:
    /// `views` are those of the window; they must outlive the walk.
    FocusWalk(Actor& actor, const std::vector<View*>& views);

    /// Views at which the Tab key stops now, in its order.
    [[nodiscard]] std::vector<View*> stops() const;
    /// Where the keyboard starts: not on a key that closes the screen, if there is anything else.
    void first();
    /// One stop on or back from a view, or from the beginning; false when there is none.
    bool step(View* from, bool forward);
    /// A key in a line of a table or on something clickable that is no button. False when it means nothing.
    bool press(View& view, int key);
    /// From a line that has lost its words, as at a turn of the page, to the last one above that has some.
    void leaveEmptyRow(View& view);

private:
    [[nodiscard]] View* rowLeader(int family) const;
    [[nodiscard]] std::vector<View*> rowsOf(const View& view) const;
    void goTo(View& view);
    bool moveRow(const View& view, int key);
    bool pressRow(View& view, int key);

    Actor& actor_;
    std::vector<View*> order_; // of the Tab key
    const std::vector<View*>& views_;
    std::map<int, int> rowNow_; // line that the keyboard stands on, for each family
};

} // namespace gatewise::window
