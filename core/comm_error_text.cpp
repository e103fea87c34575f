#include "core/comm_error_text.h"

#include <exception>

namespace zt {

namespace {

constexpr const char* kCrLf = "\r\n";

// Codes whose top four bits are 0 do not come from the communication layer.
bool isUnexpected(int32_t code) {
    return (static_cast<uint32_t>(code) & 0xF0000000u) == 0;
}

std::string withLineBreaks(const std::string& text) {
    std::string out;
    out.reserve(text.size());
    for (std::size_t i = 0; i < text.size(); ++i) {
        if (text[i] == '\\' && i + 1 < text.size() && text[i + 1] == 'n') {
            out += kCrLf;
            ++i;
        } else {
            out += text[i];
        }
    }
    return out;
}

std::string errorPart(HostServices& host, int32_t code) {
    if (code == -1 || isUnexpected(code)) return unexpectedErrorText(host, code);
    return communicationErrorText(host, code);
}

}  // namespace

std::string hexDigits(uint32_t value) {
    static constexpr char kDigits[] = "0123456789ABCDEF";
    std::string out;
    do {
        out.insert(out.begin(), kDigits[value & 0xFu]);
        value >>= 4;
    } while (value != 0);
    return out;
}

std::string unexpectedErrorText(HostServices& host, int32_t code) {
    return host.text(msg::kUnexpectedError) + "0x" +
           hexDigits(static_cast<uint32_t>(code) | 0x81000000u);
}

std::string communicationErrorText(HostServices& host, int32_t code) {
    std::string description;
    bool unknown = false;
    try {
        if (host.common().GetCommErrorText(code, description, unknown) != 0) unknown = true;
    } catch (const std::exception&) {
        unknown = true;
    }
    std::string text = host.text(msg::kCommError) + hexDigits(static_cast<uint32_t>(code)) + kCrLf;
    return text + (unknown ? host.text(msg::kUnknownError) : withLineBreaks(description));
}

std::string comErrDlgText(HostServices& host, int32_t node, int32_t code) {
    return host.text(msg::kNode) + std::to_string(node) + kCrLf + errorPart(host, code);
}

std::string samplingErrorText(HostServices& host, int32_t code) {
    const std::string runEnd = std::string(kCrLf) + kCrLf + host.text(msg::kSamplingStopped);
    if (code == -1) return host.text(msg::kBufferOverflow) + runEnd;
    if (isUnexpected(code)) return unexpectedErrorText(host, code);
    return communicationErrorText(host, code) + runEnd;
}

void showComErrDlg(HostServices& host, int32_t node, int32_t code) {
    host.showMessage(comErrDlgText(host, node, code), kStyleNotice);
}

}  // namespace zt
