// Security descriptors of files, and the access check. https://learn.microsoft.com/windows/win32/api/securitybaseapi/
#include "platform/sim/Users.h"
#include "platform/src/core/Gate.h"
#include "platform/src/file/FileTree.h"
#include "platform/src/text/Buffers.h"
#include "platform/src/user/Sids.h"
#include "platform/src/user/Token.h"

#include <windows.h>

#include <cstring>
#include <vector>

using namespace platform;

namespace {

constexpr DWORD kAnyGeneric = GENERIC_READ | GENERIC_WRITE | GENERIC_EXECUTE | GENERIC_ALL;

template <class T>
void Append(std::vector<BYTE>& bytes, const T& value)
{
    const auto* const start = reinterpret_cast<const BYTE*>(&value);
    bytes.insert(bytes.end(), start, start + sizeof value);
}

void AppendAce(std::vector<BYTE>& bytes, DWORD mask, const Sid& sid)
{
    Append(bytes, ACE_HEADER{ACCESS_ALLOWED_ACE_TYPE, 0, static_cast<WORD>(sizeof(ACE_HEADER) + sizeof mask + sizeof sid)});
    Append(bytes, mask);
    Append(bytes, sid);
}

/// A self-relative descriptor that grants exactly these rights.
std::vector<BYTE> DescriptorOf(const FileRights& rights, SECURITY_INFORMATION requested)
{
    std::vector<BYTE> bytes(sizeof(SECURITY_DESCRIPTOR_RELATIVE));
    SECURITY_DESCRIPTOR_RELATIVE head{SECURITY_DESCRIPTOR_REVISION, 0, SE_SELF_RELATIVE, 0, 0, 0, 0};
    if ((requested & OWNER_SECURITY_INFORMATION) != 0) {
        head.Owner = static_cast<DWORD>(bytes.size());
        Append(bytes, kAdministrators);
    }
    if ((requested & GROUP_SECURITY_INFORMATION) != 0) {
        head.Group = static_cast<DWORD>(bytes.size());
        Append(bytes, kUsers);
    }
    if ((requested & DACL_SECURITY_INFORMATION) != 0) {
        head.Control |= SE_DACL_PRESENT;
        head.Dacl = static_cast<DWORD>(bytes.size());
        std::vector<BYTE> entries;
        AppendAce(entries, rights.administrators, kAdministrators);
        AppendAce(entries, rights.users, kUsers);
        Append(bytes, ACL{ACL_REVISION, 0, static_cast<WORD>(sizeof(ACL) + entries.size()), 2, 0});
        bytes.insert(bytes.end(), entries.begin(), entries.end());
    }
    std::memcpy(bytes.data(), &head, sizeof head);
    return bytes;
}

/// What the descriptor's list grants to the user, in the order of its entries. Without a list everything is granted.
DWORD Granted(const BYTE* descriptor, bool administrator)
{
    SECURITY_DESCRIPTOR_RELATIVE head;
    std::memcpy(&head, descriptor, sizeof head);
    if ((head.Control & SE_DACL_PRESENT) == 0 || head.Dacl == 0)
        return FILE_ALL_ACCESS;
    const BYTE* place = descriptor + head.Dacl;
    ACL list;
    std::memcpy(&list, place, sizeof list);
    place += sizeof list;
    DWORD granted = 0;
    DWORD denied = 0;
    for (WORD index = 0; index < list.AceCount; ++index) {
        ACE_HEADER entry;
        DWORD mask;
        std::memcpy(&entry, place, sizeof entry);
        std::memcpy(&mask, place + sizeof entry, sizeof mask);
        const BYTE* const sid = place + sizeof entry + sizeof mask;
        const bool mine = std::memcmp(sid, kUsers.data(), kUsers.size()) == 0 ||
                          (administrator && std::memcmp(sid, kAdministrators.data(), kAdministrators.size()) == 0);
        if (mine && entry.AceType == ACCESS_ALLOWED_ACE_TYPE)
            granted |= mask & ~denied;
        else if (mine && entry.AceType == ACCESS_DENIED_ACE_TYPE)
            denied |= mask & ~granted;
        place += entry.AceSize;
    }
    return granted;
}

}  // namespace

