#include "window/Rows.h"

#include "screens/UserEvents.h"
#include "window/Drawing.h"
#include "window/LabelText.h"
#include "window/QtText.h"
#include "window/Skin.h"

#include <QDir>
#include <QHeaderView>
#include <QHelpEvent>
#include <QKeyEvent>
#include <QScrollBar>
#include <QStyledItemDelegate>
#include <QToolTip>

#include <cmath>

namespace gatewise::window {

namespace {

constexpr int kRow = 20;

/// Only the height of a row; the table draws whole rows itself.
class RowHeight : public QStyledItemDelegate {
public:
    using QStyledItemDelegate::QStyledItemDelegate;
    QSize sizeHint(const QStyleOptionViewItem&, const QModelIndex&) const override { return {10, kRow}; }
    void paint(QPainter*, const QStyleOptionViewItem&, const QModelIndex&) const override {}
};

/// The heads of the columns.
class Heads : public QHeaderView {
public:
    Heads(Actor& actor, QWidget* parent) : QHeaderView(Qt::Horizontal, parent), actor_(actor) {
        setSectionResizeMode(QHeaderView::Interactive);
        setStretchLastSection(false);
        setMinimumSectionSize(8);
        setFixedHeight(kRow);
        setFrameShape(QFrame::NoFrame);
    }

protected:
    void paintEvent(QPaintEvent* event) override {
        QHeaderView::paintEvent(event);
        QPainter painter(viewport());
        const QRect rest = viewport()->rect().adjusted(length(), 0, 0, 0);
        painter.fillRect(rest, actor_.skin().style("list.head"));
        painter.fillRect(0, kRow - 1, viewport()->width(), 1, actor_.skin().style("list.rim"));
    }
    void paintSection(QPainter* painter, const QRect& box, int section) const override {
        painter->fillRect(box, actor_.skin().style("list.head"));
        TextStyle style = actor_.skin().text("list-head");
        style.color = actor_.skin().style("list.headText");
        style.ellipsis = Ellipsis::Right;
        drawText(*painter, QRectF(box).adjusted(8, 0, -2, 0),
                 model()->headerData(section, Qt::Horizontal, Qt::DisplayRole).toString(), style);
        painter->fillRect(box.right(), box.top() + 3, 1, kRow - 6, actor_.skin().style("list.rim"));
    }

private:
    Actor& actor_;
};

QString scrollBarStyle(const Skin& skin) {
    return QString("QScrollBar:vertical{background:%1;width:12px;border:0}"
                   "QScrollBar::handle:vertical{background:%2;border-radius:4px;margin:2px;min-height:24px}"
                   "QScrollBar::handle:vertical:hover{background:%3}"
                   "QScrollBar::add-line,QScrollBar::sub-line{height:0}"
                   "QScrollBar::add-page,QScrollBar::sub-page{background:none}")
        .arg(skin.style("list.scrollTrack").name(), skin.style("list.scrollThumb").name(),
             skin.style("list.scrollThumbHover").name());
}

} // namespace

bool RowsModel::sync() {
    std::vector<std::vector<std::string>> rows;
    std::vector<bool> bold;
    std::vector<std::string> heads;
    if (control_.kind == Kind::ListView) {
        const auto& list = static_cast<const ListView&>(control_);
        bool same = rows_.size() == list.rows.size() && heads_.size() == list.columns.size();
        for (std::size_t i = 0; same && i < rows_.size(); ++i) {
            same = rows_[i] == list.rows[i].cells && bold_[i] == list.rows[i].bold;
        }
        for (std::size_t i = 0; same && i < heads_.size(); ++i) same = heads_[i] == list.columns[i].text;
        if (same) return false;
        for (const auto& row : list.rows) {
            rows.push_back(row.cells);
            bold.push_back(row.bold);
        }
        for (const auto& column : list.columns) heads.push_back(column.text);
    } else {
        const auto& items = static_cast<const ItemControl&>(control_).items;
        bool same = rows_.size() == items.size();
        for (std::size_t i = 0; same && i < rows_.size(); ++i) same = rows_[i][0] == items[i];
        if (same) return false;
        for (const auto& item : items) rows.push_back({item});
        bold.assign(rows.size(), false);
    }
    beginResetModel();
    rows_ = std::move(rows);
    bold_ = std::move(bold);
    heads_ = std::move(heads);
    endResetModel();
    return true;
}

bool RowsModel::bold(int row) const {
    return row >= 0 && row < static_cast<int>(bold_.size()) && bold_[static_cast<std::size_t>(row)];
}

int RowsModel::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : static_cast<int>(rows_.size());
}

