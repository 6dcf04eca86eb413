// MultiByteToWideChar and its counterpart. https://learn.microsoft.com/windows/win32/api/stringapiset/
#include "platform/src/core/Gate.h"
#include "platform/src/text/CodePages.h"

#include <windows.h>

#include <algorithm>

using namespace platform;

namespace {

template <class Unit>
INT Deliver(SimPc& pc, const std::basic_string<Unit>& text, Unit* buffer, INT size)
{
    const INT length = static_cast<INT>(text.size());
    if (size == 0)
        return length;
    if (size < length)
        return pc.Fail(ERROR_INSUFFICIENT_BUFFER, 0);
    std::copy(text.begin(), text.end(), buffer);
    return length;
}

/// The caller's text: a size of −1 means up to its zero, which then belongs to it.
template <class Unit>
std::basic_string_view<Unit> Source(const Unit* text, INT size)
{
    return size < 0 ? std::basic_string_view<Unit>(text, std::char_traits<Unit>::length(text) + 1)
                    : std::basic_string_view<Unit>(text, static_cast<std::size_t>(size));
}

}  // namespace

INT WINAPI MultiByteToWideChar(UINT codePage, DWORD flags, LPCSTR text, INT textSize, LPWSTR buffer, INT size)
{
    SIM_CALL(0, ERROR_INVALID_PARAMETER, codePage, flags, textSize, size);
    SimPc& pc = SimPc::Current();
    if (!text || textSize == 0 || size < 0 || (size > 0 && !buffer))
        return pc.Fail(ERROR_INVALID_PARAMETER, 0);
    const std::string_view source = Source(text, textSize);
    if (codePage == CP_ACP || codePage == 1252)
        return Deliver(pc, FromCp1252(source), buffer, size);
    if (codePage != CP_UTF8) {
        pc.Unsupported("MultiByteToWideChar: code page " + std::to_string(codePage));
        return 0;
    }
    bool clean = true;
    const std::u16string converted = FromUtf8(source, &clean);
    if (!clean && (flags & MB_ERR_INVALID_CHARS) != 0)
        return pc.Fail(ERROR_NO_UNICODE_TRANSLATION, 0);
    return Deliver(pc, converted, buffer, size);
}

INT WINAPI WideCharToMultiByte(UINT codePage, DWORD flags, LPCWSTR text, INT textSize, LPSTR buffer, INT size, LPCSTR substitute,
                               LPBOOL substituted)
{
    SIM_CALL(0, ERROR_INVALID_PARAMETER, codePage, flags, textSize, size);
    SimPc& pc = SimPc::Current();
    if (!text || textSize == 0 || size < 0 || (size > 0 && !buffer))
        return pc.Fail(ERROR_INVALID_PARAMETER, 0);
    const std::u16string_view source = Source(text, textSize);
    if (codePage == CP_ACP || codePage == 1252) {
        bool lossy = false;
        const std::string converted = ToCp1252(source, substitute ? *substitute : '?', &lossy);
        if (substituted)
            *substituted = lossy;
        return Deliver(pc, converted, buffer, size);
    }
    if (codePage != CP_UTF8) {
        pc.Unsupported("WideCharToMultiByte: code page " + std::to_string(codePage));
        return 0;
    }
    if (substitute || substituted)
        return pc.Fail(ERROR_INVALID_PARAMETER, 0);
    bool clean = true;
    const std::string converted = ToUtf8(source, &clean);
    if (!clean && (flags & WC_ERR_INVALID_CHARS) != 0)
        return pc.Fail(ERROR_NO_UNICODE_TRANSLATION, 0);
    return Deliver(pc, converted, buffer, size);
}
