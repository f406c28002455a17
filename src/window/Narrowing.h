#pragma once

#include "window/Skin.h"

#include <QKeyEvent>
#include <QLabel>
#include <QTreeView>

#include <functional>

namespace gatewise::window {

/// Search as one types in a list: its rows stay, those without the typed letters are not shown. A letter that
/// no row has is not taken, so that there is always something to choose from.
class Narrowing {
public:
    Narrowing(QTreeView& list, const Skin& skin);

    /// Whether the key was meant for the search. `choose` is told the row that becomes the picked one.
    bool key(const QKeyEvent& event, const std::function<void(int)>& choose);
    /// The list was filled anew: all of it is shown.
    void reset();
    [[nodiscard]] const QString& typed() const { return typed_; }

private:
    [[nodiscard]] int firstMatch(const QString& typed) const;
    [[nodiscard]] bool matches(int row, const QString& typed) const;
    /// `refused`: what no line has, or nothing.
    void show(const QString& refused);
    void narrow(const QString& typed, const std::function<void(int)>& choose);
    QTreeView& list_;
    const Skin& skin_;
    QLabel* sign_; // the typed letters, at the foot of the list
    QString typed_;
};

} // namespace gatewise::window
