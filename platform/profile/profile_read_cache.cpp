#include "platform/profile/profile_read_cache.h"

namespace zt::profile {

namespace {

struct CachedFile {
    std::string name;
    dev_t device = 0;
    ino_t inode = 0;
    off_t size = -1;
    struct timespec modified {};
    std::shared_ptr<const std::string> content;
};

// One entry per thread: lookups of one import run on one thread, and nothing is shared.
CachedFile& cache() {
    thread_local CachedFile file;
    return file;
}

bool sameFile(const CachedFile& c, const char* fileName, const struct stat& info) {
    return c.size >= 0 && c.name == fileName && c.device == info.st_dev && c.inode == info.st_ino &&
           c.size == info.st_size && c.modified.tv_sec == info.st_mtim.tv_sec &&
           c.modified.tv_nsec == info.st_mtim.tv_nsec;
}

}  // namespace

std::shared_ptr<const std::string> cachedContent(const char* fileName, const struct stat& info) {
    const CachedFile& c = cache();
    return sameFile(c, fileName, info) ? c.content : nullptr;
}

void rememberContent(const char* fileName, const struct stat& info,
                     std::shared_ptr<const std::string> content) {
    CachedFile& c = cache();
    c.name = fileName;
    c.device = info.st_dev;
    c.inode = info.st_ino;
    c.size = info.st_size;
    c.modified = info.st_mtim;
    c.content = std::move(content);
}

void forgetContent(const char* fileName) {
    CachedFile& c = cache();
    if (c.name == fileName) {
        c.size = -1;
        c.content.reset();
    }
}

}  // namespace zt::profile
