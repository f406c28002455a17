#include "window/RowsTable.h"

#include "input/UserEvents.h"
#include "window/Drawing.h"
#include "window/QtText.h"
#include "window/Sheets.h"
#include "window/Skin.h"
#include "window/Tone.h"

#include <QHelpEvent>
#include <QKeyEvent>
#include <QScrollBar>
#include <QStyledItemDelegate>
#include <QToolTip>

#include <algorithm>
#include <cmath>

namespace gatewise::window {

namespace {

constexpr double kCellLeft = 8; // of a cell's text, and what a cell keeps free in all, pixels
constexpr double kCellPad = 12;

/// Only the height of a row; the table draws whole rows itself.
class RowHeight : public QStyledItemDelegate {
public:
    RowHeight(const Skin& skin, QObject* parent) : QStyledItemDelegate(parent), skin_(skin) {}
    QSize sizeHint(const QStyleOptionViewItem&, const QModelIndex&) const override {
        return {10, skin_.zoom().edge(kRowHeight)};
    }
    void paint(QPainter*, const QStyleOptionViewItem&, const QModelIndex&) const override {}

private:
    const Skin& skin_;
};

ListView* columnsOf(Control& control) {
    return control.kind == Kind::ListView ? static_cast<ListView*>(&control) : nullptr;
}

} // namespace

RowsTable::RowsTable(Actor& actor, Control& control, const ControlLayout& place, RowsModel& model,
                     QWidget* parent)
    : QTreeView(parent), actor_(actor), control_(control), place_(place), model_(model),
      head_(new RowsHead(actor, columnsOf(control), this)), narrowing_(*this, actor.skin()) {
    setFrameShape(QFrame::NoFrame);
    setRootIsDecorated(false);
    setIndentation(0);
    setUniformRowHeights(true);
    setItemDelegate(new RowHeight(actor.skin(), this));
    setHeader(head_);
    head_->setSectionsClickable(true); // only now: becoming a tree's header takes it away
    setHeaderHidden(control.kind != Kind::ListView);
    setAllColumnsShowFocus(true);
    setSelectionMode(QAbstractItemView::SingleSelection);
    setEditTriggers(QAbstractItemView::NoEditTriggers);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setVerticalScrollMode(QAbstractItemView::ScrollPerItem);
    viewport()->setAutoFillBackground(false);
    viewport()->setMouseTracking(true);
    setModel(&model);
}

void RowsTable::takeSizes() {
    verticalScrollBar()->setStyleSheet(scrollBarSheet(actor_.skin()));
    head_->takeSizes();
    scheduleDelayedItemsLayout();
}

int RowsTable::rowPixels() const {
    return actor_.skin().zoom().edge(kRowHeight);
}

int RowsTable::picked() const {
    if (control_.kind == Kind::ListView) return static_cast<const ListView&>(control_).picked;
    return static_cast<const ItemControl&>(control_).picked;
}

void RowsTable::sync() {
    syncing_ = true;
    const int top = verticalScrollBar()->value();
    const bool fresh = model_.sync();
    if (control_.kind == Kind::ListView)
        head_->sync();
    else
        head_->resizeSection(0, viewport()->width());
    const int row = picked();
    if (fresh || currentIndex().row() != row) {
        const QModelIndex at = row >= 0 && row < model_.rowCount() ? model_.index(row, 0) : QModelIndex();
        if (fresh) narrowing_.reset();
        if (fresh) executeDelayedItemsLayout();
        if (at.isValid()) {
            if (fresh) verticalScrollBar()->setValue(top);
            setCurrentIndex(at);
        } else {
            selectionModel()->clear();
            if (fresh) scrollToTop();
        }
        viewport()->update();
    }
    syncing_ = false;
}

void RowsTable::choose(int row) {
    actor_.act([&] { user::choose(control_, row); });
}

void RowsTable::currentChanged(const QModelIndex& current, const QModelIndex& previous) {
    QTreeView::currentChanged(current, previous);
    if (!syncing_ && current.isValid()) choose(current.row());
}

/// A screen reader marks a row without going to it; what is marked is picked.
void RowsTable::selectionChanged(const QItemSelection& selected, const QItemSelection& deselected) {
    QTreeView::selectionChanged(selected, deselected);
    if (syncing_) return;
    const auto follow = [this] {
        const QModelIndexList rows = selectionModel()->selectedRows();
        if (!rows.isEmpty() && rows.front().row() != currentIndex().row()) setCurrentIndex(rows.front());
    };
    QMetaObject::invokeMethod(this, follow, Qt::QueuedConnection); // hands and keys have gone there by then
}

void RowsTable::mousePressEvent(QMouseEvent* event) {
    const QModelIndex at = indexAt(event->position().toPoint());
    if (event->button() == Qt::RightButton) pressRight(at);
    if (event->button() != Qt::LeftButton || !at.isValid()) return;
    const bool again = at.row() == currentIndex().row();
    setCurrentIndex(at);
    if (again) choose(at.row());
}

/// What it tells about is the row under the mouse, which becomes the picked one; beside the rows, the picked
/// one.
void RowsTable::pressRight(const QModelIndex& at) {
    if (!control_.handles(Event::RightPress)) return;
    if (at.isValid() && at.row() != currentIndex().row()) setCurrentIndex(at);
    actor_.act([&] { user::rightPress(control_); });
}

void RowsTable::mouseDoubleClickEvent(QMouseEvent* event) {
    if (event->button() != Qt::LeftButton || !indexAt(event->position().toPoint()).isValid()) return;
    open(user::doubleClick);
}

/// A folder that is opened moves its list.
void RowsTable::open(void (*event)(Control&)) {
    actor_.act([&] {
        auto* folders = control_.kind == Kind::FolderList ? static_cast<PathList*>(&control_) : nullptr;
        const std::string before = folders != nullptr ? folders->path : std::string();
        event(control_);
        if (folders != nullptr && folders->path != before) user::path(*folders, folders->path);
    });
}

void RowsTable::mouseMoveEvent(QMouseEvent* event) {
    const QPoint at = groundPosition(actor_, *control_.screen, *event);
    if (control_.handles(Event::Move)) actor_.act([&] { user::move(control_, at.x(), at.y()); });
}

/// The focus alone picks nothing; the tree would quietly make its first row the current one.
void RowsTable::focusInEvent(QFocusEvent* event) {
    const bool none = !currentIndex().isValid();
    const bool before = syncing_;
    syncing_ = true;
    QTreeView::focusInEvent(event);
    if (none) selectionModel()->clear();
    syncing_ = before;
}

/// The next look at the list shows all of it.
void RowsTable::hideEvent(QHideEvent* event) {
    if (!event->spontaneous()) narrowing_.reset();
    QTreeView::hideEvent(event);
}

void RowsTable::pressSpace() {
    if (control_.handles(Event::Space))
        actor_.act([&] { user::space(control_); });
    else if (currentIndex().isValid())
        choose(currentIndex().row());
}

/// A list of names is searched by typing.
bool RowsTable::narrow(const QKeyEvent& event) {
    return control_.kind == Kind::ListBox && narrowing_.key(event, [this](int row) { choose(row); });
}

void RowsTable::keyPressEvent(QKeyEvent* event) {
    if (narrow(*event)) return;
    switch (event->key()) {
    case Qt::Key_Return:
    case Qt::Key_Enter:
        open(control_.handles(Event::Enter) ? user::enter : user::doubleClick);
        break;
    case Qt::Key_Space:
        pressSpace();
        break;
    case Qt::Key_Menu:
        pressRight(QModelIndex());
        break;
    case Qt::Key_Escape:
        event->ignore();
        break;
    default:
        QTreeView::keyPressEvent(event);
    }
}

void RowsTable::paintEvent(QPaintEvent* event) {
    {
        QPainter painter(viewport());
        const QColor stripe = groundOf(actor_.skin().style("list.stripe"));
        const int first = model_.rowCount() > 0 ? verticalScrollBar()->value() : 0;
        for (int y = 0, row = first; y < viewport()->height(); y += rowPixels(), ++row) {
            if (row % 2 == 1) painter.fillRect(0, y, viewport()->width(), rowPixels(), stripe);
        }
    }
    QTreeView::paintEvent(event);
}

/// In pixels of the layout; `top` is in those of the table. What lies behind the scroll bar is no part of it.
QRectF RowsTable::cell(int column, int top) const {
    const bool columns = control_.kind == Kind::ListView;
    const double factor = actor_.skin().zoom().factor;
    const int x = columns ? head_->sectionViewportPosition(column) : 0;
    const int right =
        columns ? std::min(x + head_->sectionSize(column), viewport()->width()) : viewport()->width();
    const double room = std::max(0.0, (right - x) / factor - kCellPad);
    return {x / factor + kCellLeft, top / factor, room, rowPixels() / factor};
}

TextStyle RowsTable::style(int row) const {
    return actor_.skin().text(model_.bold(row) ? "caption" : place_.font);
}

/// What a double click on the edge of a head makes the column: as wide as its longest text.
int RowsTable::sizeHintForColumn(int column) const {
    double widest = 0;
    for (int row = 0; row < model_.rowCount(); ++row) {
        widest = std::max(widest, advance(model_.index(row, column).data().toString(), style(row)));
    }
    return actor_.skin().zoom().edge(std::ceil(widest + kCellPad));
}

/// A text that is cut in its cell is shown whole beside the pointer.
bool RowsTable::viewportEvent(QEvent* event) {
    if (event->type() == QEvent::ToolTip) {
        const auto* help = static_cast<QHelpEvent*>(event);
        const QModelIndex at = indexAt(help->pos());
        const QString text = at.data().toString();
        if (at.isValid() && advance(text, style(at.row())) > cell(at.column(), 0).width()) {
            QToolTip::showText(help->globalPos(), text, viewport());
            return true;
        }
        QToolTip::hideText();
    }
    return QTreeView::viewportEvent(event);
}

void RowsTable::drawRow(QPainter* painter, const QStyleOptionViewItem& option,
                        const QModelIndex& index) const {
    const Skin& skin = actor_.skin();
    const QRect line(0, option.rect.y(), viewport()->width(), rowPixels());
    const bool marked = selectionModel()->isRowSelected(index.row());
    if (marked) {
        painter->fillRect(line, skin.style("list.selected"));
        painter->fillRect(QRect(0, line.y(), skin.zoom().edge(3), rowPixels()),
                          skin.style("list.selectedBar"));
    }
    TextStyle style = this->style(index.row());
    style.color = !isEnabled() ? skin.style("list.disabledText")
                  : marked     ? skin.style("list.selectedText")
                               : skin.style("list.text");
    style.ellipsis =
        control_.kind == Kind::FolderList ? Ellipsis::Left : Ellipsis::Right; // a path tells by its end
    const int columns = model_.columnCount();
    painter->save();
    painter->scale(skin.zoom().factor, skin.zoom().factor);
    for (int c = 0; c < columns; ++c) {
        drawText(*painter, cell(c, line.y()), model_.index(index.row(), c).data(Qt::DisplayRole).toString(),
                 style);
    }
    painter->restore();
}

} // namespace gatewise::window
