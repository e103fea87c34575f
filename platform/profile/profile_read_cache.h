// The bytes of the profile file read last, kept with the file's identity, size and time stamp,
// so that a run of lookups in one file (an import reads about a hundred keys) reads it from
// disk once. Windows keeps a profile file cached between calls in the same way. Any change of
// the file through these functions gives it a new identity; a change by another program shows
// in its size or time stamp.
#pragma once

#include <memory>
#include <string>

#include <sys/stat.h>

namespace zt::profile {

// The cached bytes when they belong to the file `info` describes, else null.
std::shared_ptr<const std::string> cachedContent(const char* fileName, const struct stat& info);
// Keeps `content` as the bytes of the file `info` describes.
void rememberContent(const char* fileName, const struct stat& info,
                     std::shared_ptr<const std::string> content);
// Drops the cached bytes of `fileName`.
void forgetContent(const char* fileName);

}  // namespace zt::profile