BOOL WINAPI GetFileSecurityW(LPCWSTR name, SECURITY_INFORMATION requested, PSECURITY_DESCRIPTOR descriptor, DWORD size, LPDWORD needed)
{
    SIM_CALL(FALSE, ERROR_ACCESS_DENIED, name, requested, size);
    SimPc& pc = SimPc::Current();
    const FileTree& files = Files();
    const FileTree::Place place = files.Find(OrEmpty(name));
    if (!place.node)
        return pc.Fail(place.error, FALSE);
    if (!files.Allows(place, READ_CONTROL))
        return pc.Fail(ERROR_ACCESS_DENIED, FALSE);
    const std::vector<BYTE> bytes = DescriptorOf(files.RightsOf(place), requested);
    *needed = static_cast<DWORD>(bytes.size());
    if (size < bytes.size())
        return pc.Fail(ERROR_INSUFFICIENT_BUFFER, FALSE);
    std::memcpy(descriptor, bytes.data(), bytes.size());
    return TRUE;
}

VOID WINAPI MapGenericMask(PDWORD mask, PGENERIC_MAPPING mapping)
{
    SIM_NOTE(*mask);
    const DWORD given = *mask;
    *mask = (given & ~DWORD{kAnyGeneric}) | ((given & GENERIC_READ) != 0 ? mapping->GenericRead : 0) |
            ((given & GENERIC_WRITE) != 0 ? mapping->GenericWrite : 0) | ((given & GENERIC_EXECUTE) != 0 ? mapping->GenericExecute : 0) |
            ((given & GENERIC_ALL) != 0 ? mapping->GenericAll : 0);
}

BOOL WINAPI AccessCheck(PSECURITY_DESCRIPTOR descriptor, HANDLE token, DWORD desired, PGENERIC_MAPPING, PPRIVILEGE_SET privileges,
                        LPDWORD privilegesSize, LPDWORD granted, LPBOOL status)
{
    SIM_CALL(FALSE, ERROR_ACCESS_DENIED, token, desired);
    SimPc& pc = SimPc::Current();
    const auto opened = FindToken(token, TOKEN_QUERY);
    if (!opened)
        return FALSE;
    if (!opened->Impersonation())
        return pc.Fail(ERROR_NO_IMPERSONATION_TOKEN, FALSE);
    if (*opened->Impersonation() < SecurityIdentification)
        return pc.Fail(ERROR_BAD_IMPERSONATION_LEVEL, FALSE);
    if ((desired & kAnyGeneric) != 0)
        return pc.Fail(ERROR_GENERIC_NOT_MAPPED, FALSE);
    if (*privilegesSize < sizeof(PRIVILEGE_SET)) {
        *privilegesSize = sizeof(PRIVILEGE_SET);
        return pc.Fail(ERROR_INSUFFICIENT_BUFFER, FALSE);
    }
    const auto* const bytes = static_cast<const BYTE*>(descriptor);
    SECURITY_DESCRIPTOR_RELATIVE head;
    std::memcpy(&head, bytes, sizeof head);
    if (head.Revision != SECURITY_DESCRIPTOR_REVISION || head.Owner == 0 || head.Group == 0)
        return pc.Fail(ERROR_INVALID_SECURITY_DESCR, FALSE);

    std::memset(privileges, 0, sizeof *privileges);
    const DWORD all = Granted(bytes, pc.Get<Users>().Administrator() && !opened->Restricted());
    const bool allowed = (desired & MAXIMUM_ALLOWED) != 0 ? all != 0 : (all & desired) == desired;
    *status = allowed;
    *granted = !allowed ? 0 : (desired & MAXIMUM_ALLOWED) != 0 ? all : desired;
    if (!allowed)
        pc.LastError(ERROR_ACCESS_DENIED);
    return TRUE;
}
