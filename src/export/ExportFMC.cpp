#include "export/ExportFMC.h"

#include "platform/Text.h"

#include <algorithm>
#include <vector>

namespace gatewise {

namespace {

using Lines = std::vector<std::string_view>;

/// Lines of any line end; nothing when there are too many.
std::optional<Lines> linesOf(std::string_view text) {
    Lines lines;
    while (!text.empty()) {
        if (lines.size() == kFmcLines) return std::nullopt;
        const auto end = text.find_first_of("\r\n");
        lines.push_back(text.substr(0, end));
        if (end == std::string_view::npos) break;
        const bool both = text.substr(end, 2) == "\r\n";
        text.remove_prefix(end + (both ? 2 : 1));
    }
    return lines;
}

std::string keyOf(const Plan& plan) {
    return std::string(plan.at(0).pointName.trimmed())
        .append("*")
        .append(plan.at(plan.planLast).pointName.trimmed());
}

/// The count in the second field of a plan's header, 0 without one.
double pointCount(std::string_view header) {
    const auto key = header.find('\t');
    if (key == std::string_view::npos) return 0;
    const auto rest = header.substr(key + 1);
    return leadingNumber(rest.substr(0, rest.find('\t')));
}

void addPlan(TextLines& out, const Plan& plan, std::string_view key, const NumberLocale& numbers) {
    const std::string count = " " + std::to_string(plan.planLast + 1) + " ";
    out.add({key, "\t", count, "\t***\t***\t***\t***"});
    for (int i = 0; i <= plan.planLast; ++i) {
        const PlanPoint& point = plan.at(i);
        out.add({point.pointName.view(), "\t", filedSingle(numbers, "00.00000", point.pointLatitude), "\t",
                 filedSingle(numbers, "000.00000", point.pointLongitude), "\t",
                 std::to_string(point.pointAltitude)});
    }
}

} // namespace

std::optional<std::string> fmcPlans(const Plan& plan, std::string_view oldFile, const NumberLocale& numbers) {
    const auto lines = linesOf(oldFile);
    if (!lines) return std::nullopt;
    const std::string key = keyOf(plan);
    // A plan that could not be read has no names; its key would be found in every other plan's header.
    if (key == "*") return std::nullopt;
    const auto match = std::find_if(lines->begin(), lines->end(),
                                    [&](std::string_view line) { return containsNoCase(line, key); });
    TextLines out;
    if (match == lines->end()) {
        addPlan(out, plan, key, numbers);
        for (const auto line : *lines) out.add(line);
        return out.text();
    }
    const auto size = static_cast<double>(lines->size());
    const double count = pointCount(*match);
    const double next = static_cast<double>(match - lines->begin()) + count + 1;
    if (next < 0) return std::nullopt;
    std::for_each(lines->begin(), match, [&](std::string_view line) { out.add(line); });
    for (auto i = static_cast<std::size_t>(std::min(next, size)); i < lines->size(); ++i)
        out.add((*lines)[i]);
    addPlan(out, plan, key, numbers);
    return out.text();
}

} // namespace gatewise
