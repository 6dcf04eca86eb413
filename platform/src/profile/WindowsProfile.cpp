// The profile of Windows itself, of which the registry keeps all that still counts: here, which printer is the default one.
// https://learn.microsoft.com/windows/win32/api/winbase/nf-winbase-getprofilestringw
#include "platform/sim/Printer.h"
#include "platform/src/core/Gate.h"
#include "platform/src/text/Buffers.h"

#include <windows.h>

using namespace platform;

DWORD WINAPI GetProfileStringW(LPCWSTR section, LPCWSTR key, LPCWSTR fallback, LPWSTR buffer, DWORD size)
{
    SIM_CALL(CopyCut(OrEmpty(fallback), buffer, size), ERROR_FILE_NOT_FOUND, section, key, fallback, size);
    SimPc& pc = SimPc::Current();
    if (OrEmpty(section) != u"windows" || OrEmpty(key) != u"device") {
        pc.Unsupported("GetProfileStringW: other than the default printer");
        return 0;
    }
    const auto& printer = pc.Get<Printer>().Default();
    return CopyCut(printer ? printer->name + u",winspool,Ne00:" : std::u16string(OrEmpty(fallback)), buffer, size);
}
