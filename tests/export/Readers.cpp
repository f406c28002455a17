#include "Readers.h"

#include <cstdlib>
#include <cstring>
#include <map>

namespace gatewise::test {

namespace {

std::vector<std::string> split(const std::string& text, const std::string& by) {
    std::vector<std::string> parts;
    std::size_t at = 0;
    for (auto end = text.find(by); end != std::string::npos; end = text.find(by, at)) {
        parts.push_back(text.substr(at, end - at));
        at = end + by.size();
    }
    parts.push_back(text.substr(at));
    return parts;
}

std::string bare(const std::string& text) {
    const auto from = text.find_first_not_of(' ');
    return from == std::string::npos ? "" : text.substr(from, text.find_last_not_of(' ') - from + 1);
}

/// "N47* 26.94'" and "N 47* 26.94m"
double angle(std::string text) {
    const bool negative = text[0] == 'S' || text[0] == 'W';
    const auto star = text.find('*');
    const double degrees = std::atof(text.substr(1, star - 1).c_str());
    const double minutes = std::atof(text.substr(star + 1).c_str());
    return (negative ? -1 : 1) * (degrees + minutes / 60);
}

std::map<std::string, std::string> assignments(const std::string& text, const std::string& by) {
    std::map<std::string, std::string> out;
    for (const auto& line : split(text, "\r\n")) {
        const auto at = line.find(by);
        if (at != std::string::npos) out[bare(line.substr(0, at))] = line.substr(at + by.size());
    }
    return out;
}

} // namespace

std::vector<ReadPoint> readPln(const std::string& text) {
    auto keys = assignments(text, "=");
    std::vector<ReadPoint> out;
    for (int i = 0; keys.count("waypoint." + std::to_string(i)) != 0; ++i) {
        const auto parts = split(keys["waypoint." + std::to_string(i)], ",");
        out.push_back({bare(parts[0]), angle(bare(parts[2])), angle(bare(parts[3])),
                       std::atoi(parts[4].c_str() + parts[4].find_first_of("0123456789"))});
    }
    return out;
}

std::vector<ReadPoint> readFmc(const std::string& text) {
    const auto lines = split(text, "\r\n");
    const int count = std::atoi(split(lines[0], "\t")[1].c_str());
    std::vector<ReadPoint> out;
    for (int i = 1; i <= count; ++i) {
        const auto parts = split(lines[static_cast<std::size_t>(i)], "\t");
        out.push_back({bare(parts[0]), std::atof(parts[1].c_str()), std::atof(parts[2].c_str()),
                       std::atoi(parts[3].c_str())});
    }
    return out;
}

std::vector<ReadPoint> readApl(const std::string& text) {
    auto keys = assignments(text, " = ");
    std::vector<ReadPoint> out;
    const auto add = [&](const std::string& prefix) {
        const auto altitude = keys.find(prefix + "_altitude");
        out.push_back({"", std::atof(keys[prefix + "_latitude"].c_str()),
                       std::atof(keys[prefix + "_longitude"].c_str()),
                       altitude == keys.end() ? -1 : std::atoi(altitude->second.c_str())});
    };
    add("departure");
    for (int i = 1; i <= std::atoi(keys["number_of_checkpoints"].c_str()); ++i)
        add("checkpoint_" + std::to_string(i));
    add("arrival");
    return out;
}

std::vector<ReadPoint> readPrg(const std::string& text) {
    const auto lines = split(text, "\r\n");
    std::vector<ReadPoint> out;
    for (std::size_t i = 0; i + 4 < lines.size(); i += 5)
        out.push_back({bare(lines[i]), angle(lines[i + 3]), angle(lines[i + 2])});
    return out;
}

std::vector<ReadPoint> readSbp(const std::string& text) {
    const auto lines = split(text, "\r\n");
    std::vector<ReadPoint> out;
    for (std::size_t i = 1; i + 1 < lines.size(); ++i) {
        const auto parts = split(lines[i], ":");
        out.push_back({parts[1], std::atof(parts[2].c_str()), std::atof(parts[3].c_str()),
                       std::atoi(parts[5].c_str())});
    }
    return out;
}

std::vector<ReadPoint> readFsn(const std::string& bytes) {
    const auto whole = [&](std::size_t at) {
        unsigned value = 0;
        for (std::size_t i = 4; i-- > 0;) value = value << 8 | static_cast<unsigned char>(bytes.at(at + i));
        return value;
    };
    const auto real = [&](std::size_t at) {
        const unsigned raw = whole(at);
        float value = 0;
        std::memcpy(&value, &raw, sizeof value);
        return static_cast<double>(value);
    };
    std::vector<ReadPoint> out;
    for (std::size_t i = 0; i < whole(284); ++i) {
        const std::size_t at = whole(280) + 10 * i;
        out.push_back({"", real(at + 2), real(at + 6)});
    }
    return out;
}

} // namespace gatewise::test