int RowsModel::columnCount(const QModelIndex& parent) const {
    if (parent.isValid()) return 0;
    return control_.kind == Kind::ListView ? static_cast<int>(heads_.size()) : 1;
}

QVariant RowsModel::data(const QModelIndex& index, int role) const {
    if (role != Qt::DisplayRole && role != Qt::AccessibleTextRole) return {};
    const auto& cells = rows_[static_cast<std::size_t>(index.row())];
    const auto column = static_cast<std::size_t>(index.column());
    QString text = column < cells.size() ? toQt(cells[column]) : QString();
    // The program appends its own tails with "\\"; a person reads a path of this computer.
    if (control_.kind == Kind::FolderList) text.replace('\\', QDir::separator());
    return text;
}

QVariant RowsModel::headerData(int section, Qt::Orientation orientation, int role) const {
    if (orientation != Qt::Horizontal || role != Qt::DisplayRole) return {};
    const auto at = static_cast<std::size_t>(section);
    return at < heads_.size() ? toQt(heads_[at]) : QString();
}

RowsTable::RowsTable(Actor& actor, Control& control, const ControlLayout& place, RowsModel& model,
                     QWidget* parent)
    : QTreeView(parent), actor_(actor), control_(control), place_(place), model_(model) {
    setFrameShape(QFrame::NoFrame);
    setRootIsDecorated(false);
    setIndentation(0);
    setUniformRowHeights(true);
    setItemDelegate(new RowHeight(this));
    setHeader(new Heads(actor, this));
    header()->setSectionsClickable(true); // only now: becoming a tree's header takes it away
    setHeaderHidden(control.kind != Kind::ListView);
    setAllColumnsShowFocus(true);
    setSelectionMode(QAbstractItemView::SingleSelection);
    setEditTriggers(QAbstractItemView::NoEditTriggers);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setVerticalScrollMode(QAbstractItemView::ScrollPerItem);
    verticalScrollBar()->setStyleSheet(scrollBarStyle(actor.skin()));
    viewport()->setAutoFillBackground(false);
    viewport()->setMouseTracking(true);
    setModel(&model);
    connect(header(), &QHeaderView::sectionClicked, this, [this](int section) {
        if (control_.kind == Kind::ListView) {
            actor_.act([&] { user::column(static_cast<ListView&>(control_), section); });
        }
    });
    connect(header(), &QHeaderView::sectionResized, this, [this](int section, int, int width) {
        if (syncing || control_.kind != Kind::ListView) return;
        auto& columns = static_cast<ListView&>(control_).columns;
        const auto at = static_cast<std::size_t>(section);
        if (at < columns.size()) columns[at].width = width;
    });
}

void RowsTable::choose(int row) {
    actor_.act([&] { user::choose(control_, row); });
}

/// A double click or Enter on the picked row.
void RowsTable::open() {
    actor_.act([&] {
        if (control_.handles(Event::DoubleClick))
            user::doubleClick(control_);
        else
            user::enter(control_);
    });
}

void RowsTable::currentChanged(const QModelIndex& current, const QModelIndex& previous) {
    QTreeView::currentChanged(current, previous);
    if (!syncing && current.isValid()) choose(current.row());
}

void RowsTable::mousePressEvent(QMouseEvent* event) {
    if (event->button() != Qt::LeftButton) return;
    const QModelIndex at = indexAt(event->position().toPoint());
    if (!at.isValid()) return;
    const bool again = at.row() == currentIndex().row();
    setCurrentIndex(at);
    if (again) choose(at.row());
}

void RowsTable::mouseDoubleClickEvent(QMouseEvent* event) {
    if (event->button() == Qt::LeftButton && indexAt(event->position().toPoint()).isValid()) open();
}

void RowsTable::mouseMoveEvent(QMouseEvent* event) {
    const QPoint at = groundPosition(*control_.screen, *event);
    if (control_.handles(Event::Move)) actor_.act([&] { user::move(control_, at.x(), at.y()); });
}

/// The focus alone picks nothing; the tree would quietly make its first row the current one.
void RowsTable::focusInEvent(QFocusEvent* event) {
    const bool none = !currentIndex().isValid();
    const bool before = syncing;
    syncing = true;
    QTreeView::focusInEvent(event);
    if (none) selectionModel()->clear();
    syncing = before;
}

