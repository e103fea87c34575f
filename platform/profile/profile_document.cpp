#include "platform/profile/profile_document.h"

#include <filesystem>

#include "platform/profile/private_profile.h"
#include "platform/profile/profile_file_io.h"
#include "platform/profile/profile_line.h"

namespace zt::profile {

ProfileDocument::ProfileDocument(std::string fileName) : fileName_(std::move(fileName)) {
    if (fileName_.empty()) return;
    switch (readWholeFile(fileName_.c_str(), text_)) {
        case ReadResult::Ok:
            usable_ = true;
            break;
        case ReadResult::Missing: {
            // A new file can be made only in an existing folder.
            std::error_code ec;
            const std::filesystem::path folder = std::filesystem::path(fileName_).parent_path();
            usable_ = folder.empty() || std::filesystem::is_directory(folder, ec);
            text_.clear();
            break;
        }
        case ReadResult::Failed:
            usable_ = false;
            break;
    }
}

bool ProfileDocument::write(std::string_view section, std::string_view key,
                            std::string_view value) {
    if (!usable_) return false;
    editProfileText(text_, trimSpaces(section), trimSpaces(key), value);
    return true;
}

bool ProfileDocument::append(std::string_view bytes) {
    if (!usable_) return false;
    text_.append(bytes);
    return true;
}

bool ProfileDocument::save() {
    if (!usable_) return false;
    return replaceFile(fileName_.c_str(), {text_});
}

}  // namespace zt::profile
