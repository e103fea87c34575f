// The settings-file routines the host (and the graph text file) use: thin wrappers of the
// private-profile functions that convert texts to and from the system's ANSI code page.
#pragma once

#include <string>

namespace zt {

// Text returned, with the result False, when the entry does not exist.
inline constexpr const char* kProfileReadError = "GetPrivateProfileReadError";
// Characters the read buffer holds.
inline constexpr unsigned kProfileBufferChars = 12800;

// Reads an entry into `iniBuff`. True when the entry exists and is not empty.
bool GetInifileString(const std::string& iniFile, const std::string& iniSection,
                      const std::string& iniEntry, std::string& iniBuff, int codePage);

// Writes an entry. True when the platform call succeeded.
bool SetInifileString(const std::string& iniFile, const std::string& iniSection,
                      const std::string& iniEntry, const std::string& iniBuff, int codePage);

}  // namespace zt
