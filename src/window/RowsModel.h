#pragma once

#include "forms/Control.h"

#include <QAbstractTableModel>

namespace gatewise::window {

/// The rows that a list shows: a copy of what the form held at the last look.
class RowsModel : public QAbstractTableModel {
    Q_OBJECT
public:
    /// `only` is what a screen reader calls the column of a list that shows no heads.
    RowsModel(const Control& control, QString only) : control_(control), only_(std::move(only)) {}
    /// Takes over what the form holds now; false when nothing differs.
    bool sync();
    [[nodiscard]] bool bold(int row) const;

    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

private:
    bool syncColumns();
    bool syncItems();
    void take(std::vector<std::vector<std::string>> rows, std::vector<bool> bold,
              std::vector<std::string> heads);

    const Control& control_;
    const QString only_;
    std::vector<std::vector<std::string>> rows_;
    std::vector<bool> bold_;
    std::vector<std::string> heads_;
};

} // namespace gatewise::window
