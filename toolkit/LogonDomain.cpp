#include "toolkit/LogonDomain.h"

#include "base/Handle.h"

#include <lm.h>

namespace toolkit {

namespace {

struct NetBufferTraits {
    using Type = LPBYTE;
    static Type None() noexcept { return nullptr; }
    static void Close(Type buffer) noexcept { NetApiBufferFree(buffer); }
};

}  // namespace

base::String GetLogonDomain()
{
    base::Handle<NetBufferTraits> buffer;
    if (NetWkstaUserGetInfo(nullptr, 1, buffer.Receive()) != NERR_Success || !buffer)
        return {};
    const WCHAR* const domain = reinterpret_cast<const WKSTA_USER_INFO_1*>(buffer.Get())->wkui1_logon_domain;
    return base::String(domain, static_cast<std::size_t>(lstrlenW(domain)));
}

}  // namespace toolkit
