#include "import/Source.h"

#include <algorithm>

namespace gatewise::importer {

namespace {

class TextBytes : public SourceBytes {
public:
    explicit TextBytes(std::shared_ptr<const std::string> text) : text_(std::move(text)) {}

    std::size_t read(std::span<char> out) override {
        const std::size_t count = text_->copy(out.data(), out.size(), at_);
        at_ += count;
        return count;
    }
    [[nodiscard]] std::string error() const override { return {}; }

private:
    std::shared_ptr<const std::string> text_;
    std::size_t at_ = 0;
};

} // namespace

Source textSource(std::string name, std::string text) {
    auto shared = std::make_shared<const std::string>(std::move(text));
    return {std::move(name), [shared] { return std::make_unique<TextBytes>(shared); }};
}

} // namespace gatewise::importer
