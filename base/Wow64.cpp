#include "base/Wow64.h"

#include "base/SystemExport.h"

#include <optional>

namespace base {

namespace {

std::optional<bool> answer;

bool Ask()
{
    const SystemExport<BOOL WINAPI(HANDLE, PBOOL)> isWow64(TEXT("kernel32.dll"), "IsWow64Process");
    BOOL wow64 = FALSE;
    return isWow64 && isWow64(GetCurrentProcess(), &wow64) && wow64;
}

}  // namespace

bool IsWow64()
{
    if (!answer)
        answer = Ask();
    return *answer;
}

void ForgetWow64()
{
    answer.reset();
}

}  // namespace base
