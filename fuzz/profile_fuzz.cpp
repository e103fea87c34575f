// The private-profile functions on any bytes as a file: lookups of fuzzed sections and keys
// with any buffer size, then keyed writes. A written value reads back, and every line of the
// file other than the one written keeps its bytes.
#include <unistd.h>

#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <sstream>
#include <string>
#include <vector>

#include "fuzz/fuzz_input.h"
#include "platform/profile/private_profile.h"

namespace {

// Stops the run with the broken condition's line, so that a crash report says what failed.
#define check(condition)                                                                       \
    ((condition) ? void()                                                                      \
                 : (std::fprintf(stderr, "check failed: line %d: %s\n", __LINE__, #condition), \
                    std::abort()))

std::string scratchFile() {
    const char* dir = std::getenv("TMPDIR");
    return std::string(dir && *dir ? dir : "/tmp") + "/ztgraph-profile-fuzz-" +
           std::to_string(::getpid()) + ".ini";
}

std::string readAll(const std::string& path) {
    std::ifstream f(path, std::ios::binary);
    std::ostringstream s;
    s << f.rdbuf();
    return s.str();
}

void writeAll(const std::string& path, const std::string& bytes) {
    std::ofstream f(path, std::ios::binary | std::ios::trunc);
    f << bytes;
}

// Lines split at LF, without their CR: what "kept byte for byte" compares.
std::vector<std::string> lines(const std::string& bytes) {
    std::vector<std::string> out;
    std::size_t start = 0;
    while (start < bytes.size()) {
        std::size_t end = bytes.find('\n', start);
        if (end == std::string::npos) end = bytes.size();
        std::string line = bytes.substr(start, end - start);
        if (!line.empty() && line.back() == '\r') line.pop_back();
        out.push_back(line);
        start = end + 1;
    }
    return out;
}

// A name a write can address: printable, no brackets, '=' or ';', no outer blanks, not empty.
std::string name(zt::fuzz::FuzzInput& in) {
    std::string out;
    for (char c : in.text(12)) {
        const auto u = static_cast<unsigned char>(c);
        if (u < 0x21 || u > 0x7e || c == '[' || c == ']' || c == '=' || c == ';') continue;
        out += c;
    }
    return out.empty() ? "k" : out;
}

// A value that reads back as written: no control characters (line ends and the blanks a read
// trims among them), no quotes, no outer spaces.
std::string value(zt::fuzz::FuzzInput& in) {
    std::string out;
    for (char c : in.text(40)) {
        if (static_cast<unsigned char>(c) < 0x20 || c == '"' || c == '\'') continue;
        out += c;
    }
    while (!out.empty() && out.front() == ' ')
        out.erase(0, 1);
    while (!out.empty() && out.back() == ' ')
        out.pop_back();
    return out;
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, std::size_t size) {
    using namespace zt;
    fuzz::FuzzInput in(data, size);
    const std::string path = scratchFile();
    const uint16_t fileLength = in.value<uint16_t>();
    writeAll(path, in.bytes(fileLength % 4096));

    while (!in.empty()) {
        const uint8_t op = in.byte();
        if (op % 4 != 3) {
            // A lookup: any section and key (either may be NULL), any buffer size.
            const std::string section = in.text(16);
            const std::string key = in.text(16);
            const std::string def = in.text(16);
            const uint32_t bufferSize = in.byte();
            std::vector<char> buffer(bufferSize + 1, '\x7f');
            const uint32_t n = profile::GetPrivateProfileStringA(
                op & 4 ? nullptr : section.c_str(), op & 8 ? nullptr : key.c_str(),
                op & 16 ? nullptr : def.c_str(), buffer.data(), bufferSize, path.c_str());
            check(bufferSize == 0 ? n == 0 : n < bufferSize);
            check(buffer[bufferSize] == '\x7f');
            if (bufferSize > 0) check(buffer[n] == '\0');
            continue;
        }
        // A keyed write of a value that can read back.
        const std::string section = name(in);
        const std::string key = name(in);
        const std::string v = value(in);
        const std::string before = readAll(path);
        check(profile::WritePrivateProfileStringA(section.c_str(), key.c_str(), v.c_str(),
                                                  path.c_str()));
        check(profile::findProfileString(section, key, path).value_or("\x01") == v);
        // The write changes one place: the old lines stand at the start and the end of the new
        // file, all but at most the one replaced.
        const std::vector<std::string> old = lines(before);
        const std::vector<std::string> now = lines(readAll(path));
        std::size_t head = 0;
        while (head < old.size() && head < now.size() && old[head] == now[head])
            ++head;
        std::size_t tail = 0;
        while (tail < old.size() - head && tail < now.size() - head &&
               old[old.size() - 1 - tail] == now[now.size() - 1 - tail])
            ++tail;
        const std::size_t missing = old.size() - head - tail;
        if (missing > 1) {
            const std::string after = readAll(path);
            std::fprintf(stderr, "write [%s] %s=%s lost %zu lines\n--- before\n", section.c_str(),
                         key.c_str(), v.c_str(), missing);
            std::fwrite(before.data(), 1, before.size(), stderr);
            std::fprintf(stderr, "\n--- after\n");
            std::fwrite(after.data(), 1, after.size(), stderr);
            std::abort();
        }
    }
    std::remove(path.c_str());
    return 0;
}
