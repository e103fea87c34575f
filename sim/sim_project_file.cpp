#include "sim/sim_project_file.h"

#include <algorithm>
#include <array>
#include <cstring>
#include <filesystem>
#include <fstream>
#include <optional>

namespace zt::sim {

namespace {

constexpr char kMagic[8] = {'Z', 'T', 'P', 'R', 'O', 'J', '\r', '\n'};
constexpr std::size_t kNameBytes = 32;
constexpr std::size_t kEntryBytes = 40;
constexpr std::size_t kTableAt = 16;

struct Entry {
    std::string name;
    int64_t position = 0;
};

template <typename T>
void putLe(std::string& out, std::size_t at, T value) {
    for (std::size_t i = 0; i < sizeof(T); ++i)
        out[at + i] = static_cast<char>((static_cast<uint64_t>(value) >> (8 * i)) & 0xFF);
}

template <typename T>
T getLe(const std::string& in, std::size_t at) {
    uint64_t v = 0;
    for (std::size_t i = 0; i < sizeof(T); ++i)
        v |= static_cast<uint64_t>(static_cast<unsigned char>(in[at + i])) << (8 * i);
    return static_cast<T>(v);
}

// The table of an existing project file; nullopt when the file is missing, short or foreign.
std::optional<std::array<Entry, kProjectTableEntries>> readTable(const std::string& fileName) {
    std::ifstream in(fileName, std::ios::binary);
    std::string header(static_cast<std::size_t>(kProjectHeaderBytes), '\0');
    if (!in.read(header.data(), static_cast<std::streamsize>(header.size()))) return std::nullopt;
    if (std::memcmp(header.data(), kMagic, sizeof kMagic) != 0 || getLe<uint16_t>(header, 8) != 1 ||
        getLe<uint16_t>(header, 10) != kProjectTableEntries)
        return std::nullopt;
    std::array<Entry, kProjectTableEntries> table;
    for (std::size_t i = 0; i < table.size(); ++i) {
        const std::size_t at = kTableAt + i * kEntryBytes;
        const std::string name = header.substr(at, kNameBytes);
        table[i].name = name.substr(0, name.find('\0'));
        table[i].position = getLe<int64_t>(header, at + kNameBytes);
    }
    return table;
}

std::string headerOf(const std::array<Entry, kProjectTableEntries>& table) {
    std::string out(static_cast<std::size_t>(kProjectHeaderBytes), '\0');
    std::memcpy(out.data(), kMagic, sizeof kMagic);
    putLe<uint16_t>(out, 8, 1);
    putLe<uint16_t>(out, 10, kProjectTableEntries);
    for (std::size_t i = 0; i < table.size(); ++i) {
        const std::size_t at = kTableAt + i * kEntryBytes;
        std::memcpy(out.data() + at, table[i].name.data(),
                    std::min(table[i].name.size(), kNameBytes - 1));
        putLe<int64_t>(out, at + kNameBytes, table[i].position);
    }
    return out;
}

bool validName(const std::string& name) {
    return !name.empty() && name.size() < kNameBytes && name.find('\0') == std::string::npos;
}

}  // namespace

std::string projectFileHeader(const std::vector<std::pair<std::string, int64_t>>& blocks) {
    std::array<Entry, kProjectTableEntries> table;
    for (std::size_t i = 0; i < std::min(blocks.size(), table.size()); ++i)
        table[i] = {blocks[i].first, blocks[i].second};
    return headerOf(table);
}

int64_t findProjectBlock(const std::string& fileName, const std::string& name) {
    const auto table = readTable(fileName);
    if (!table || !validName(name)) return -1;
    std::error_code ec;
    const auto size = std::filesystem::file_size(fileName, ec);
    if (ec) return -1;
    for (const Entry& e : *table) {
        if (e.position > 0 && e.name == name)
            return e.position <= static_cast<int64_t>(size) ? e.position : -1;
    }
    return -1;
}

int64_t reserveProjectBlock(const std::string& fileName, const std::string& name) {
    if (fileName.empty() || !validName(name)) return -1;
    std::error_code ec;
    const bool exists = std::filesystem::exists(fileName, ec);
    const auto size = exists ? std::filesystem::file_size(fileName, ec) : 0;
    if (ec) return -1;
    if (!exists || size == 0) {
        std::array<Entry, kProjectTableEntries> table;
        table[0] = {name, kFirstBlockPosition};
        std::ofstream out(fileName, std::ios::binary | std::ios::trunc);
        out << headerOf(table);
        out.close();
        return out ? kFirstBlockPosition : -1;
    }
    auto table = readTable(fileName);
    if (!table) return -1;
    for (const Entry& e : *table) {
        if (e.position > 0 && e.name == name) return e.position;
    }
    const auto free =
        std::find_if(table->begin(), table->end(), [](const Entry& e) { return e.position <= 0; });
    if (free == table->end()) return -1;
    *free = {name, std::max<int64_t>(static_cast<int64_t>(size), kProjectHeaderBytes) + 1};
    std::fstream out(fileName, std::ios::binary | std::ios::in | std::ios::out);
    out << headerOf(*table);
    out.close();
    return out ? free->position : -1;
}

}  // namespace zt::sim
