// The Windows side of the differential suite: answers the shared cases with the Windows
// functions themselves (kernel32 and oleaut32). Built with a Windows cross compiler and run
// under a Windows-compatible loader.
// Usage: windows_oracle <work-folder> <seed> [family]
#include <windows.h>

#include <fcntl.h>
#include <io.h>
#include <oleauto.h>

#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <string>

#include "wine/case_runner.h"

namespace {

std::wstring wide(const std::string& utf8, UINT codePage = CP_UTF8) {
    if (utf8.empty()) return {};
    const int n =
        MultiByteToWideChar(codePage, 0, utf8.data(), static_cast<int>(utf8.size()), nullptr, 0);
    std::wstring out(static_cast<std::size_t>(n), L'\0');
    MultiByteToWideChar(codePage, 0, utf8.data(), static_cast<int>(utf8.size()), out.data(), n);
    return out;
}

std::string narrow(const wchar_t* text, int length, UINT codePage = CP_UTF8) {
    if (length <= 0) return {};
    const int n = WideCharToMultiByte(codePage, 0, text, length, nullptr, 0, nullptr, nullptr);
    std::string out(static_cast<std::size_t>(n), '\0');
    WideCharToMultiByte(codePage, 0, text, length, out.data(), n, nullptr, nullptr);
    return out;
}

std::string fromBstr(HRESULT hr, BSTR text) {
    if (FAILED(hr)) {
        char code[32];
        std::snprintf(code, sizeof code, "error %08lX", static_cast<unsigned long>(hr));
        return code;
    }
    std::string out = narrow(text, static_cast<int>(SysStringLen(text)));
    SysFreeString(text);
    return out;
}

std::string status(HRESULT hr) {
    if (hr == DISP_E_OVERFLOW) return "overflow";
    if (hr == DISP_E_TYPEMISMATCH) return "mismatch";
    return "error";
}

struct WindowsBackend {
    std::string folder;  // Windows path with a trailing backslash

    std::string path(const std::string& name) const { return folder + name; }

    void writeFile(const std::string& file, const std::string& bytes) const {
        std::FILE* f = std::fopen(file.c_str(), "wb");
        if (f == nullptr) return;
        std::fwrite(bytes.data(), 1, bytes.size(), f);
        std::fclose(f);
    }

    uint32_t getProfile(const ztdiff::ReadQuery& q, std::string& buffer,
                        const std::string& file) const {
        return GetPrivateProfileStringA(
            q.sectionNull ? nullptr : q.section.c_str(), q.keyNull ? nullptr : q.key.c_str(),
            q.defaultNull ? nullptr : q.defaultValue.c_str(), buffer.data(), q.size, file.c_str());
    }

    bool writeProfile(const ztdiff::WriteCall& w, const std::string& file) const {
        return WritePrivateProfileStringA(w.section.c_str(), w.keyNull ? nullptr : w.key.c_str(),
                                          w.valueNull ? nullptr : w.value.c_str(),
                                          file.c_str()) != FALSE;
    }

    std::string r8Text(double value, uint32_t lcid) const {
        BSTR text = nullptr;
        const HRESULT hr = VarBstrFromR8(value, lcid, 0, &text);
        return fromBstr(hr, text);
    }

    std::string r4Text(float value, uint32_t lcid) const {
        BSTR text = nullptr;
        const HRESULT hr = VarBstrFromR4(value, lcid, 0, &text);
        return fromBstr(hr, text);
    }

    std::string numeric(const std::string& text, uint32_t lcid) const {
        std::wstring w = wide(text);
        std::string answer;
        double d = 0;
        HRESULT hr = VarR8FromStr(w.data(), lcid, 0, &d);
        answer += hr == S_OK ? "r8 " + ztdiff::hex64(ztdiff::bitsOf(d)) : "r8 " + status(hr);
        SHORT s = 0;
        hr = VarI2FromStr(w.data(), lcid, 0, &s);
        answer += hr == S_OK ? " i2 " + std::to_string(s) : " i2 " + status(hr);
        LONG l = 0;
        hr = VarI4FromStr(w.data(), lcid, 0, &l);
        answer += hr == S_OK ? " i4 " + std::to_string(l) : " i4 " + status(hr);
        return answer;
    }

    std::string integers(double value) const {
        std::string answer;
        SHORT s = 0;
        HRESULT hr = VarI2FromR8(value, &s);
        answer += hr == S_OK ? "i2 " + std::to_string(s) : "i2 " + status(hr);
        LONG l = 0;
        hr = VarI4FromR8(value, &l);
        answer += hr == S_OK ? " i4 " + std::to_string(l) : " i4 " + status(hr);
        return answer;
    }

    std::string format(double value, bool single, const std::string& pattern, uint32_t lcid) const {
        VARIANT v;
        VariantInit(&v);
        if (single) {
            v.vt = VT_R4;
            v.fltVal = static_cast<float>(value);
        } else {
            v.vt = VT_R8;
            v.dblVal = value;
        }
        std::wstring w = wide(pattern);
        BYTE tokens[1024];
        HRESULT hr = VarTokenizeFormatString(w.data(), tokens, sizeof tokens, 1, 1, lcid, nullptr);
        if (FAILED(hr)) return fromBstr(hr, nullptr);
        BSTR text = nullptr;
        hr = VarFormatFromTokens(&v, w.data(), tokens, 0, &text, lcid);
        return fromBstr(hr, text);
    }

    std::string fromAnsi(const std::string& bytes, int codePage) const {
        const std::wstring w = wide(bytes, static_cast<UINT>(codePage));
        return narrow(w.data(), static_cast<int>(w.size()));
    }

    std::string toAnsi(const std::string& utf8, int codePage) const {
        const std::wstring w = wide(utf8);
        return narrow(w.data(), static_cast<int>(w.size()), static_cast<UINT>(codePage));
    }
};

}  // namespace

int main(int argc, char** argv) {
    if (argc < 3) {
        std::fprintf(stderr, "usage: windows_oracle <work-folder> <seed> [family]\n");
        return 2;
    }
    // The folder comes as a host path; the drive Z: maps the host's root.
    std::string folder = argv[1];
    if (!folder.empty() && folder[0] == '/') folder = "Z:" + folder;
    for (char& c : folder)
        if (c == '/') c = '\\';
    if (folder.empty() || folder.back() != '\\') folder += '\\';
    WindowsBackend backend{folder};
    std::FILE* out = stdout;
    _setmode(_fileno(out), _O_BINARY);
    std::setvbuf(out, nullptr, _IOFBF, 1 << 16);
    ztdiff::runAll(backend, out, std::strtoull(argv[2], nullptr, 10), argc > 3 ? argv[3] : "");
    std::fflush(out);
    return 0;
}
