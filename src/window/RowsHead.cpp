#include "window/RowsHead.h"

#include "input/UserEvents.h"
#include "window/LabelText.h"
#include "window/Skin.h"
#include "window/Tone.h"

#include <algorithm>
#include <cmath>

namespace gatewise::window {

namespace {

constexpr int kNarrowest = 8; // pixels of a column

} // namespace

RowsHead::RowsHead(Actor& actor, ListView* list, QWidget* parent)
    : QHeaderView(Qt::Horizontal, parent), actor_(actor), list_(list) {
    setSectionResizeMode(QHeaderView::Interactive);
    setStretchLastSection(false);
    setFrameShape(QFrame::NoFrame);
    if (list == nullptr) return;
    connect(this, &QHeaderView::sectionClicked, this,
            [this](int section) { actor_.act([&] { user::column(*list_, section); }); });
    connect(this, &QHeaderView::sectionResized, this,
            [this](int section, int, int width) { dragged(section, width); });
}

void RowsHead::dragged(int section, int width) {
    if (syncing_) return;
    const int inLayout = static_cast<int>(std::lround(width / actor_.skin().zoom().factor));
    actor_.act([&] { user::widen(*list_, section, inLayout); });
}

void RowsHead::takeSizes() {
    const Zoom& zoom = actor_.skin().zoom();
    syncing_ = true; // narrow columns that grow were not dragged
    setMinimumSectionSize(zoom.edge(kNarrowest));
    setFixedHeight(zoom.edge(kRowHeight));
    syncing_ = false;
}

void RowsHead::sync() {
    if (list_ == nullptr) return;
    syncing_ = true;
    for (int i = 0; i < std::min(count(), static_cast<int>(list_->columns.size())); ++i) {
        const double wide = list_->columns[static_cast<std::size_t>(i)].width;
        const int width = actor_.skin().zoom().edge(std::max(kNarrowest, static_cast<int>(std::floor(wide))));
        if (sectionSize(i) != width) resizeSection(i, width);
    }
    syncing_ = false;
}

void RowsHead::paintEvent(QPaintEvent* event) {
    QHeaderView::paintEvent(event);
    QPainter painter(viewport());
    const QRect rest = viewport()->rect().adjusted(length(), 0, 0, 0);
    painter.fillRect(rest, groundOf(actor_.skin().style("list.head")));
    painter.fillRect(0, height() - 1, viewport()->width(), 1, edgeOf(actor_.skin().style("list.rim")));
}

void RowsHead::paintSection(QPainter* painter, const QRect& box, int section) const {
    painter->fillRect(box, groundOf(actor_.skin().style("list.head")));
    TextStyle style = actor_.skin().text("list-head");
    style.color = actor_.skin().style("list.headText");
    style.ellipsis = Ellipsis::Right;
    const double factor = actor_.skin().zoom().factor;
    painter->save();
    painter->scale(factor, factor);
    const QRectF cell(box.x() / factor, box.y() / factor, box.width() / factor, box.height() / factor);
    drawText(*painter, cell.adjusted(8, 0, -2, 0),
             model()->headerData(section, Qt::Horizontal, Qt::DisplayRole).toString(), style);
    painter->restore();
    const int gap = actor_.skin().zoom().edge(3);
    painter->fillRect(box.right(), box.top() + gap, 1, box.height() - 2 * gap,
                      edgeOf(actor_.skin().style("list.rim")));
}

} // namespace gatewise::window
