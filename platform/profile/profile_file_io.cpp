#include "platform/profile/profile_file_io.h"

#include <sys/stat.h>

#include <cerrno>
#include <cstdio>
#include <filesystem>
#include <memory>
#include <random>
#include <system_error>

#include "platform/profile/profile_read_cache.h"

namespace zt::profile {

namespace {

struct Closer {
    void operator()(std::FILE* f) const { std::fclose(f); }
};
using FilePtr = std::unique_ptr<std::FILE, Closer>;

std::string temporaryNameFor(const std::string& target) {
    std::random_device random;
    const auto tag = (static_cast<unsigned long long>(random()) << 32) ^ random();
    char suffix[32];
    std::snprintf(suffix, sizeof suffix, ".~%016llx.tmp", tag);
    return target + suffix;
}

}  // namespace

ReadResult readSharedFile(const char* fileName, std::shared_ptr<const std::string>& content) {
    content.reset();
    errno = 0;
    FilePtr file(std::fopen(fileName, "rb"));
    if (!file) return errno == ENOENT ? ReadResult::Missing : ReadResult::Failed;
    // Devices and pipes are no profile files (a device such as /dev/full never ends).
    struct stat before {};
    if (fstat(fileno(file.get()), &before) != 0 || !S_ISREG(before.st_mode))
        return ReadResult::Failed;
    content = cachedContent(fileName, before);
    if (content) return ReadResult::Ok;
    auto bytes = std::make_shared<std::string>();
    if (before.st_size > 0) bytes->reserve(static_cast<std::size_t>(before.st_size));
    char chunk[64 * 1024];
    for (;;) {
        const std::size_t got = std::fread(chunk, 1, sizeof chunk, file.get());
        bytes->append(chunk, got);
        if (got < sizeof chunk) break;
    }
    if (std::ferror(file.get()) != 0) return ReadResult::Failed;
    struct stat after {};
    const bool unchanged = fstat(fileno(file.get()), &after) == 0 &&
                           after.st_size == before.st_size &&
                           after.st_mtim.tv_sec == before.st_mtim.tv_sec &&
                           after.st_mtim.tv_nsec == before.st_mtim.tv_nsec &&
                           bytes->size() == static_cast<std::size_t>(after.st_size);
    content = std::move(bytes);
    if (unchanged) rememberContent(fileName, after, content);
    return ReadResult::Ok;
}

ReadResult readWholeFile(const char* fileName, std::string& content) {
    std::shared_ptr<const std::string> shared;
    const ReadResult result = readSharedFile(fileName, shared);
    if (shared)
        content = *shared;
    else
        content.clear();
    return result;
}

bool replaceFile(const char* fileName, std::initializer_list<std::string_view> parts) {
    forgetContent(fileName);
    const std::string target(fileName);
    std::string temporary;
    FilePtr out;
    // "x" refuses an existing file, so a name clash just draws another name.
    for (int attempt = 0; attempt < 8 && !out; ++attempt) {
        temporary = temporaryNameFor(target);
        errno = 0;
        out.reset(std::fopen(temporary.c_str(), "wbx"));
        if (!out && errno != EEXIST) return false;
    }
    if (!out) return false;

    bool ok = true;
    for (const std::string_view part : parts) {
        if (!part.empty() && std::fwrite(part.data(), 1, part.size(), out.get()) != part.size()) {
            ok = false;
            break;
        }
    }
    ok = std::fflush(out.get()) == 0 && ok;
    ok = std::fclose(out.release()) == 0 && ok;

    std::error_code ec;
    if (ok) {
        // Keep the permissions of a file that is being replaced.
        const auto status = std::filesystem::status(target, ec);
        if (!ec && std::filesystem::exists(status)) {
            std::filesystem::permissions(temporary, status.permissions(), ec);
        }
        std::filesystem::rename(temporary, target, ec);
        ok = !ec;
    }
    if (!ok) std::filesystem::remove(temporary, ec);
    return ok;
}

}  // namespace zt::profile
