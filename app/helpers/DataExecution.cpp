#include "app/helpers/DataExecution.h"

#include "base/SystemExport.h"

namespace helpers {

bool SetDEPPolicy(bool enable, bool disableThunkEmulation)
{
    if (!enable && disableThunkEmulation)
        return false;
    const base::SystemExport<BOOL WINAPI(DWORD)> setPolicy(TEXT("kernel32.dll"), "SetProcessDEPPolicy");
    DWORD flags = 0;
    if (enable)
        flags = PROCESS_DEP_ENABLE | (disableThunkEmulation ? PROCESS_DEP_DISABLE_ATL_THUNK_EMULATION : 0);
    return setPolicy && setPolicy(flags);
}

}  // namespace helpers
