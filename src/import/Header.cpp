#include "import/Header.h"

#include <algorithm>

namespace gatewise::importer {

Header::Header(const Cells& cells) {
    for (std::size_t i = 0; i < cells.size(); ++i) {
        std::string name;
        for (const char c : cells[i]) {
            if (c == '_') continue;
            name += c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c;
        }
        names_.push_back(std::move(name));
    }
}

int Header::column(std::initializer_list<std::string_view> names) const {
    for (const std::string_view name : names) {
        const auto found = std::find(names_.begin(), names_.end(), name);
        if (found != names_.end()) return static_cast<int>(found - names_.begin());
    }
    return -1;
}

} // namespace gatewise::importer
