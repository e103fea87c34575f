#include "core/ini_file_access.h"

#include <algorithm>
#include <vector>

#include "platform/profile/private_profile.h"
#include "platform/text/code_page.h"

namespace zt {

// File names are passed in the file system's own encoding; only section, key and value texts
// are converted to the ANSI code page, as they are stored in the file.
bool GetInifileString(const std::string& iniFile, const std::string& iniSection,
                      const std::string& iniEntry, std::string& iniBuff, int codePage) {
    std::vector<char> buffer(kProfileBufferChars, '\x01');
    const std::string section = text::toAnsi(iniSection, codePage);
    const std::string entry = text::toAnsi(iniEntry, codePage);
    const uint32_t length = profile::GetPrivateProfileStringA(
        section.c_str(), entry.c_str(), kProfileReadError, buffer.data(),
        static_cast<uint32_t>(buffer.size()), iniFile.c_str());
    const auto end = std::find(buffer.begin(), buffer.end(), '\0');
    iniBuff = text::fromAnsi(
        std::string_view(buffer.data(), static_cast<size_t>(end - buffer.begin())), codePage);
    return iniBuff != kProfileReadError && length != 0;
}

bool SetInifileString(const std::string& iniFile, const std::string& iniSection,
                      const std::string& iniEntry, const std::string& iniBuff, int codePage) {
    const std::string section = text::toAnsi(iniSection, codePage);
    const std::string entry = text::toAnsi(iniEntry, codePage);
    const std::string value = text::toAnsi(iniBuff, codePage);
    return profile::WritePrivateProfileStringA(section.c_str(), entry.c_str(), value.c_str(),
                                               iniFile.c_str());
}

}  // namespace zt
