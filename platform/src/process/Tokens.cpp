// Opening and copying the tokens of processes and threads. https://learn.microsoft.com/windows/win32/api/processthreadsapi/
#include "platform/sim/Users.h"
#include "platform/src/core/Gate.h"
#include "platform/src/process/ProcessHandle.h"
#include "platform/src/user/Sids.h"
#include "platform/src/user/Token.h"

#include <windows.h>

#include <cstring>

using namespace platform;

namespace {

DWORD MapGenericToken(DWORD access)
{
    if ((access & (GENERIC_ALL | MAXIMUM_ALLOWED)) != 0)
        return TOKEN_ALL_ACCESS;
    return access;
}

}  // namespace

BOOL WINAPI OpenProcessToken(HANDLE process, DWORD access, PHANDLE token)
{
    SIM_CALL(FALSE, ERROR_ACCESS_DENIED, process, access);
    SimPc& pc = SimPc::Current();
    const auto opened = FindProcess(process, PROCESS_QUERY_INFORMATION);
    if (!opened)
        return FALSE;
    if (opened->id != SimPc::Own().process)
        return pc.Fail(ERROR_ACCESS_DENIED, FALSE);
    *token = AsHandle<HANDLE>(pc.Handles().Open(std::make_shared<Token>(MapGenericToken(access), std::nullopt)));
    return TRUE;
}

BOOL WINAPI DuplicateToken(HANDLE token, SECURITY_IMPERSONATION_LEVEL level, PHANDLE duplicate)
{
    SIM_CALL(FALSE, ERROR_ACCESS_DENIED, token, static_cast<int>(level));
    SimPc& pc = SimPc::Current();
    const auto opened = FindToken(token, TOKEN_DUPLICATE);
    if (!opened)
        return FALSE;
    *duplicate = AsHandle<HANDLE>(pc.Handles().Open(std::make_shared<Token>(TOKEN_QUERY, level, opened->Restricted())));
    return TRUE;
}

BOOL WINAPI OpenThreadToken(HANDLE thread, DWORD access, BOOL asSelf, PHANDLE token)
{
    SIM_CALL(FALSE, ERROR_NO_TOKEN, thread, access, asSelf);
    SimPc& pc = SimPc::Current();
    if (!FindThread(thread, THREAD_QUERY_INFORMATION))
        return FALSE;
    const auto impersonation = pc.Get<Users>().Impersonation();
    if (!impersonation)
        return pc.Fail(ERROR_NO_TOKEN, FALSE);
    *token = AsHandle<HANDLE>(pc.Handles().Open(std::make_shared<Token>(MapGenericToken(access), impersonation)));
    return TRUE;
}

BOOL WINAPI CreateRestrictedToken(HANDLE token, DWORD flags, DWORD disabledCount, PSID_AND_ATTRIBUTES disabled, DWORD deletedCount,
                                  PLUID_AND_ATTRIBUTES, DWORD restrictedCount, PSID_AND_ATTRIBUTES, PHANDLE made)
{
    SIM_CALL(FALSE, ERROR_ACCESS_DENIED, token, flags);
    SimPc& pc = SimPc::Current();
    const auto opened = FindToken(token, TOKEN_DUPLICATE);
    if (!opened)
        return FALSE;
    // One kind is known here: without the group of the administrators.
    if (disabledCount != 1 || std::memcmp(disabled->Sid, kAdministrators.data(), kAdministrators.size()) != 0 || deletedCount != 0 ||
        restrictedCount != 0)
        return pc.Fail(ERROR_INVALID_PARAMETER, FALSE);
    *made = AsHandle<HANDLE>(pc.Handles().Open(std::make_shared<Token>(TOKEN_DUPLICATE | TOKEN_QUERY, opened->Impersonation(), true)));
    return TRUE;
}
