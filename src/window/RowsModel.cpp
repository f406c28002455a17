#include "window/RowsModel.h"

#include "window/QtText.h"

#include <QDir>

namespace gatewise::window {

bool RowsModel::sync() {
    return control_.kind == Kind::ListView ? syncColumns() : syncItems();
}

bool RowsModel::syncColumns() {
    const auto& list = static_cast<const ListView&>(control_);
    bool same = rows_.size() == list.rows.size() && heads_.size() == list.columns.size();
    for (std::size_t i = 0; same && i < rows_.size(); ++i) {
        same = rows_[i] == list.rows[i].cells && bold_[i] == list.rows[i].bold;
    }
    for (std::size_t i = 0; same && i < heads_.size(); ++i) same = heads_[i] == list.columns[i].text;
    if (same) return false;
    std::vector<std::vector<std::string>> rows;
    std::vector<bool> bold;
    std::vector<std::string> heads;
    for (const auto& row : list.rows) {
        rows.push_back(row.cells);
        bold.push_back(row.bold);
    }
    for (const auto& column : list.columns) heads.push_back(column.text);
    take(std::move(rows), std::move(bold), std::move(heads));
    return true;
}

bool RowsModel::syncItems() {
    const auto& items = static_cast<const ItemControl&>(control_).items;
    bool same = rows_.size() == items.size();
    for (std::size_t i = 0; same && i < rows_.size(); ++i) same = rows_[i][0] == items[i];
    if (same) return false;
    std::vector<std::vector<std::string>> rows;
    for (const auto& item : items) rows.push_back({item});
    std::vector<bool> bold(rows.size(), false);
    take(std::move(rows), std::move(bold), {});
    return true;
}

void RowsModel::take(std::vector<std::vector<std::string>> rows, std::vector<bool> bold,
                     std::vector<std::string> heads) {
    beginResetModel();
    rows_ = std::move(rows);
    bold_ = std::move(bold);
    heads_ = std::move(heads);
    endResetModel();
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
    if (control_.kind != Kind::ListView) return only_;
    const auto at = static_cast<std::size_t>(section);
    return at < heads_.size() ? toQt(heads_[at]) : QString();
}

} // namespace gatewise::window
