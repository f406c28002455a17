#pragma once

#include "window/View.h"

namespace gatewise::window {

/// A table whose cells are the texts of control arrays, for who cannot see that they stand in lines. Lines
/// without words are left out; the first column heads the lines. It belongs to the ground of its cells.
class LinesTable : public QObject {
    Q_OBJECT
public:
    struct Column {
        /// The head's words, and what is said before the values of a column with a head of its own.
        QString says;
        View* head = nullptr;          // null where the picture below shows it
        std::vector<View*> cells;      // by line
        QObject* spokenHead = nullptr; // stands for a head that is only seen in the picture
    };

    /// Takes the columns in the order of the views. The column that can be pressed comes first.
    explicit LinesTable(std::vector<Column> columns);

    [[nodiscard]] const std::vector<Column>& columns() const { return columns_; }
    [[nodiscard]] bool hasWords(int line) const;
    /// The lines that have words, from the top.
    [[nodiscard]] std::vector<int> lines() const;
    [[nodiscard]] QString name() const;
    [[nodiscard]] QWidget* ground() const;
    /// Place of a column among the columns by its cell or head, -1 for none.
    [[nodiscard]] int columnOf(const View& view) const;
    [[nodiscard]] QString headWords(int column) const;
    [[nodiscard]] QAccessible::Role roleOf(const View& view) const;
    /// What the cell or head says whose own words are `text`.
    [[nodiscard]] QString spoken(const View& view, const QString& text) const;

private:
    std::vector<Column> columns_;
};

/// Stands for a head of a column that only the picture below the table shows.
class LinesHead : public QObject {
    Q_OBJECT
public:
    LinesHead(LinesTable& table, int column) : QObject(&table), table(table), column(column) {}
    LinesTable& table;
    const int column;
};

} // namespace gatewise::window
