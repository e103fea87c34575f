// Texts of communication errors: the box of showComErrDlg and the error path of a sampling
// reply. An error code is classed as unexpected (its top four bits are 0, or -1 given to
// showComErrDlg), as a buffer overflow (-1 in a sampling reply) or as a communication error
// that the common library describes.
#pragma once

#include <cstdint>
#include <string>

#include "core/host_services.h"

namespace zt {

// Upper-case hexadecimal digits of a 32-bit value, without leading zeros ("0" for 0).
std::string hexDigits(uint32_t value);

// "Unexpected error occurred." CR LF "Error Code:" "0x" and the code with bits 0x81000000 set.
std::string unexpectedErrorText(HostServices& host, int32_t code);
// "... Communication Error Code: 0x" and the code, then the library's description with every
// backslash-n pair turned into CR LF ("Unknown error occurred." when it does not know the code).
std::string communicationErrorText(HostServices& host, int32_t code);

// Text of showComErrDlg: "NODE:" and the station, a line break, then the error part.
std::string comErrDlgText(HostServices& host, int32_t node, int32_t code);
// Text shown when a sampling reply carries a non-zero error code.
std::string samplingErrorText(HostServices& host, int32_t code);

// Shows the communication-error box for a station; returns when the user closes it.
void showComErrDlg(HostServices& host, int32_t node, int32_t code);

}  // namespace zt
