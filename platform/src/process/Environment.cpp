// Environment variables. https://learn.microsoft.com/windows/win32/api/processenv/
#include "platform/src/core/Gate.h"
#include "platform/src/process/EnvironmentBlock.h"
#include "platform/src/text/Buffers.h"
#include "platform/src/text/Case.h"

#include <windows.h>

using namespace platform;

DWORD WINAPI GetEnvironmentVariableW(LPCWSTR name, LPWSTR buffer, DWORD size)
{
    SIM_CALL(0, ERROR_ENVVAR_NOT_FOUND, name, size);
    SimPc& pc = SimPc::Current();
    const auto& variables = pc.Get<EnvironmentBlock>().All();
    const auto found = variables.find(UpperCase(OrEmpty(name)));
    if (found == variables.end())
        return pc.Fail(ERROR_ENVVAR_NOT_FOUND, 0);
    return LengthOrNeeded(found->second, buffer, size);
}

BOOL WINAPI SetEnvironmentVariableW(LPCWSTR name, LPCWSTR text)
{
    SIM_CALL(FALSE, ERROR_NOT_ENOUGH_MEMORY, name, text);
    SimPc& pc = SimPc::Current();
    const std::u16string key = UpperCase(OrEmpty(name));
    if (key.empty() || key.find(u'=', 1) != std::u16string::npos)
        return pc.Fail(ERROR_INVALID_PARAMETER, FALSE);
    auto& variables = pc.Get<EnvironmentBlock>().All();
    const auto found = variables.find(key);
    if (text && found != variables.end())
        found->second = text;
    else if (text)
        variables.emplace(key, text);
    else if (found == variables.end())
        return pc.Fail(ERROR_ENVVAR_NOT_FOUND, FALSE);
    else
        variables.erase(found);
    return TRUE;
}
