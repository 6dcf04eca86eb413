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
