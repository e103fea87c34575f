// The simulated host's project file: a header, a table of named blocks, then the blocks. Each
// block belongs to one component, which writes and reads it at the position the table gives.
//
//   bytes 0-7    "ZTPROJ" CR LF
//   bytes 8-9    format, 1 (little-endian)
//   bytes 10-11  entries in the table, 8
//   bytes 12-15  zero
//   then 8 entries of 40 bytes: the block's name (up to 31 bytes, NUL-padded to 32) and the
//   position of its first byte (int64, the file's first byte is 1; 0 for a free entry)
#pragma once

#include <cstdint>
#include <string>
#include <utility>
#include <vector>

namespace zt::sim {

inline constexpr int kProjectTableEntries = 8;
inline constexpr int64_t kProjectHeaderBytes = 16 + kProjectTableEntries * 40;
// Where the first block of a new file goes.
inline constexpr int64_t kFirstBlockPosition = kProjectHeaderBytes + 1;

// Header and table of a project file naming `blocks` (name, position) in order.
std::string projectFileHeader(const std::vector<std::pair<std::string, int64_t>>& blocks);

// Position of the block named `name`; -1 when the file is missing, is no project file, has no
// such block or the block would start past its end.
int64_t findProjectBlock(const std::string& fileName, const std::string& name);

// Position where the block named `name` is to be written: its place in the table, or a new
// entry at the end of the file (a new file is created with the header). -1 when the file is no
// project file, the table is full, the name does not fit or the file cannot be written.
int64_t reserveProjectBlock(const std::string& fileName, const std::string& name);

}  // namespace zt::sim
