// The configuration of services. https://learn.microsoft.com/windows/win32/api/winsvc/
#include "platform/src/core/Gate.h"
#include "platform/src/service/ServiceHandles.h"
#include "platform/src/text/Buffers.h"

#include <windows.h>

#include <algorithm>

using namespace platform;

namespace {

/// Texts packed behind a record, each with its zero.
class Packer {
public:
    explicit Packer(void* place) : place_(static_cast<WCHAR*>(place)) {}
    LPWSTR Add(std::u16string_view text)
    {
        LPWSTR const start = place_;
        place_ = std::copy(text.begin(), text.end(), place_);
        *place_++ = 0;
        return start;
    }

private:
    WCHAR* place_;
};

template <class... Texts>
DWORD SizeOfTexts(const Texts&... texts)
{
    return static_cast<DWORD>(((texts.size() + 1) + ...) * sizeof(WCHAR));
}

}  // namespace

BOOL WINAPI QueryServiceConfigW(SC_HANDLE service, LPQUERY_SERVICE_CONFIGW config, DWORD size, LPDWORD needed)
{
    SIM_CALL(FALSE, ERROR_ACCESS_DENIED, service, size);
    SimPc& pc = SimPc::Current();
    const auto found = FindService(service, SERVICE_QUERY_CONFIG);
    if (!found)
        return FALSE;
    const DWORD whole = static_cast<DWORD>(sizeof *config) +
                        SizeOfTexts(found->path, found->loadOrderGroup, found->dependencies, found->account, found->displayName);
    *needed = whole;
    if (!config || size < whole)
        return pc.Fail(ERROR_INSUFFICIENT_BUFFER, FALSE);
    Packer texts(config + 1);
    *config = {};
    config->dwServiceType = found->type;
    config->dwStartType = found->startType;
    config->dwErrorControl = found->errorControl;
    config->lpBinaryPathName = texts.Add(found->path);
    config->lpLoadOrderGroup = texts.Add(found->loadOrderGroup);
    config->lpDependencies = texts.Add(found->dependencies);
    config->lpServiceStartName = texts.Add(found->account);
    config->lpDisplayName = texts.Add(found->displayName);
    return TRUE;
}

BOOL WINAPI QueryServiceConfig2W(SC_HANDLE service, DWORD level, LPBYTE buffer, DWORD size, LPDWORD needed)
{
    SIM_CALL(FALSE, ERROR_ACCESS_DENIED, service, level, size);
    SimPc& pc = SimPc::Current();
    const auto found = FindService(service, SERVICE_QUERY_CONFIG);
    if (!found)
        return FALSE;
    if (level != SERVICE_CONFIG_DESCRIPTION)
        return pc.Fail(ERROR_INVALID_LEVEL, FALSE);
    const DWORD whole =
        static_cast<DWORD>(sizeof(SERVICE_DESCRIPTIONW)) + (found->description.empty() ? 0 : SizeOfTexts(found->description));
    *needed = whole;
    if (!buffer || size < whole)
        return pc.Fail(ERROR_INSUFFICIENT_BUFFER, FALSE);
    auto* const description = reinterpret_cast<SERVICE_DESCRIPTIONW*>(buffer);
    description->lpDescription = found->description.empty() ? nullptr : Packer(description + 1).Add(found->description);
    return TRUE;
}

BOOL WINAPI ChangeServiceConfigW(SC_HANDLE service, DWORD type, DWORD startType, DWORD errorControl, LPCWSTR path, LPCWSTR loadOrderGroup,
                                 LPDWORD tag, LPCWSTR dependencies, LPCWSTR account, LPCWSTR password, LPCWSTR displayName)
{
    SIM_CALL(FALSE, ERROR_ACCESS_DENIED, service, type, startType, errorControl, path, account, password, displayName);
    SimPc& pc = SimPc::Current();
    const auto found = FindService(service, SERVICE_CHANGE_CONFIG);
    if (!found)
        return FALSE;
    if (loadOrderGroup || tag || dependencies) {
        pc.Unsupported("ChangeServiceConfigW: load-order group, tag or dependencies");
        return FALSE;
    }
    Service changed = *found;
    const auto change = [](DWORD& member, DWORD value) { member = value == SERVICE_NO_CHANGE ? member : value; };
    change(changed.type, type);
    change(changed.startType, startType);
    change(changed.errorControl, errorControl);
    changed.path = path ? path : changed.path;
    changed.account = account ? account : changed.account;
    changed.password = password ? password : changed.password;
    changed.displayName = displayName ? displayName : changed.displayName;

    DWORD error = WhyNotKind(changed.type, changed.startType, changed.errorControl);
    if (found->markedForDeletion)
        error = ERROR_SERVICE_MARKED_FOR_DELETE;
    else if (error == NO_ERROR && account)
        error = WhyNotAccount(pc, changed.account, changed.type);
    if (error != NO_ERROR)
        return pc.Fail(error, FALSE);
    *found = changed;
    return TRUE;
}

BOOL WINAPI ChangeServiceConfig2W(SC_HANDLE service, DWORD level, LPVOID information)
{
    SIM_CALL(FALSE, ERROR_ACCESS_DENIED, service, level);
    SimPc& pc = SimPc::Current();
    const auto found = FindService(service, SERVICE_CHANGE_CONFIG);
    if (!found)
        return FALSE;
    if (level != SERVICE_CONFIG_DESCRIPTION)
        return pc.Fail(ERROR_INVALID_LEVEL, FALSE);
    if (found->markedForDeletion)
        return pc.Fail(ERROR_SERVICE_MARKED_FOR_DELETE, FALSE);
    const auto* const description = static_cast<const SERVICE_DESCRIPTIONW*>(information);
    if (description && description->lpDescription)  // NULL leaves it as it is.
        found->description = description->lpDescription;
    return TRUE;
}
