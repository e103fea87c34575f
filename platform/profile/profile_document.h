// A profile file edited in memory and written back once: a run of keyed writes and appended
// lines leaves the file with exactly the bytes the same WritePrivateProfileStringA calls and
// appends would leave, without rewriting the file at every call.
#pragma once

#include <string>
#include <string_view>

namespace zt::profile {

class ProfileDocument {
  public:
    // Reads the file as it is now (a missing file is empty). A file that cannot be read as a
    // profile file (a folder, a device) makes every write fail.
    explicit ProfileDocument(std::string fileName);

    // WritePrivateProfileStringA(section, key, value) on the held bytes; false when it would
    // fail on the file.
    bool write(std::string_view section, std::string_view key, std::string_view value);
    // Appends bytes at the end, as a file opened for appending would get them.
    bool append(std::string_view bytes);
    // Makes room for `bytes` more, so that large appends do not move the text again.
    void reserve(std::size_t bytes) { text_.reserve(text_.size() + bytes); }
    // Writes the bytes back to the file; false when that fails.
    bool save();

  private:
    std::string fileName_;
    std::string text_;
    bool usable_ = false;
};

}  // namespace zt::profile
