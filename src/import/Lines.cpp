#include "import/Lines.h"

#include <algorithm>
#include <climits>
#include <cstring>

namespace gatewise::importer {

Lines::Lines(SourceBytes& bytes) : bytes_(bytes), buffer_(4 * kLongest) {
    while (end_ < 3 && fill()) {
    }
    if (std::string_view(buffer_.data(), end_).starts_with("\xEF\xBB\xBF")) begin_ = 3;
}

bool Lines::fill() {
    if (begin_ > 0) std::memmove(buffer_.data(), buffer_.data() + begin_, end_ - begin_);
    end_ -= begin_;
    begin_ = 0;
    const std::size_t count = bytes_.read(std::span(buffer_).subspan(end_));
    for (std::size_t i = end_; i < end_ + count; ++i)
        digest_ = (digest_ ^ static_cast<unsigned char>(buffer_[i])) * 1099511628211ULL;
    end_ += count;
    if (count == 0) error_ = bytes_.error();
    return count > 0;
}

bool Lines::next() {
    if (!error_.empty()) return false;
    std::size_t looked = 0;
    const char* stop = nullptr;
    for (;;) {
        const std::size_t have = end_ - begin_;
        stop = static_cast<const char*>(std::memchr(buffer_.data() + begin_ + looked, '\n', have - looked));
        if (stop != nullptr) break;
        if (have > kLongest) {
            error_ = "line " + std::to_string(number_ + 1) + " is longer than that of any table";
            return false;
        }
        looked = have;
        if (!fill()) break;
    }
    if (!error_.empty() || (stop == nullptr && begin_ == end_) || number_ == INT_MAX) return false;
    const std::size_t length =
        stop != nullptr ? static_cast<std::size_t>(stop - buffer_.data()) - begin_ : end_ - begin_;
    line_ = {buffer_.data() + begin_, length};
    begin_ += length + (stop != nullptr ? 1U : 0U);
    if (line_.ends_with('\r')) line_.remove_suffix(1);
    ++number_;
    return true;
}

} // namespace gatewise::importer
