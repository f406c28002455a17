#include "work/Notices.h"

#include "platform/Text.h"

#include <utility>

namespace gatewise {

Notice failure(int errorNumber, std::string_view description, std::string_view function) {
    return {Heading::Warning, Message::Failure, errorNumber,
            std::string(description) + "In Function " + std::string(function) + " "};
}

Notice failure(const std::error_code& error, std::string_view function) {
    return failure(error.value(), textFromUtf8(error.message()) + " ", function);
}

Notice failure(const std::error_code& error, std::string_view function, const std::string& file) {
    Notice notice = failure(error, function);
    notice.file = file;
    notice.reason = plainReason(error);
    return notice;
}

std::string plainReason(const std::error_code& error) {
    constexpr std::pair<std::errc, const char*> kReasons[] = {
        {std::errc::no_such_file_or_directory, "its folder is not there"},
        {std::errc::not_a_directory, "its folder is not there"},
        {std::errc::permission_denied, "there is no permission to write there"},
        {std::errc::operation_not_permitted, "there is no permission to write there"},
        {std::errc::read_only_file_system, "nothing can be written on this disk"},
        {std::errc::no_space_on_device, "the disk is full"},
        {std::errc::is_a_directory, "a folder has this name"},
        {std::errc::filename_too_long, "the name is too long"},
        {std::errc::invalid_argument, "a file cannot have this name"},
    };
    for (const auto& [reason, words] : kReasons) {
        if (error == reason) return words;
    }
    return textFromUtf8(error.message());
}

Notice tableFull(std::string_view function) {
    return failure(kSubscriptOutOfRange, "Subscript out of range", function);
}

} // namespace gatewise