void RowsTable::keyPressEvent(QKeyEvent* event) {
    if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter) {
        if (currentIndex().isValid()) open();
    } else if (event->key() == Qt::Key_Space && currentIndex().isValid()) {
        choose(currentIndex().row());
    } else if (event->key() == Qt::Key_Escape) {
        event->ignore();
    } else {
        QTreeView::keyPressEvent(event);
    }
}

void RowsTable::paintEvent(QPaintEvent* event) {
    {
        QPainter painter(viewport());
        const QColor stripe = actor_.skin().style("list.stripe");
        const int first = model_.rowCount() > 0 ? verticalScrollBar()->value() : 0;
        for (int y = 0, row = first; y < viewport()->height(); y += kRow, ++row) {
            if (row % 2 == 1) painter.fillRect(0, y, viewport()->width(), kRow, stripe);
        }
    }
    QTreeView::paintEvent(event);
}

QRectF RowsTable::cell(int column, int top) const {
    const bool columns = control_.kind == Kind::ListView;
    const int x = columns ? header()->sectionViewportPosition(column) : 0;
    const int w = columns ? header()->sectionSize(column) : viewport()->width();
    return {x + 8.0, static_cast<double>(top), w - 12.0, kRow};
}

TextStyle RowsTable::style(int row) const {
    return actor_.skin().text(model_.bold(row) ? "caption" : place_.font);
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
    const QRect line(0, option.rect.y(), viewport()->width(), kRow);
    const bool picked = selectionModel()->isRowSelected(index.row());
    if (picked) {
        painter->fillRect(line, skin.style("list.selected"));
        painter->fillRect(QRect(0, line.y(), 3, kRow), skin.style("list.selectedBar"));
    }
    TextStyle style = this->style(index.row());
    style.color = !isEnabled() ? skin.style("list.disabledText")
                  : picked     ? skin.style("list.selectedText")
                               : skin.style("list.text");
    style.ellipsis =
        control_.kind == Kind::FolderList ? Ellipsis::Left : Ellipsis::Right; // a path tells by its end
    const int columns = model_.columnCount();
    for (int c = 0; c < columns; ++c) {
        drawText(*painter, cell(c, line.y()), model_.index(index.row(), c).data(Qt::DisplayRole).toString(),
                 style);
    }
}

RowsView::RowsView(Actor& actor, Control* control, const ControlLayout& place, QWidget* parent)
    : PaintedView(actor, control, place, parent), model_(*control),
      table_(new RowsTable(actor, *control, place, model_, this)) {
    setFocusProxy(table_);
    setFocusPolicy(Qt::StrongFocus);
}

void RowsView::putAt(QPoint corner) {
    setGeometry(QRect(corner, place.box.size()).adjusted(0, 0, 0, 1));
    table_->setGeometry(QRect(QPoint(0, 0), place.box.size()).adjusted(1, 1, -1, -1));
}

int RowsView::picked() const {
    if (control->kind == Kind::ListView) return static_cast<const ListView&>(*control).picked;
    return static_cast<const ItemControl&>(*control).picked;
}

void RowsView::sync() {
    syncCommon();
    table_->syncing = true;
    table_->setAccessibleName(spokenName());
    if (isEnabled() != control->enabled) setEnabled(control->enabled);
    const bool fresh = model_.sync();
    if (control->kind == Kind::ListView)
        syncColumns();
    else
        table_->header()->resizeSection(0, table_->viewport()->width());
    const int row = picked();
    if (fresh || table_->currentIndex().row() != row) {
        const QModelIndex at = row >= 0 && row < model_.rowCount() ? model_.index(row, 0) : QModelIndex();
        if (at.isValid())
            table_->setCurrentIndex(at);
        else {
            table_->selectionModel()->clear();
            if (fresh) table_->scrollToTop();
        }
        table_->viewport()->update();
    }
    table_->syncing = false;
}

void RowsView::syncColumns() {
    const auto& columns = static_cast<const ListView&>(*control).columns;
    for (std::size_t i = 0; i < columns.size(); ++i) {
        const int width = std::max(8, static_cast<int>(std::floor(columns[i].width)));
        const int section = static_cast<int>(i);
        if (table_->header()->sectionSize(section) != width) table_->header()->resizeSection(section, width);
    }
}

void RowsView::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    const Skin& skin = actor_.skin();
    drawWell(painter, QRect(QPoint(0, 0), place.box.size()), skin.style("list.back"),
             skin.style("list.border"), skin.style("list.rim"));
}

} // namespace gatewise::window
