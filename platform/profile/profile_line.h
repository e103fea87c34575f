// The line grammar of private-profile (INI) files: where a line ends and what kind of line it
// is. Everything works on views into the caller's bytes; nothing is allocated per line.
#pragma once

#include <cstddef>
#include <string_view>

namespace zt::profile {

// Where the line that starts at a given offset ends.
struct LineSpan {
    std::size_t contentEnd;  // offset just past the line's text
    std::size_t next;        // offset of the next line; equal to contentEnd without a line end
};

// Splits off the line starting at `pos` (pos <= text.size()). A line ends at CR LF, at LF or at
// a CR alone; the last line may have no line end.
LineSpan splitLine(std::string_view text, std::size_t pos);

enum class LineKind {
    Blank,    // nothing but blanks
    Comment,  // first non-blank character is ';'
    Section,  // first non-blank character is '[', closed by a later ']'
    Key,      // any other line holding '='
    Other,    // any other line: not reachable as a key (data lines, for example)
};

struct ProfileLine {
    LineKind kind = LineKind::Blank;
    std::string_view name;   // section name or key name, trimmed
    std::string_view value;  // key value, trimmed, one pair of matching outer quotes removed
};

// True when the first non-blank character of `line` is '[': a cheap test that lets a scan
// skip the lines of sections it is not interested in (an unclosed header passes it too).
bool isSectionLine(std::string_view line);

// Offset of the first line that is a header naming `section` (case-insensitive), npos when
// there is none. Looks only at the '[' characters that begin a line, so a file of megabytes of
// data lines is crossed at memchr speed.
std::size_t findSectionHeader(std::string_view text, std::string_view section);

// Classifies one line (without its line end) the way the Windows profile reader does.
ProfileLine parseLine(std::string_view line);

// Space, tab and vertical tab: the blanks trimmed from names and values in the file.
std::string_view trimBlanks(std::string_view text);

// Only spaces (0x20): what is trimmed from section and key names passed by the caller.
std::string_view trimSpaces(std::string_view text);

// ASCII case-insensitive comparison, as used for section and key names.
bool equalsIgnoreCase(std::string_view a, std::string_view b);

}  // namespace zt::profile
