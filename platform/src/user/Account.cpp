// Who the user is: names, the logon domain, administrators, the locked workstation.
#include "platform/sim/Machine.h"
#include "platform/sim/Users.h"
#include "platform/src/core/Gate.h"
#include "platform/src/memory/Blocks.h"
#include "platform/src/text/Buffers.h"

#include <advpub.h>
#include <lm.h>
#include <windows.h>

using namespace platform;

BOOL WINAPI GetUserNameW(LPWSTR buffer, LPDWORD size)
{
    SIM_CALL(FALSE, ERROR_ACCESS_DENIED);
    SimPc& pc = SimPc::Current();
    const std::u16string& name = pc.Get<Users>().Name();
    const DWORD given = *size;
    *size = static_cast<DWORD>(name.size() + 1);
    if (!buffer || given <= name.size())
        return pc.Fail(ERROR_INSUFFICIENT_BUFFER, FALSE);
    CopyCut(name, buffer, given);
    return TRUE;
}

NET_API_STATUS NET_API_FUNCTION NetWkstaUserGetInfo(LPWSTR reserved, DWORD level, LPBYTE* buffer)
{
    SIM_CALL(SimPc::Current().LastError(), ERROR_ACCESS_DENIED, level);
    SimPc& pc = SimPc::Current();
    if (reserved)
        return ERROR_INVALID_PARAMETER;
    if (level != 1) {
        pc.Unsupported("NetWkstaUserGetInfo: level " + std::to_string(level));
        return ERROR_INVALID_LEVEL;
    }
    const Users& users = pc.Get<Users>();
    const std::u16string_view texts[] = {users.Name(), users.LogonDomain(), u"", users.ComputerName()};
    std::size_t bytes = sizeof(WKSTA_USER_INFO_1);
    for (const std::u16string_view text : texts)
        bytes += (text.size() + 1) * sizeof(WCHAR);
    auto* const information = static_cast<WKSTA_USER_INFO_1*>(pc.Get<Blocks>().Allocate(bytes, Blocks::Kind::Net));
    auto* place = reinterpret_cast<WCHAR*>(information + 1);
    LPWSTR* const fields[] = {&information->wkui1_username, &information->wkui1_logon_domain, &information->wkui1_oth_domains,
                              &information->wkui1_logon_server};
    for (std::size_t index = 0; index < std::size(texts); ++index) {
        *fields[index] = place;
        place += CopyCut(texts[index], place, static_cast<DWORD>(texts[index].size() + 1)) + 1;
    }
    *buffer = reinterpret_cast<LPBYTE>(information);
    return NERR_Success;
}

NET_API_STATUS NET_API_FUNCTION NetApiBufferFree(LPVOID buffer)
{
    SIM_NOTE();
    return !buffer || SimPc::Current().Get<Blocks>().Free(buffer, Blocks::Kind::Net) ? NERR_Success : ERROR_INVALID_PARAMETER;
}

BOOL WINAPI IsNTAdmin(DWORD, DWORD*)
{
    SIM_CALL(FALSE, ERROR_ACCESS_DENIED);
    return SimPc::Current().Get<Users>().Administrator();
}

BOOL WINAPI LockWorkStation()
{
    SIM_CALL(FALSE, ERROR_ACCESS_DENIED);
    SimPc::Current().Get<Machine>().Lock();
    return TRUE;
}
