#include "gtwindow/Lists.h"

#include "platform/Files.h"
#include "platform/Text.h"

#include <QApplication>
#include <QComboBox>
#include <QHeaderView>
#include <QTreeView>

#include <algorithm>

namespace gatewise::gtwindow {

namespace {

constexpr int kMostSteps = 2000; // of the wheel, and of keys in an open list

std::string forward(std::string path) {
    std::replace(path.begin(), path.end(), '\\', '/');
    while (path.size() > 1 && path.ends_with('/')) path.pop_back();
    return path;
}

/// The name of the folder below `from` on the way to `to`; empty when `to` does not lie below.
std::string nextFolder(const std::string& from, const std::string& to) {
    const std::string stem = from == "/" ? from : from + "/";
    if (!to.starts_with(stem)) return {};
    return to.substr(stem.size(), to.find('/', stem.size()) - stem.size());
}

/// `goal` as a list that stands at `here` spells it: without its drive where the list has none.
std::string seenFrom(const std::string& here, const std::string& goal) {
    const bool drive = goal.size() > 1 && goal[1] == ':';
    return drive && here.starts_with('/') ? goal.substr(2) : goal;
}

bool openLine(Pointer& pointer, PathList& list, int line) {
    const auto spot = line < 0 ? std::nullopt : rowSpot(pointer, list, line);
    if (spot) pointer.doubleClick(*spot);
    return spot.has_value();
}

} // namespace

QAbstractItemView* tableOf(const Pointer& pointer, const Control& list) {
    window::View* view = pointer.viewOf(list);
    return view == nullptr ? nullptr : view->widget()->findChild<QTreeView*>();
}

std::optional<Spot> rowSpot(Pointer& pointer, const Control& list, int row) {
    auto* table = tableOf(pointer, list);
    if (table == nullptr || row < 0 || row >= table->model()->rowCount()) return std::nullopt;
    const QModelIndex index = table->model()->index(row, 0);
    const QRect room = table->viewport()->rect();
    const auto wheelAt = pointer.reach(list, *table->viewport(), room);
    for (int step = 0; wheelAt && step < kMostSteps; ++step) {
        const QRect box = table->visualRect(index);
        if (box.top() >= room.top() && box.bottom() <= room.bottom()) break;
        Pointer::wheel(*wheelAt, box.top() < room.top() ? 1 : -1);
    }
    QRect line = table->visualRect(index);
    line.setRight(room.right());
    return pointer.reach(list, *table->viewport(), line & room);
}

std::optional<Spot> pickedSpot(Pointer& pointer, const Control& list, int picked) {
    if (picked >= 0) return rowSpot(pointer, list, picked);
    auto* table = tableOf(pointer, list);
    if (table == nullptr) return std::nullopt;
    QRect below = table->viewport()->rect();
    const int rows = table->model()->rowCount();
    if (rows > 0) below.setTop(table->visualRect(table->model()->index(rows - 1, 0)).bottom() + 1);
    return below.height() < 2 ? std::nullopt : pointer.reach(list, *table->viewport(), below);
}

bool chooseRow(Pointer& pointer, const Control& list, int row) {
    const auto spot = rowSpot(pointer, list, row);
    if (spot) pointer.click(*spot);
    return spot.has_value();
}

bool chooseItem(Pointer& pointer, const Control& combo, int item) {
    window::View* view = pointer.viewOf(combo);
    auto* box = view == nullptr ? nullptr : dynamic_cast<QComboBox*>(view->widget());
    const auto spot = pointer.reach(combo);
    if (box == nullptr || !spot) return false;
    pointer.click(*spot);
    QAbstractItemView* list = box->view();
    if (!list->isVisible()) return false;
    Keyboard::press(Qt::Key_Home);
    for (int step = 0; step < kMostSteps && list->currentIndex().row() < item; ++step) {
        const int left = item - list->currentIndex().row();
        Keyboard::press(left > 9 ? Qt::Key_PageDown : Qt::Key_Down);
    }
    while (list->currentIndex().row() > item) Keyboard::press(Qt::Key_Up);
    const QPoint at =
        list->viewport()->mapTo(list->window(), list->visualRect(list->currentIndex()).center());
    pointer.click({list->window()->windowHandle(), at});
    // The item that was shown lies where the list was opened: so soon after that a click there says nothing.
    if (list->isVisible()) Keyboard::press(Qt::Key_Return);
    return true;
}

bool clickColumn(Pointer& pointer, const ListView& list, int column) {
    auto* table = dynamic_cast<QTreeView*>(tableOf(pointer, list));
    if (table == nullptr || table->isHeaderHidden()) return false;
    QHeaderView* head = table->header();
    const QRect section(head->sectionViewportPosition(column) + 5, 0, head->sectionSize(column) - 10,
                        head->height());
    const auto spot = pointer.reach(list, *head->viewport(), section & head->viewport()->rect());
    if (spot) pointer.click(*spot);
    return spot.has_value();
}

void walkFolders(Pointer& pointer, PathList& list, const std::string& path) {
    const std::string named = forward(path);
    if (list.kind == Kind::DriveList) {
        const int item = list.find(path);
        if (item >= 0) chooseItem(pointer, list, item);
        return;
    }
    if (named.empty() || !files::folderExists(named)) return;
    for (int step = 0; step < kMostSteps; ++step) {
        const std::string here = forward(list.path);
        const std::string goal = seenFrom(here, named);
        if (here == goal) {
            openLine(pointer, list, 0); // the folder itself, once more
            return;
        }
        const std::string next = nextFolder(here, goal);
        const int line = list.find(next.empty() ? ".." : next);
        if (!openLine(pointer, list, line) || forward(list.path) == here) return;
    }
}

} // namespace gatewise::gtwindow
