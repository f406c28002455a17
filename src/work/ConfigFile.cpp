#include "work/ConfigFile.h"

#include "platform/Files.h"
#include "platform/Numbers.h"
#include "platform/Profile.h"
#include "platform/Text.h"
#include "work/ConfigKeys.h"
#include "work/ExportKinds.h"

#include <algorithm>
#include <limits>
#include <optional>

namespace gatewise {

namespace {

constexpr const char* kDefaultSet = "\\Data";

/// A text as a whole number, the way of a conversion from text: decimals round to even.
std::optional<std::int32_t> wholeNumber(std::string_view value) {
    value = trimmed(value);
    if (value.empty() || value.find_first_not_of("+-0123456789.") != std::string_view::npos)
        return std::nullopt;
    if (value.find_first_of("0123456789") == std::string_view::npos) return std::nullopt;
    if (value.find_first_of("+-", 1) != std::string_view::npos) return std::nullopt;
    if (value.find('.') != value.rfind('.')) return std::nullopt;
    const double rounded = roundToEven(leadingNumber(value));
    if (rounded < std::numeric_limits<std::int32_t>::min() ||
        rounded > std::numeric_limits<std::int32_t>::max())
        return std::nullopt;
    return static_cast<std::int32_t>(rounded);
}

std::optional<bool> boolean(std::string_view value) {
    if (equalNoCase(value, "True")) return true;
    if (equalNoCase(value, "False")) return false;
    const auto whole = wholeNumber(value);
    if (!whole) return std::nullopt;
    return *whole != 0;
}

template<class Choices> bool isChoice(const Choices& choices, int value) {
    return std::find(choices.begin(), choices.end(), value) != choices.end();
}

bool store(int& held, int value, int least, int most) {
    if (value < least || value > most) return false;
    held = value;
    return true;
}

/// One option of the three is on at most: what turns on turns the others off.
bool takeSort(Settings& settings, BoardSort sort, std::optional<bool> on) {
    if (!on) return false;
    if (*on)
        settings.sort = sort;
    else if (settings.sort == sort)
        settings.sort = BoardSort::None;
    return true;
}

/// False when the text cannot be converted: the read ends there.
bool take(Settings& settings, const std::string& AppDir, const Profile& profile, const ConfigKey& key) {
    const auto text = [&] { return textIn(profile, key.section, key.key); };
    const auto number = [&] { return numberIn(profile, key.section, key.key); };
    switch (key.how) {
    case ConfigValue::Text:
        settings.*key.text = text();
        return true;
    case ConfigValue::DataSet:
        settings.DataSetPath = text();
        if (!files::fileExists(AppDir + settings.DataSetPath + "\\index.gt1"))
            settings.DataSetPath = kDefaultSet;
        return true;
    case ConfigValue::Index: {
        const auto value = wholeNumber(text());
        if (value) settings.*key.number = *value;
        return value.has_value();
    }
    case ConfigValue::Box:
        return store(settings.*key.number, number(), 0, 2);
    case ConfigValue::Number16:
        return store(settings.*key.number, number(), std::numeric_limits<std::int16_t>::min(),
                     std::numeric_limits<std::int16_t>::max());
    case ConfigValue::Sort:
        return takeSort(settings, key.sort, boolean(text()));
    case ConfigValue::Whole:
        settings.*key.number = wholeNumber(text()).value_or(0);
        return true;
    case ConfigValue::Minutes:
        settings.PreFlight = isChoice(kPreFlightMinutes, number()) ? number() : kPreFlightMinutes.front();
        return true;
    case ConfigValue::Miles:
        settings.MinDist = isChoice(kAlternateMiles, number()) ? number() : kAlternateMiles.front();
        return true;
    }
    return true;
}

std::string written(const Settings& settings, const ConfigKey& key) {
    switch (key.how) {
    case ConfigValue::Text:
    case ConfigValue::DataSet:
        return settings.*key.text;
    case ConfigValue::Sort:
        return settings.sort == key.sort ? "True" : "False";
    case ConfigValue::Minutes:
        return std::to_string(settings.PreFlight.value_or(0));
    case ConfigValue::Miles:
        return settings.MinDist ? std::to_string(*settings.MinDist) : std::string();
    default:
        return std::to_string(settings.*key.number);
    }
}

/// The keys of old, up to the first that cannot be converted. False when there is one.
bool readKeys(const std::string& AppDir, const Profile& profile, Settings& settings) {
    std::vector<ConfigKey> keys(configKeys().begin(), configKeys().end());
    std::stable_sort(keys.begin(), keys.end(),
                     [](const ConfigKey& a, const ConfigKey& b) { return a.read < b.read; });
    return std::all_of(keys.begin(), keys.end(),
                       [&](const ConfigKey& key) { return take(settings, AppDir, profile, key); });
}

/// Of the keys of our own those that say something, or said something before.
void addOwn(const std::string& AppDir, const Settings& settings, std::vector<ProfileValue>& values) {
    const Profile profile = loadProfile(configPath(AppDir));
    const Settings untouched;
    for (const ConfigKey& key : ownKeys()) {
        const std::string value = written(settings, key);
        if (value != written(untouched, key) || profile.find(key.section, key.key))
            values.push_back({key.section, key.key, value});
    }
}

std::string orElse(const std::string& text, const std::string& fallback) {
    return text.empty() ? fallback : text;
}

} // namespace

std::string configPath(const std::string& AppDir) {
    return AppDir + "\\GT.cfg";
}

void ReadConfig(const std::string& AppDir, Settings& settings) {
    const Profile profile = loadProfile(configPath(AppDir), &settings.unread);
    if (settings.unread == std::errc::no_such_file_or_directory) settings.unread.clear();
    for (const ConfigKey& key : ownKeys()) {
        if (textIn(profile, key.section, key.key) != "") (void)take(settings, AppDir, profile, key);
    }
    if (!readKeys(AppDir, profile, settings)) return;
    for (const std::string& word : rememberedExports()) {
        settings.exportFolders[word] = {
            orElse(textIn(profile, "Export", word + "Path"), AppDir),
            orElse(textIn(profile, "Export", word + "Drive"), AppDir.substr(0, 2))};
    }
}

std::error_code WriteConfig(const std::string& AppDir, const Settings& settings) {
    if (settings.unread) return settings.unread;
    std::vector<ProfileValue> values;
    for (const ConfigKey& key : configKeys())
        values.push_back({key.section, key.key, written(settings, key)});
    for (const std::string& word : rememberedExports()) {
        const auto at = settings.exportFolders.find(word);
        const ExportFolder folder = at != settings.exportFolders.end() ? at->second : ExportFolder{};
        values.push_back({"Export", word + "Path", folder.path});
        values.push_back({"Export", word + "Drive", folder.drive});
    }
    addOwn(AppDir, settings, values);
    return WriteValues(values, configPath(AppDir));
}

} // namespace gatewise
