#include "programs/Settings.h"

#include "platform/Text.h"
#include "programs/Folders.h"

namespace gatewise::programs {

namespace {

constexpr const char* kSection = "Programs";
constexpr const char* kComputed = "ComputedPoints";
constexpr const char* kOnDispatch = "OnDispatch";

bool ticked(const Profile& profile, std::string_view key) {
    return numberIn(profile, kSection, key) == 1;
}

std::string folderKey(const Format& format) {
    return std::string(format.key) + "Folder";
}

ProfileValue tick(std::string_view key, bool on) {
    return {kSection, std::string(key), on ? "1" : "0"};
}

Route routeFor(const Choices& choices, const Dispatch& dispatch, const Format& format) {
    return routeOf(dispatch.plan, dispatch.stem, dispatch.utc, choices.withComputed && format.takesComputed,
                   dispatch.regions);
}

} // namespace

Choices choicesIn(const Profile& profile, const UserFolders& folders) {
    Choices choices;
    for (const Format& format : formats()) {
        Choice choice{ticked(profile, format.key), {}};
        choice.folder = profile.find(kSection, folderKey(format)).value_or(std::string());
        if (choice.folder.empty()) choice.folder = proposedFolder(format, folders);
        choices.lines.push_back(choice);
    }
    choices.withComputed = ticked(profile, kComputed);
    choices.onDispatch = ticked(profile, kOnDispatch);
    return choices;
}

std::vector<ProfileValue> valuesOf(const Choices& choices, const UserFolders& folders) {
    std::vector<ProfileValue> values;
    for (std::size_t i = 0; i < formats().size(); ++i) {
        const Format& format = formats()[i];
        const Choice& choice = choices.lines[i];
        const bool keep = choice.ticked || choice.folder != proposedFolder(format, folders);
        values.push_back(tick(format.key, choice.ticked));
        values.push_back({kSection, folderKey(format), keep ? choice.folder : ""});
    }
    values.push_back(tick(kComputed, choices.withComputed));
    values.push_back(tick(kOnDispatch, choices.onDispatch));
    return values;
}

std::vector<Sent> sendTicked(const Choices& choices, const Dispatch& dispatch) {
    std::vector<Sent> sent;
    for (std::size_t i = 0; i < formats().size(); ++i) {
        const Format& format = formats()[i];
        if (!choices.lines[i].ticked) continue;
        const std::string folder(trimmed(choices.lines[i].folder));
        sent.push_back(sendTo(format, folder, dispatch.stem, routeFor(choices, dispatch, format)));
    }
    return sent;
}

std::string clipboardText(const Choices& choices, const Dispatch& dispatch) {
    for (std::size_t i = 0; i < formats().size(); ++i) {
        const Format& format = formats()[i];
        if (!format.toClipboard || !choices.lines[i].ticked) continue;
        std::string text = format.write(routeFor(choices, dispatch, format));
        while (text.ends_with('\n')) text.pop_back();
        return text;
    }
    return {};
}

} // namespace gatewise::programs
