#include "window/LinesTable.h"

#include "window/BoardSpeech.h"
#include "window/QtText.h"

#include <algorithm>

namespace gatewise::window {

namespace {

/// Of the board's times, whose word follows the board's way.
constexpr QLatin1String kTimes("time");

bool showsWords(const View& cell) {
    return cell.control->kind == Kind::Label &&
           !toQt(static_cast<const Label&>(*cell.control).text).trimmed().isEmpty();
}

} // namespace

LinesTable::LinesTable(std::vector<Column> columns)
    : QObject(columns.front().cells.front()->widget()->parentWidget()), columns_(std::move(columns)) {
    std::stable_partition(columns_.begin(), columns_.end(), [](const Column& column) {
        return column.cells.front()->control->kind == Kind::HitArea;
    });
    for (std::size_t i = 0; i < columns_.size(); ++i) {
        Column& column = columns_[i];
        for (View* cell : column.cells) cell->lines = this;
        if (column.head != nullptr)
            column.head->lines = this;
        else
            column.spokenHead = new LinesHead(*this, static_cast<int>(i));
    }
}

bool LinesTable::hasWords(int line) const {
    const auto at = static_cast<std::size_t>(line);
    return std::any_of(columns_.begin(), columns_.end(), [at](const Column& column) {
        return at < column.cells.size() && showsWords(*column.cells[at]);
    });
}

std::vector<int> LinesTable::lines() const {
    std::vector<int> out;
    for (int line = 0; line < static_cast<int>(columns_.front().cells.size()); ++line) {
        if (hasWords(line)) out.push_back(line);
    }
    return out;
}

QString LinesTable::name() const {
    for (const Column& column : columns_) {
        const QString& words = column.cells.front()->place.table;
        if (!words.isEmpty()) return words;
    }
    return "Table";
}

QWidget* LinesTable::ground() const {
    return static_cast<QWidget*>(parent());
}

int LinesTable::columnOf(const View& view) const {
    for (std::size_t i = 0; i < columns_.size(); ++i) {
        const auto& cells = columns_[i].cells;
        if (columns_[i].head == &view || std::find(cells.begin(), cells.end(), &view) != cells.end())
            return static_cast<int>(i);
    }
    return -1;
}

QString LinesTable::headWords(int column) const {
    const Column& at = columns_[static_cast<std::size_t>(column)];
    if (at.head == nullptr) return at.says;
    return toQt(static_cast<const Label&>(*at.head->control).text).simplified();
}

QAccessible::Role LinesTable::roleOf(const View& view) const {
    const int column = columnOf(view);
    if (columns_[static_cast<std::size_t>(column)].head == &view) return QAccessible::ColumnHeader;
    return column == 0 ? QAccessible::RowHeader : QAccessible::Cell;
}

QString LinesTable::spoken(const View& view, const QString& text) const {
    const auto column = static_cast<std::size_t>(columnOf(view));
    if (view.control->kind == Kind::HitArea)
        return columns_[column].says + ' ' + QString::number(view.place.row + 1);
    if (&view != columns_[column].head && columns_[column].says == kTimes && !text.isEmpty())
        return boardTime(*view.control->screen, text);
    return text;
}

} // namespace gatewise::window
