// Whole-file reading and all-or-nothing replacement of profile files.
#pragma once

#include <initializer_list>
#include <memory>
#include <string>
#include <string_view>

namespace zt::profile {

enum class ReadResult { Ok, Missing, Failed };

// Reads the whole file into `content`. Missing when no such file exists; Failed when it cannot
// be read or is no regular file (a device such as /dev/zero never ends).
ReadResult readWholeFile(const char* fileName, std::string& content);

// The same, sharing the bytes with the cache of the file read last: a run of lookups in one
// file reads it once.
ReadResult readSharedFile(const char* fileName, std::shared_ptr<const std::string>& content);

// Replaces (or creates) `fileName` with the concatenation of `parts`. The bytes go to a
// temporary file in the same folder which is then renamed over the target, so a failure never
// leaves a half-written file. False when the folder does not exist or any step fails.
bool replaceFile(const char* fileName, std::initializer_list<std::string_view> parts);

}  // namespace zt::profile
