#pragma once

#include <string>
#include <string_view>
#include <vector>

// Small readers of the outside formats, as far as the points of a plan go. They know the formats and nothing
// of the writers.

namespace gatewise::test {

struct ReadPoint {
    std::string name; // id, name or description, whatever the format has; empty where it has none
    double latitude = 0, longitude = 0;
    int altitude = -1; // -1 where the format has none
};

/// All points in file order, the airports among them where the format names them.
std::vector<ReadPoint> readPln(const std::string& text);
std::vector<ReadPoint> readFmc(const std::string& text);
std::vector<ReadPoint> readApl(const std::string& text);
std::vector<ReadPoint> readPrg(const std::string& text);
std::vector<ReadPoint> readSbp(const std::string& text);
std::vector<ReadPoint> readFsn(const std::string& bytes);

} // namespace gatewise::test
