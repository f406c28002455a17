#include "import/Fitting.h"

#include "gt1/Transliterate.h"
#include "platform/Text.h"

#include <algorithm>
#include <array>

namespace gatewise::importer {

std::string ownText(std::string_view utf8) {
    gt1::Converted converted = gt1::converted(utf8);
    std::string text = converted.broken ? std::string(utf8) : std::move(converted.text);
    for (char& c : text)
        if (static_cast<unsigned char>(c) < ' ' || c == 127) c = ' ';
    return std::string(trimmed(text));
}

std::string fitted(std::string text, std::size_t width) {
    if (text.size() <= width) return text;
    const std::size_t blank = text.rfind(' ', width);
    text.resize(blank != std::string::npos && blank * 3 >= width * 2 ? blank : width);
    return std::string(trimmed(text));
}

std::string airportName(std::string_view utf8) {
    constexpr std::array<std::array<std::string_view, 2>, 4> shorter{{{" International Airport", " Intl"},
                                                                      {" International", " Intl"},
                                                                      {" Regional Airport", " Rgnl"},
                                                                      {" Airport", ""}}};
    std::string name = ownText(utf8);
    for (const auto& [from, to] : shorter) {
        const std::size_t at = name.find(from);
        if (at == std::string::npos || at == 0) continue;
        name.replace(at, from.size(), to);
        break;
    }
    return fitted(std::move(name), 35);
}

} // namespace gatewise::importer
