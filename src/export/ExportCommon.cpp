#include "export/ExportCommon.h"

#include "platform/Text.h"

namespace gatewise {

std::string singleBackslashes(std::string_view path) {
    return replaceAll(path, "\\\\", "\\");
}

std::string filedNumber(const NumberLocale& numbers, std::string_view format, double value) {
    return numbers.filed(numbers.format(format, value));
}

std::string filedSingle(const NumberLocale& numbers, std::string_view format, float value) {
    return numbers.filed(numbers.formatSingle(format, value));
}

void TextLines::add(std::initializer_list<std::string_view> parts) {
    for (const auto part : parts) text_ += part;
    text_ += "\r\n";
}

} // namespace gatewise
