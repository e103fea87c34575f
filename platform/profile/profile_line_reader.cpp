#include "platform/profile/profile_line_reader.h"

#include <cstring>

#include "platform/profile/profile_line.h"

namespace zt::profile {

namespace {
constexpr std::size_t kChunkBytes = 64 * 1024;
}

ProfileLineReader::ProfileLineReader(const char* fileName)
    : file_(fileName != nullptr ? std::fopen(fileName, "rb") : nullptr), buffer_(kChunkBytes) {}

bool ProfileLineReader::refill() {
    if (eof_ || !file_) return false;
    const std::size_t pending = end_ - pos_;
    if (pos_ > 0 && pending > 0) std::memmove(buffer_.data(), buffer_.data() + pos_, pending);
    pos_ = 0;
    end_ = pending;
    // A line longer than the buffer makes it grow; there is no line length limit.
    if (end_ == buffer_.size()) buffer_.resize(buffer_.size() * 2);
    const std::size_t got =
        std::fread(buffer_.data() + end_, 1, buffer_.size() - end_, file_.get());
    end_ += got;
    if (got == 0) eof_ = true;
    return got > 0;
}

bool ProfileLineReader::next(std::string_view& line) {
    if (!file_) return false;
    for (;;) {
        const std::string_view pending(buffer_.data() + pos_, end_ - pos_);
        if (!pending.empty()) {
            const LineSpan span = splitLine(pending, 0);
            const bool hasEnd = span.next > span.contentEnd;
            // A CR as the last byte read may be the first half of a CR LF pair.
            const bool endsInCr =
                hasEnd && span.next == pending.size() && pending[span.contentEnd] == '\r';
            if ((hasEnd && !endsInCr) || eof_) {
                line = pending.substr(0, span.contentEnd);
                pos_ += span.next;
                return true;
            }
        } else if (eof_) {
            return false;
        }
        if (!refill() && end_ == pos_) return false;
    }
}

}  // namespace zt::profile
