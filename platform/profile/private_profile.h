// Portable private-profile (INI) functions with the behaviour of the Windows functions of the
// same names, on real files. Files are raw ANSI bytes. Untouched lines of a file keep their
// exact bytes on every write; lines written by these functions end in CR LF.
//
// File names: Windows resolves a bare name (no directory part) in the Windows directory. There
// is no such directory here, so a bare name is taken relative to the current directory, like
// any other relative path.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace zt::profile {

// Copies the value of `key` in `section` of `fileName` into `buffer` (at most size-1 bytes
// plus a NUL) and returns the number of bytes copied without the NUL. Size 0 leaves the buffer
// untouched and returns 0.
// - Missing file, section or key: `defaultValue` with trailing spaces removed (NULL = "").
// - `key` NULL: the key names of the first section named exactly `section` (no blanks
//   removed), each followed by a NUL, plus a final NUL; an empty list, one that starts with an
//   empty name or one cut to nothing gives the default untrimmed. `section`
//   NULL: all section names likewise (a missing file gives an empty list). Lines before the
//   first header are the keys of section "". A list that does not fit is cut to size-2 bytes
//   followed by two NULs and size-2 is returned.
uint32_t GetPrivateProfileStringA(const char* section, const char* key, const char* defaultValue,
                                  char* buffer, uint32_t size, const char* fileName);

// Sets `key` in `section` to `value` verbatim, creating the key, section or file as needed.
// `value` NULL deletes the key's line; `key` NULL deletes the section header and its key lines
// (its comments stay). Deleting matches the names as given, blanks included. False when `section`
// or `fileName` is NULL or empty, or the file cannot be read or written (for example a missing
// folder).
bool WritePrivateProfileStringA(const char* section, const char* key, const char* value,
                                const char* fileName);

// The value as GetPrivateProfileStringA finds it, without any buffer limit; nullopt when the
// file, section or key is missing.
std::optional<std::string> findProfileString(const std::string& section, const std::string& key,
                                             const std::string& fileName);

// GetPrivateProfileStringA into a string: the `size`-byte buffer's first `returned` bytes
// (name lists keep their NUL separators).
std::string getProfileString(const std::string& section, const std::string& key,
                             const std::string& defaultValue, const std::string& fileName,
                             uint32_t size = 65536);

bool writeProfileString(const std::string& section, const std::string& key,
                        const std::string& value, const std::string& fileName);

// Turns `text` into the bytes a file holding it has after WritePrivateProfileStringA set `key`
// in `section` to `value` (section and key already trimmed).
void editProfileText(std::string& text, std::string_view section, std::string_view key,
                     std::string_view value);

}  // namespace zt::profile
