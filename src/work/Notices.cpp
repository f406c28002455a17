#include "work/Notices.h"

#include "platform/Text.h"

namespace gatewise {

Notice failure(int errorNumber, std::string_view description, std::string_view function) {
    return {Heading::Warning, Message::Failure, errorNumber,
            std::string(description) + "In Function " + std::string(function) + " "};
}

Notice failure(const std::error_code& error, std::string_view function) {
    return failure(error.value(), textFromUtf8(error.message()) + " ", function);
}

Notice tableFull(std::string_view function) {
    return failure(kSubscriptOutOfRange, "Subscript out of range", function);
}

} // namespace gatewise
