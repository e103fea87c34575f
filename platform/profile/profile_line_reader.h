// Reads a file line by line through one reusable buffer, so that a lookup can stop as soon as
// it has its answer without reading the rest of a large file.
#pragma once

#include <cstddef>
#include <cstdio>
#include <memory>
#include <string_view>
#include <vector>

namespace zt::profile {

class ProfileLineReader {
  public:
    // Opens `fileName` for reading; isOpen() tells whether that worked.
    explicit ProfileLineReader(const char* fileName);

    bool isOpen() const { return file_ != nullptr; }

    // The next line without its line end (CR LF, LF or CR). The view stays valid until the
    // next call. False at the end of the file or on a read error.
    bool next(std::string_view& line);

  private:
    struct Closer {
        void operator()(std::FILE* f) const { std::fclose(f); }
    };

    // Moves the unread bytes to the front and reads more; false when nothing more came.
    bool refill();

    std::unique_ptr<std::FILE, Closer> file_;
    std::vector<char> buffer_;
    std::size_t pos_ = 0;
    std::size_t end_ = 0;
    bool eof_ = false;
};

}  // namespace zt::profile
