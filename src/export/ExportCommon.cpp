#include "export/ExportCommon.h"

#include "platform/Text.h"

namespace gatewise {

namespace {

struct KindRow {
    std::string_view pointType;
    PointKind kind;
};

constexpr KindRow kKinds[] = {
    {"V ", PointKind::Vor},        {"HV", PointKind::Vor},          {"N ", PointKind::Ndb},
    {"HN", PointKind::Ndb},        {"I ", PointKind::Intersection}, {"HI", PointKind::Intersection},
    {"TC", PointKind::TopOfClimb}, {"TD", PointKind::TopOfDescent}, {"SU", PointKind::Step},
    {"SD", PointKind::Step},
};

} // namespace

PointKind exportKind(const PlanPoint& point) {
    for (const auto& row : kKinds) {
        if (point.pointType.view() == row.pointType) return row.kind;
    }
    return PointKind::Other;
}

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
