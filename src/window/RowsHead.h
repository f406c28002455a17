#pragma once

#include "window/View.h"

#include <QHeaderView>

namespace gatewise::window {

constexpr int kRowHeight = 20; // of a list's row and of its head, pixels

/// The heads of a list's columns: a click goes to the form, and so does a width that is dragged.
class RowsHead : public QHeaderView {
    Q_OBJECT
public:
    /// `list` is the list view whose columns it heads; null for a list without columns.
    RowsHead(Actor& actor, ListView* list, QWidget* parent);
    /// Takes over the form's widths without telling the form.
    void sync();
    /// Its height at the zoom of now.
    void takeSizes();

protected:
    void paintEvent(QPaintEvent* event) override;
    void paintSection(QPainter* painter, const QRect& box, int section) const override;

private:
    void dragged(int section, int width);
    Actor& actor_;
    ListView* list_;
    bool syncing_ = false;
};

} // namespace gatewise::window
