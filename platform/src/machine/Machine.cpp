// What the system tells about itself: version, processors, memory, time.
#include "platform/sim/Machine.h"
#include "platform/src/core/Gate.h"

#include <windows.h>
#include <winternl.h>

#include <algorithm>
#include <cstring>
#include <limits>

using namespace platform;

namespace {
constexpr NTSTATUS kInfoLengthMismatch = static_cast<NTSTATUS>(0xC0000004u);
constexpr NTSTATUS kUnsuccessful = static_cast<NTSTATUS>(0xC0000001u);
constexpr DWORD kSizeWithServicePack = sizeof(OSVERSIONINFOA) + 8;

template <class T>
T Cut(ULONGLONG bytes)
{
    return static_cast<T>(std::min<ULONGLONG>(bytes, std::numeric_limits<T>::max()));
}
}  // namespace

DWORD WINAPI GetLastError()
{
    SIM_NOTE();
    return SimPc::Current().LastError();
}

VOID WINAPI SetLastError(DWORD error)
{
    SIM_NOTE(error);
    SimPc::Current().LastError(error);
}

DWORD WINAPI GetTickCount()
{
    SIM_NOTE();
    return static_cast<DWORD>(SimPc::Current().Clock().Now());
}

VOID WINAPI Sleep(DWORD milliseconds)
{
    SIM_NOTE(milliseconds);
    SimPc::Current().Block(milliseconds);
}

BOOL WINAPI GetVersionExA(LPOSVERSIONINFOA version)
{
    SIM_CALL(FALSE, ERROR_INSUFFICIENT_BUFFER, version->dwOSVersionInfoSize);
    SimPc& pc = SimPc::Current();
    if (version->dwOSVersionInfoSize != sizeof(OSVERSIONINFOA) && version->dwOSVersionInfoSize != kSizeWithServicePack)
        return pc.Fail(ERROR_INSUFFICIENT_BUFFER, FALSE);
    const Machine::Version& own = pc.Get<Machine>().GetVersion();
    version->dwMajorVersion = own.major;
    version->dwMinorVersion = own.minor;
    version->dwBuildNumber = own.build;
    version->dwPlatformId = own.platformId;
    std::memset(version->szCSDVersion, 0, version->dwOSVersionInfoSize - offsetof(OSVERSIONINFOA, szCSDVersion));
    return TRUE;
}

BOOL WINAPI SetProcessDEPPolicy(DWORD flags)
{
    SIM_CALL(FALSE, ERROR_ACCESS_DENIED, flags);
    SimPc& pc = SimPc::Current();
    if ((flags & ~DWORD{PROCESS_DEP_ENABLE | PROCESS_DEP_DISABLE_ATL_THUNK_EMULATION}) != 0)
        return pc.Fail(ERROR_INVALID_PARAMETER, FALSE);
    Machine& machine = pc.Get<Machine>();
    if (!machine.Wow64())  // 64-bit processes always run with DEP.
        return pc.Fail(ERROR_NOT_SUPPORTED, FALSE);
    machine.DepPolicy(flags);
    return TRUE;
}

NTSTATUS WINAPI NtQuerySystemInformation(SYSTEM_INFORMATION_CLASS kind, PVOID buffer, ULONG size, PULONG needed)
{
    SIM_CALL(kUnsuccessful, ERROR_GEN_FAILURE, kind, size);
    SimPc& pc = SimPc::Current();
    if (kind != SystemBasicInformation) {
        pc.Unsupported("NtQuerySystemInformation: class " + std::to_string(kind));
        return kUnsuccessful;
    }
    if (needed)
        *needed = sizeof(SYSTEM_BASIC_INFORMATION);
    if (size != sizeof(SYSTEM_BASIC_INFORMATION))
        return kInfoLengthMismatch;
    SYSTEM_BASIC_INFORMATION information{};
    information.NumberOfProcessors = static_cast<CHAR>(pc.Get<Machine>().Processors());
    std::memcpy(buffer, &information, sizeof information);
    return 0;
}

VOID WINAPI GlobalMemoryStatus(LPMEMORYSTATUS status)
{
    SIM_NOTE();
    const Machine::Memory& memory = SimPc::Current().Get<Machine>().GetMemory();
    *status = {sizeof(MEMORYSTATUS),
               memory.loadPercent,
               Cut<SIZE_T>(memory.totalPhysical),
               Cut<SIZE_T>(memory.freePhysical),
               Cut<SIZE_T>(memory.totalPageFile),
               Cut<SIZE_T>(memory.freePageFile),
               Cut<SIZE_T>(memory.totalVirtual),
               Cut<SIZE_T>(memory.freeVirtual)};
}

INT WINAPI lstrlenW(LPCWSTR text)
{
    SIM_NOTE();
    return text ? static_cast<INT>(std::char_traits<WCHAR>::length(text)) : 0;
}

INT WINAPI MulDiv(INT number, INT numerator, INT denominator)
{
    SIM_NOTE(number, numerator, denominator);
    // Rounds half away from zero; −1 when it overflows or divides by zero.
    if (denominator == 0)
        return -1;
    const LONGLONG product = static_cast<LONGLONG>(number) * numerator;
    const LONGLONG half = (denominator < 0 ? -static_cast<LONGLONG>(denominator) : denominator) / 2;
    const LONGLONG result = (product + ((product < 0) ? -half : half)) / denominator;
    return result > INT32_MAX || result < -static_cast<LONGLONG>(INT32_MAX) - 1 ? -1 : static_cast<INT>(result);
}
