#include "plan/PlanTable.h"

#include <string_view>

namespace gatewise {

namespace {

struct TypeRow {
    std::string_view pointType;
    PointKind kind;
    bool highAltitude, computed;
};

constexpr TypeRow kTypes[] = {
    {"V ", PointKind::Vor, false, false},          {"HV", PointKind::Vor, true, false},
    {"N ", PointKind::Ndb, false, false},          {"HN", PointKind::Ndb, true, false},
    {"I ", PointKind::Intersection, false, false}, {"HI", PointKind::Intersection, true, false},
    {"TC", PointKind::TopOfClimb, false, true},    {"TD", PointKind::TopOfDescent, false, true},
    {"SU", PointKind::StepClimb, false, true},     {"SD", PointKind::StepDescent, false, true},
};
constexpr TypeRow kNoType = {"", PointKind::Other, false, false};

const TypeRow& typeOf(const PlanPoint& point) {
    for (const auto& row : kTypes) {
        if (point.pointType.view() == row.pointType) return row;
    }
    return kNoType;
}

} // namespace

PointKind PlanPoint::kind() const {
    return typeOf(*this).kind;
}

bool PlanPoint::highAltitude() const {
    return typeOf(*this).highAltitude;
}

bool PlanPoint::computed() const {
    return typeOf(*this).computed;
}

} // namespace gatewise
