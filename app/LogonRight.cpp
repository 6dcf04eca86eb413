#include "app/LogonRight.h"

#include "base/Handles.h"

#include <ntsecapi.h>

namespace app {

namespace {

using Policy = base::Handle<base::NullHandleTraits<LSA_HANDLE, &LsaClose>>;

/// The account's identifier, into `sid`. False for one that Windows does not know, and for all that are not a person's.
bool FindUser(base::StringView account, BYTE (&sid)[SECURITY_MAX_SID_SIZE])
{
    // Without a domain, accounts of this PC are found first; the dot that means this PC elsewhere is not known here.
    if (account.starts_with(TEXT(".\\")))
        account.remove_prefix(2);
    WCHAR domain[256];
    DWORD sidSize = sizeof sid, domainLength = 256;
    SID_NAME_USE use = SidTypeUnknown;
    return LookupAccountNameW(nullptr, base::String(account).c_str(), sid, &sidSize, domain, &domainLength, &use) && use == SidTypeUser;
}

}  // namespace

bool GrantServiceLogon(base::StringView account)
{
    BYTE sid[SECURITY_MAX_SID_SIZE];
    if (!FindUser(account, sid))
        return false;
    LSA_OBJECT_ATTRIBUTES attributes{};
    attributes.Length = sizeof attributes;
    Policy policy;
    // NTSTATUS: 0 and above is success.
    if (LsaOpenPolicy(nullptr, &attributes, POLICY_CREATE_ACCOUNT | POLICY_LOOKUP_NAMES, policy.Receive()) < 0)
        return false;
    WCHAR name[] = TEXT("SeServiceLogonRight");
    LSA_UNICODE_STRING right{};
    right.Buffer = name;
    right.Length = sizeof name - sizeof name[0];  // in bytes, without the zero at the end
    right.MaximumLength = sizeof name;
    return LsaAddAccountRights(policy.Get(), sid, &right, 1) >= 0;
}

}  // namespace app
