#include "simulator/AircraftScan.h"

#include "platform/Files.h"
#include "platform/NativePath.h"
#include "platform/ProfileLines.h"
#include "platform/ProfileText.h"
#include "platform/Text.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <filesystem>
#include <optional>

namespace gatewise {

namespace fs = std::filesystem;

namespace {

constexpr std::size_t kVariations = 100;
constexpr std::size_t kTextLimit = 254; // a buffer of 255 characters holds one terminator
constexpr std::string_view kSection = "fltsim.";
constexpr std::string_view kMissingTitle = "title";

/// Number of the variation that a section names, without regard to case and without leading zeros.
std::optional<std::size_t> variationNumber(std::string_view name) {
    if (name.size() <= kSection.size() || !equalNoCase(name.substr(0, kSection.size()), kSection)) return {};
    const std::string_view digits = name.substr(kSection.size());
    if (digits.size() > 1 && digits.front() == '0') return {};
    std::size_t number = 0;
    const auto [end, error] = std::from_chars(digits.data(), digits.data() + digits.size(), number);
    if (error != std::errc() || end != digits.data() + digits.size() || number >= kVariations) return {};
    return number;
}

/// What one section says. The first line of a key counts.
struct Section {
    bool seen = false;
    std::optional<std::string_view> title, sim;
};

/// One pass over the file instead of two profile reads for each variation: there are thousands of files.
class SectionReader {
public:
    void line(std::string_view text) {
        if (const auto name = profile::sectionName(text))
            open(*name);
        else if (current_ != nullptr)
            key(text);
    }

    [[nodiscard]] const Section& section(std::size_t number) const { return sections_[number]; }

private:
    void open(std::string_view name) {
        current_ = nullptr;
        const auto number = variationNumber(name);
        // The first section of a name counts, a second one is never reached.
        if (!number || sections_[*number].seen) return;
        current_ = &sections_[*number];
        current_->seen = true;
    }

    void key(std::string_view text) {
        const auto equals = profile::equalsSign(text);
        if (equals == std::string_view::npos) return;
        const std::string_view name = profile::stripped(text.substr(0, equals));
        auto& value = equalNoCase(name, "title") ? current_->title : current_->sim;
        if (value || (&value == &current_->sim && !equalNoCase(name, "sim"))) return;
        value = profile::valueOf(text);
    }

    std::array<Section, kVariations> sections_;
    Section* current_ = nullptr;
};

std::string held(const std::optional<std::string_view>& value, std::string_view missing,
                 ProfileCoding coding) {
    return valueFrom(value.value_or(missing), coding).substr(0, kTextLimit);
}

/// A value as text: NUL characters count as blanks, blanks around it go.
std::string shown(std::string value) {
    std::replace(value.begin(), value.end(), '\0', ' ');
    return std::string(trimmed(value));
}

/// The bytes of a folder's aircraft.cfg in `buffer`; nothing without one, or for one that no simulator would
/// read. The usual spelling is tried first: looking for any other means reading the folder.
std::optional<std::string_view> readConfig(const fs::path& folder, Bytes& buffer) {
    files::InFile file(folder / "aircraft.cfg");
    if (!file.isOpen()) file = files::InFile(files::resolve(files::textOf(folder) + "\\aircraft.cfg"));
    if (!file.isOpen()) return std::nullopt;
    std::error_code error;
    const std::size_t size = file.readAll(buffer, files::kLongestFile, error);
    if (error) return std::nullopt;
    return asText(buffer).substr(0, size);
}

bool hasPanel(const fs::path& folder) {
    return files::kindOf(folder / "panel") == files::Kind::Folder ||
           files::folderExists(files::textOf(folder) + "\\panel");
}

/// Adds the aircraft of one folder, which `name` names in paths; false when the table is full.
bool addFolder(std::vector<ScannedAircraft>& out, const fs::path& folder, const std::string& name,
               Bytes& buffer) {
    const auto content = readConfig(folder, buffer);
    if (!content) return true;
    const auto variations = variationsOf(*content);
    if (variations.empty() || !hasPanel(folder)) return true;
    const std::string notes = name + "\\" + shown(variations.front().sim) + "_NOTES";
    for (const AircraftVariation& variation : variations) {
        const std::string title = shown(variation.title);
        if (title.empty()) continue;
        if (out.size() == kAircraftLimit) return false;
        out.push_back({title, notes});
    }
    return true;
}

std::vector<AircraftVariation> variationsIn(std::string_view lines, ProfileCoding coding) {
    SectionReader reader;
    for (std::size_t at = 0; at < lines.size();) {
        const std::string_view line = profile::lineAt(lines, at);
        reader.line(line);
        at += line.size();
    }
    std::vector<AircraftVariation> out;
    for (std::size_t j = 0; j < kVariations; ++j) {
        const Section& section = reader.section(j);
        const std::string title = held(section.title, kMissingTitle, coding);
        if (title.empty() || title.front() == '\0') break;
        if (equalNoCase(std::string_view(title).substr(0, kMissingTitle.size()), kMissingTitle)) break;
        out.push_back({title, held(section.sim, "sim", coding)});
    }
    return out;
}

} // namespace

std::vector<AircraftVariation> variationsOf(std::string_view content) {
    const ProfileCoding coding = codingOf(viewOf(content));
    if (coding == ProfileCoding::Page) return variationsIn(content, coding);
    const Bytes lines = unmarked(Bytes(content.begin(), content.end()), coding);
    return variationsIn(asText(lines), coding);
}

std::vector<ScannedAircraft> FilesSearch(std::string_view path, ScanProgress* progress) {
    std::string root(path);
    if (!root.ends_with('\\')) root += '\\';
    std::vector<ScannedAircraft> out;
    Bytes buffer; // of all folders
    std::size_t folders = 0;
    // The root is looked up once and its folders go by their native paths: each step of a path costs.
    const fs::path native = files::resolve(root);
    for (const auto& entry : files::entriesOf(native)) {
        if (!entry.folder) continue;
        if (++folders > kAircraftLimit) break;
        if (progress != nullptr && progress->stop) break;
        if (progress != nullptr) ++progress->folders;
        if (!addFolder(out, native / entry.name, root + files::textOf(entry.name), buffer)) break;
    }
    return out;
}

} // namespace gatewise
