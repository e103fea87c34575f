// Writing the graph text file: the settings, the display state and the channel settings as
// private-profile keys, then one DATA section per history slot with its comment, a header line
// and 10,000 data lines appended at the end of the file.
#pragma once

#include <cstdint>
#include <functional>
#include <string>
#include <string_view>

#include "core/graph_state.h"
#include "platform/host_locale.h"

namespace zt {

// Lines of every DATA section, whatever the length of the graph.
inline constexpr int kDataLines = kGraphRecords;

// Writes one key; false when the write failed.
using ProfileWriter = std::function<bool(const std::string& section, const std::string& key,
                                         const std::string& value)>;

// Section names of the file.
std::string channelSectionName(int channel);  // "CHANNEL_01" ...
std::string dataSectionName(int slot);        // "DATA_01" ...

// Writes everything after the header section into `fileName`. `result` is the header step's
// flag; a failed keyed write makes it -1 and writing goes on; a failure to append the data
// lines ends the export at once with -1. `dataHeader` is the header line of each DATA section.
int16_t writeGraphTextFile(const GraphState& state, const std::string& fileName, int32_t result,
                           const std::string& dataHeader, const HostLocale& locale,
                           const ProfileWriter& writeKey);

// Appends bytes at the end of the file; false when the file could not be opened or written.
using FileAppender = std::function<bool(std::string_view bytes)>;

// The same with the appending given.
int16_t writeGraphTextFile(const GraphState& state, int32_t result, const std::string& dataHeader,
                           const HostLocale& locale, const ProfileWriter& writeKey,
                           const FileAppender& append);

// The whole export of `fileName` after its header step: every keyed write and appended table
// is made on the file's bytes in memory, with the private-profile rules, and the file is
// written once at the end. Texts are converted to the code page; the file's final bytes are
// those of the same writes made one by one.
int16_t exportGraphTextFile(const GraphState& state, const std::string& fileName, int32_t result,
                            const std::string& dataHeader, const HostLocale& locale, int codePage);

// Longest text of one slot's data lines: seven numbers of at most 11 characters, six commas and
// CR LF per line.
inline constexpr std::size_t kDataLinesMax =
    static_cast<std::size_t>(kDataLines) * (7 * 11 + 6 + 2);

// Writes the data lines of one slot ("120,0,5,-312,4000,0,0" CR LF, 10,000 of them) at `out`,
// which has room for kDataLinesMax characters; returns the end of what was written.
char* writeDataLines(char* out, const GRAPH_RESULT_INFO& graph);

}  // namespace zt
