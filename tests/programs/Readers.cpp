#include "Readers.h"

#include <sstream>
#include <stdexcept>

namespace gatewise::test {

void require(bool holds, const std::string& what) {
    if (!holds) throw std::runtime_error(what);
}

std::vector<std::string> linesOf(const std::string& text) {
    std::vector<std::string> lines;
    std::istringstream in(text);
    for (std::string line; std::getline(in, line);) lines.push_back(line);
    require(text.ends_with('\n'), "the last line has no end");
    return lines;
}

bool isCode(const std::string& text, std::size_t longest, const std::string& also) {
    const std::string letters = "ABCDEFGHIJKLMNOPQRSTUVWXYZ0123456789" + also;
    return !text.empty() && text.size() <= longest && text.find_first_not_of(letters) == std::string::npos;
}

double decimalIn(const std::string& text, double low, double high, int places) {
    const std::size_t digits = text.starts_with('-') ? 1 : 0;
    require(text.find_first_not_of("0123456789.", digits) == std::string::npos, "no decimal: " + text);
    require(text.size() > digits && text[digits] != '.' && text.back() != '.', "no decimal: " + text);
    require(text.find('.') == text.rfind('.'), "no decimal: " + text);
    const auto point = text.find('.');
    const auto behind = point == std::string::npos ? 0 : text.size() - point - 1;
    require(places < 0 || behind == static_cast<std::size_t>(places), "wrong places: " + text);
    const double value = std::stod(text);
    require(value >= low && value <= high, "out of range: " + text);
    require(text[0] != '-' || value != 0, "a zero with a sign");
    return value;
}

std::string regionOf(const std::string& text, const std::string& kind) {
    require(text.size() == 2 && isCode(text, 2), "no region: " + text);
    require(kind == "vor" || kind == "ndb" || kind == "fix", "a region of a point that has none");
    return text;
}

std::string wordOf(const std::map<std::string, std::string>& words, const std::string& word) {
    const auto found = words.find(word);
    require(found != words.end(), "unknown word: " + word);
    return found->second;
}

} // namespace gatewise::test
