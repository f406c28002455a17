#include "programs/Send.h"

#include "platform/FileNames.h"
#include "platform/Files.h"
#include "platform/Text.h"
#include "programs/Figures.h"

#include <algorithm>
#include <utility>

namespace gatewise::programs {

namespace {

constexpr std::size_t kLongestStem = 120; // with room for what stands behind it

struct Reason {
    std::errc error;
    const char* words;
};

constexpr Reason kReasons[] = {
    {std::errc::no_such_file_or_directory, "the folder is gone"},
    {std::errc::not_a_directory, "the folder is gone"},
    {std::errc::permission_denied, "the folder is read-only"},
    {std::errc::operation_not_permitted, "the folder is read-only"},
    {std::errc::read_only_file_system, "the folder is read-only"},
    {std::errc::no_space_on_device, "the disk is full"},
    {std::errc::file_too_large, "the disk is full"},
    {std::errc::is_a_directory, "a folder has the file's name"},
    {std::errc::filename_too_long, "the file's path is too long"},
};

bool isWholePath(std::string_view folder) {
    return folder.starts_with('/') || folder.starts_with('\\') || (folder.size() > 2 && folder[1] == ':');
}

std::string listOf(const std::vector<Sent>& sent, std::string_view reason) {
    std::string names;
    for (const Sent& one : sent) {
        if (one.reason == reason) names += (names.empty() ? "" : ", ") + std::string(one.format->name);
    }
    return names;
}

} // namespace

std::string fileNameOf(const Format& format, std::string_view stem) {
    std::string name = lineText(stem.substr(0, kLongestStem));
    std::ranges::replace_if(
        name, [](char c) { return std::string_view("\\/:*?\"<>|").find(c) != std::string_view::npos; }, '-');
    name += std::string(format.tail) + format.extension;
    return files::isFileName(name) && !name.starts_with('.')
               ? name
               : "Plan" + std::string(format.tail) + format.extension;
}

Sent sendTo(const Format& format, const std::string& folder, std::string_view stem, const Route& route) {
    Sent sent{&format, {}, {}};
    if (folder.empty()) {
        sent.reason = "no folder is named";
        return sent;
    }
    if (!isWholePath(folder) || !files::folderExists(folder)) {
        sent.reason = reasonOf(std::make_error_code(std::errc::no_such_file_or_directory));
        return sent;
    }
    const std::string name = fileNameOf(format, stem);
    std::error_code error;
    const auto path = files::namedIn(folder, name, error);
    if (path) error = files::replace(*path, format.write(route));
    if (error)
        sent.reason = reasonOf(error);
    else
        sent.file = name;
    return sent;
}

std::string reasonOf(const std::error_code& error) {
    for (const Reason& row : kReasons) {
        if (error == row.error) return row.words;
    }
    return textFromUtf8(error.message());
}

std::string summaryOf(const std::vector<Sent>& sent) {
    std::string text;
    if (const std::string written = listOf(sent, ""); !written.empty()) text = "Written: " + written + ".";
    std::vector<std::string> said = {""};
    for (const Sent& one : sent) {
        if (std::ranges::find(said, one.reason) != said.end()) continue;
        said.push_back(one.reason);
        text += (text.empty() ? "" : " ") + std::string("Not written, ") + one.reason + ": " +
                listOf(sent, one.reason) + ".";
    }
    return text;
}

} // namespace gatewise::programs
