// Reading the lines of a graph text file's sample tables: fields of plain decimal integers,
// found and valued several bytes at a time. The text may be read up to `limit`, never past it;
// `limit` is the end of the whole text, not of the line.
#pragma once

#include "platform/host_records.h"

namespace zt {

// The usual line of a table, one record of seven plain numbers (an optional '-' and 1 to 18
// digits each, separated by single commas, nothing else) ended by LF, CR LF or the end of the
// text, read at `p` into `r`. Returns where the next line starts, or null, with `r` untouched,
// for any other line: the line-by-line reading then takes it.
const char* scanRecordLine(const char* p, const char* limit, SampleRecord& r);

// Reads field `field` (0 to 6) of `r` from the text at `p` up to the next comma or `end`: the
// field, without its blanks, when it is a plain signed decimal integer of 1 to 18 digits that
// fits; anything else leaves the field as it was. Returns the field's end (its comma or
// `end`), or null for a field in double quotes, which may hold commas.
const char* scanRecordField(const char* p, const char* end, const char* limit, SampleRecord& r,
                            int field);

}  // namespace zt
