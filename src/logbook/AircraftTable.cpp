#include "logbook/AircraftTable.h"

#include "logbook/ImportFields.h"
#include "platform/Text.h"

#include <algorithm>

namespace gatewise {

namespace {

using Cells = std::vector<std::string>;

std::string cellOf(const Cells& row, int column) {
    const auto at = static_cast<std::size_t>(column);
    if (column < 0 || at >= row.size()) return {};
    std::string cell = row[at];
    blankControls(cell);
    return std::string(trimmed(cell));
}

} // namespace

bool AircraftTable::takeHeader(const Cells& row) {
    Cells names;
    for (const std::string& cell : row) names.push_back(headerName(cell));
    const auto column = [&](const char* name) {
        const auto found = std::find(names.begin(), names.end(), name);
        return found == names.end() ? -1 : static_cast<int>(found - names.begin());
    };
    const int id = column("aircraftid");
    const int code = column("typecode");
    const int model = column("model");
    if (id < 0 || (code < 0 && model < 0)) return false;
    id_ = id, code_ = code, make_ = column("make"), model_ = model;
    return true;
}

void AircraftTable::take(const Cells& row) {
    if (takeHeader(row) || id_ < 0) return;
    const std::string id = upperCase(cellOf(row, id_));
    std::string type = cellOf(row, code_);
    if (type.empty()) type = trimmed(cellOf(row, make_) + " " + cellOf(row, model_));
    if (!id.empty() && !type.empty()) types_.emplace(id, type);
}

std::string AircraftTable::typeOf(std::string_view registration) const {
    const auto found = types_.find(upperCase(trimmed(registration)));
    return found == types_.end() ? std::string(registration) : found->second;
}

} // namespace gatewise
