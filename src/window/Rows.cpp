#include "window/Rows.h"

#include "window/Drawing.h"
#include "window/Skin.h"

namespace gatewise::window {

RowsView::RowsView(Actor& actor, Control* control, const ControlLayout& place, QWidget* parent)
    : PaintedView(actor, control, place, parent), model_(*control, place.says),
      table_(new RowsTable(actor, *control, place, model_, this)) {
    setFocusProxy(table_);
    setFocusPolicy(Qt::StrongFocus);
}

std::span<const Event> RowsView::emits() const {
    // Between what folders and what lists with columns have alone lies what all have.
    static constexpr Event kEvents[] = {Event::Change,     Event::Click, Event::DoubleClick,
                                        Event::RightPress, Event::Move,  Event::Focus,
                                        Event::Enter,      Event::Space, Event::Column};
    const std::span<const Event> all(kEvents);
    if (control->kind == Kind::FolderList) return all.first(8);
    return control->kind == Kind::ListView ? all.subspan(1) : all.subspan(1, 7);
}

void RowsView::takePlace() {
    View::takePlace();
    const QRect inside = boxInWindow().adjusted(1, 1, -1, -1);
    table_->setGeometry(scale().box(inside).translated(-scale().point(widgetInWindow())));
    table_->takeSizes();
}

void RowsView::sync() {
    syncCommon();
    table_->setAccessibleName(spokenName());
    if (isEnabled() != control->enabled) setEnabled(control->enabled);
    table_->sync();
}

void RowsView::paintEvent(QPaintEvent*) {
    ViewPainter painter(*this, scale());
    const Skin& skin = actor_.skin();
    drawWell(painter, QRect(QPoint(0, 0), place.box.size()), skin.style("list.back"),
             skin.style("list.border"), skin.style("list.rim"));
}

} // namespace gatewise::window
