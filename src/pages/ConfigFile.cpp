#include "pages/ConfigFile.h"

#include "platform/Files.h"
#include "platform/Profile.h"
#include "platform/Text.h"
#include "schedule/Lookups.h"

#include <limits>
#include <optional>
#include <vector>

namespace gatewise {

namespace {

constexpr const char* kDefaultSet = "\\Data";

/// One key: where it stands, how its text is put into its holder (false: it cannot be converted, the read
/// ends there) and how the holder becomes text again. Read as the reader goes, written as the writer goes;
/// the two orders differ.
struct Key {
    const char* section;
    const char* key;
    bool (*read)(Program&, const Profile&, const Key&);
    std::string (*write)(Program&);
};

std::string text(const Profile& profile, const Key& key) {
    return textIn(profile, key.section, key.key);
}
int number(const Profile& profile, const Key& key) {
    return numberIn(profile, key.section, key.key);
}

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

template<auto Member> bool readLabel(Program& p, const Profile& profile, const Key& key) {
    (p.forms.SettingsForm.*Member).text = text(profile, key);
    return true;
}
template<auto Member> std::string writeLabel(Program& p) {
    return (p.forms.SettingsForm.*Member).text;
}

template<auto Form, auto Member> bool readCheck(Program& p, const Profile& profile, const Key& key) {
    const int value = number(profile, key);
    if (value < 0 || value > 2) return false;
    (p.forms.*Form.*Member).set(value);
    return true;
}
template<auto Form, auto Member> std::string writeCheck(Program& p) {
    return std::to_string((p.forms.*Form.*Member).value);
}

template<auto Member> bool readOption(Program& p, const Profile& profile, const Key& key) {
    const auto value = boolean(text(profile, key));
    if (!value) return false;
    (p.forms.OptionsForm.*Member).set(*value);
    return true;
}
template<auto Member> std::string writeOption(Program& p) {
    return (p.forms.OptionsForm.*Member).value ? "True" : "False";
}

template<auto Member> bool readCombo(Program& p, const Profile& profile, const Key& key) {
    Combo& combo = p.forms.SettingsForm.*Member;
    combo.select(0);
    const int place = combo.find(std::to_string(number(profile, key)));
    if (place >= 0) combo.select(place);
    return true;
}

template<auto Member> bool readFolder(Program& p, const Profile& profile, const Key& key) {
    p.g.*Member = text(profile, key);
    if ((p.g.*Member).empty()) p.g.*Member = p.g.AppDir;
    return true;
}
template<auto Member> bool readDrive(Program& p, const Profile& profile, const Key& key) {
    p.g.*Member = text(profile, key);
    if ((p.g.*Member).empty()) p.g.*Member = p.g.AppDir.substr(0, 2);
    return true;
}
template<auto Member> std::string writeGlobal(Program& p) {
    return p.g.*Member;
}

bool readIndex(Program& p, const Profile& profile, const Key& key) {
    const auto value = wholeNumber(text(profile, key));
    if (value) p.g.HomeIndex = *value;
    return value.has_value();
}

bool readDataSet(Program& p, const Profile& profile, const Key& key) {
    p.g.DataSetPath = text(profile, key);
    if (!files::fileExists(p.setPath("\\index.gt1"))) p.g.DataSetPath = kDefaultSet;
    return true;
}

bool readFavorite(Program& p, const Profile& profile, const Key& key) {
    p.g.FavoriteAirlineName = text(profile, key);
    p.forms.SettingsForm.airlineLABEL.text = p.g.FavoriteAirlineName;
    return true;
}

bool readAnyAirline(Program& p, const Profile& profile, const Key& key) {
    if (!readCheck<&Forms::SettingsForm, &forms::SettingsForm::anyairlineCHECK>(p, profile, key))
        return false;
    if (p.forms.SettingsForm.anyairlineCHECK.value == 1) p.g.FavoriteAirlineName = kAnyAirline;
    return true;
}

bool readVolume(Program& p, const Profile& profile, const Key& key) {
    const int value = number(profile, key);
    if (value < std::numeric_limits<std::int16_t>::min() ||
        value > std::numeric_limits<std::int16_t>::max()) {
        return false;
    }
    p.g.AmbienceVolume = static_cast<std::int16_t>(value);
    return true;
}

using forms::ExportForm;
using forms::FlyForm;
using forms::OptionsForm;
using forms::SettingsForm;

#define GT_CHECK(form, member) readCheck<&Forms::form, &form::member>, writeCheck<&Forms::form, &form::member>
#define GT_OPTION(member) readOption<&OptionsForm::member>, writeOption<&OptionsForm::member>
#define GT_LABEL(member) readLabel<&SettingsForm::member>, writeLabel<&SettingsForm::member>
#define GT_FOLDER(member) readFolder<&Globals::member>, writeGlobal<&Globals::member>
#define GT_DRIVE(member) readDrive<&Globals::member>, writeGlobal<&Globals::member>

// In the order in which the writer writes them.
constexpr Key kKeys[] = {
    {"Main", "FSPath",
     [](Program& p, const Profile& f, const Key& k) {
         p.g.FsPath = text(f, k);
         p.forms.SettingsForm.fspathLABEL.text = p.g.FsPath;
         return true;
     },
     writeGlobal<&Globals::FsPath>},
    {"Main", "Index", readIndex, [](Program& p) { return std::to_string(p.g.HomeIndex); }},
    {"Main", "FavoriteAirline", readFavorite, writeLabel<&SettingsForm::airlineLABEL>},
    {"Main", "DataSet", readDataSet, writeGlobal<&Globals::DataSetPath>},
    {"Main", "Last", GT_LABEL(lastTEXT)},
    {"Main", "First", GT_LABEL(firstTEXT)},
    {"Main", "StatusBoard", GT_CHECK(SettingsForm, statusboardCHECK)},
    {"Announcements", "ambVolume", readVolume, [](Program& p) { return std::to_string(p.g.AmbienceVolume); }},
    {"Announcements", "Dept1", GT_CHECK(OptionsForm, d1_CHECK)},
    {"Announcements", "Dept2", GT_CHECK(OptionsForm, d2_CHECK)},
    {"Announcements", "Dept3", GT_CHECK(OptionsForm, d3_CHECK)},
    {"Announcements", "Arr1", GT_CHECK(OptionsForm, a1_CHECK)},
    {"Announcements", "Arr2", GT_CHECK(OptionsForm, a2_CHECK)},
    {"Announcements", "Arr3", GT_CHECK(OptionsForm, a3_CHECK)},
    {"Announcements", "TimeSort", GT_OPTION(timeOption)},
    {"Announcements", "CitySort", GT_OPTION(cityOption)},
    {"Announcements", "FltNumSort", GT_OPTION(fltnumOption)},
    {"ProFlight", "FltNumber", GT_CHECK(SettingsForm, pf2_FltNumCHECK)},
    {"ProFlight", "Callsign", GT_CHECK(SettingsForm, pf2_CallsignCHECK)},
    {"FlightOptions", "PreFlight", readCombo<&SettingsForm::preflightCOMBO>,
     [](Program& p) { return std::to_string(p.forms.SettingsForm.preflightCOMBO.data()); }},
    {"FlightOptions", "FindAlternate", GT_CHECK(SettingsForm, altCHECK)},
    {"FlightOptions", "SetDept", GT_CHECK(SettingsForm, homeDeptCHECK)},
    {"FlightOptions", "SetDest", GT_CHECK(SettingsForm, homeDestCHECK)},
    {"FlightOptions", "SetDefault", GT_CHECK(FlyForm, flydefaultCHECK)},
    {"FlightOptions", "AnyAirline", readAnyAirline,
     writeCheck<&Forms::SettingsForm, &SettingsForm::anyairlineCHECK>},
    {"FlightOptions", "MinDist", readCombo<&SettingsForm::altdistCOMBO>,
     [](Program& p) { return p.forms.SettingsForm.altdistCOMBO.text(); }},
    {"Export", "747fmc", GT_CHECK(ExportForm, kf747CHECK)},
    {"Export", "PF2Kfmc", GT_CHECK(ExportForm, aetiCHECK)},
    {"Export", "CPfmc", GT_CHECK(ExportForm, abCHECK)},
    {"Export", "RadarContactPath", GT_FOLDER(RadarContactPath)},
    {"Export", "RadarContactDrive", GT_DRIVE(RadarContactDrive)},
    {"Export", "SBPath", GT_FOLDER(SBPath)},
    {"Export", "SBDrive", GT_DRIVE(SBDrive)},
    {"Export", "ACSPath", GT_FOLDER(ACSPath)},
    {"Export", "ACSDrive", GT_DRIVE(ACSDrive)},
};

#undef GT_CHECK
#undef GT_OPTION
#undef GT_LABEL
#undef GT_FOLDER
#undef GT_DRIVE

/// The keys in the order of the reader: it takes the sort keys before the announcements, and SetDefault
/// before SetDept. What fails early so hides what comes later.
std::vector<const Key*> readingOrder() {
    std::vector<const Key*> order;
    const auto take = [&](std::string_view name) {
        for (const Key& key : kKeys) {
            if (key.key == name) order.push_back(&key);
        }
    };
    for (const Key& key : kKeys) {
        const std::string_view name = key.key;
        if (name == "Dept1") {
            for (const char* sort : {"TimeSort", "CitySort", "FltNumSort"}) take(sort);
        } else if (name == "SetDept") {
            take("SetDefault");
        }
        if (name.ends_with("Sort") || name == "SetDefault") continue;
        order.push_back(&key);
    }
    return order;
}

} // namespace

std::string configPath(const Program& p) {
    return p.appPath("\\GT.cfg");
}

void ReadConfig(Program& p) {
    const Profile profile = loadProfile(configPath(p));
    for (const Key* key : readingOrder()) {
        if (!key->read(p, profile, *key)) return;
    }
}

std::error_code WriteConfig(Program& p) {
    std::vector<ProfileValue> values;
    for (const Key& key : kKeys) values.push_back({key.section, key.key, key.write(p)});
    const std::error_code error = WriteValues(values, configPath(p));
    if (error) p.machine.desktop.notify("GT.cfg could not be written: " + error.message());
    return error;
}

} // namespace gatewise
