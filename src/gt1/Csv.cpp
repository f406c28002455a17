#include "gt1/Csv.h"

namespace gatewise::gt1 {

namespace {

class Parser {
public:
    explicit Parser(std::string_view text) : text_(text) {
        if (text_.starts_with("\xEF\xBB\xBF")) at_ = 3;
    }

    CsvFile run(const std::function<bool()>& goesOn) {
        while (at_ < text_.size() && (!goesOn || goesOn())) row();
        return std::move(out_);
    }

private:
    void row() {
        CsvRow row{line_, {}};
        const std::size_t badBefore = out_.badQuotes.size();
        bool more = true;
        while (more && out_.badQuotes.size() == badBefore) {
            column_ = static_cast<int>(row.cells.size()) + 1;
            row.cells.push_back(at_ < text_.size() && text_[at_] == '"' ? quotedCell() : plainCell());
            more = at_ < text_.size() && text_[at_] == ',';
            if (more) ++at_;
        }
        if (out_.badQuotes.size() != badBefore) {
            // What the quote did to the rest of its line nobody knows; the next line stands for itself.
            while (at_ < text_.size() && text_[at_] != '\n' && text_[at_] != '\r') ++at_;
            lineEnd();
            return;
        }
        lineEnd();
        if (row.cells.size() > 1 || !row.cells[0].empty()) out_.rows.push_back(std::move(row));
    }

    std::string plainCell() {
        const std::size_t from = at_;
        while (at_ < text_.size() && text_[at_] != ',' && text_[at_] != '\n' && text_[at_] != '\r') {
            if (text_[at_] == '"') {
                fail(line_, "a field with a quote to stand in quotes as a whole");
                break;
            }
            ++at_;
        }
        return std::string(text_.substr(from, at_ - from));
    }

    std::string quotedCell() {
        const int opened = line_;
        std::string cell;
        for (++at_; at_ < text_.size(); ++at_) {
            if (text_[at_] == '"') {
                const bool doubled = at_ + 1 < text_.size() && text_[at_ + 1] == '"';
                if (!doubled) break;
                ++at_;
            }
            if (text_[at_] == '\n') ++line_;
            cell += text_[at_];
        }
        if (at_ >= text_.size()) {
            fail(opened, "a closing quote");
            return cell;
        }
        ++at_;
        if (at_ < text_.size() && text_[at_] != ',' && text_[at_] != '\n' && text_[at_] != '\r')
            fail(line_, "a comma or the end of the line behind a closing quote");
        return cell;
    }

    void lineEnd() {
        if (at_ < text_.size() && text_[at_] == '\r') ++at_;
        if (at_ < text_.size() && text_[at_] == '\n') ++at_;
        ++line_;
    }

    void fail(int line, std::string_view expected) {
        out_.badQuotes.push_back({line, column_, std::string(expected)});
    }

    std::string_view text_;
    std::size_t at_ = 0;
    int line_ = 1;
    int column_ = 1;
    CsvFile out_;
};

bool needsQuotes(const std::string& cell) {
    return cell.find_first_of(",\"\r\n") != std::string::npos;
}

} // namespace

CsvFile parseCsv(std::string_view text, const std::function<bool()>& goesOn) {
    return Parser(text).run(goesOn);
}

std::string csvLine(const std::vector<std::string>& cells) {
    std::string out;
    for (std::size_t i = 0; i < cells.size(); ++i) {
        if (i > 0) out += ',';
        if (!needsQuotes(cells[i])) {
            out += cells[i];
            continue;
        }
        out += '"';
        for (const char c : cells[i]) {
            if (c == '"') out += '"';
            out += c;
        }
        out += '"';
    }
    out += '\n';
    return out;
}

} // namespace gatewise::gt1
