#include "app/helpers/StartUpChecks.h"

#include "app/helpers/Caches.h"
#include "base/SystemExport.h"

#include <commctrl.h>

namespace helpers {

bool SetDEPPolicy(bool enable, bool disableThunkEmulation)
{
    if (!enable && disableThunkEmulation)
        return false;
    const base::SystemExport<BOOL WINAPI(DWORD)> setPolicy(TEXT("kernel32"), "SetProcessDEPPolicy");
    DWORD flags = 0;
    if (enable)
        flags = PROCESS_DEP_ENABLE | (disableThunkEmulation ? PROCESS_DEP_DISABLE_ATL_THUNK_EMULATION : 0);
    return setPolicy && setPolicy(flags);
}

bool IsWow64()
{
    Wow64State& state = ProcessCaches().wow64;
    if (state == Wow64State::Unknown) {
        const base::SystemExport<BOOL WINAPI(HANDLE, PBOOL)> isWow64(TEXT("kernel32"), "IsWow64Process");
        BOOL answer = FALSE;
        state = isWow64 && isWow64(GetCurrentProcess(), &answer) && answer ? Wow64State::Yes : Wow64State::No;
    }
    return state == Wow64State::Yes;
}

bool IsUserAdmin()
{
    // The import libraries for 32-bit programs lack IsNTAdmin, so it is looked up.
    const base::SystemExport<BOOL WINAPI(DWORD, DWORD*)> isAdmin(TEXT("advpack.dll"), "IsNTAdmin");
    return isAdmin && isAdmin(0u, static_cast<DWORD*>(nullptr));
}

void InitCommonControlsAndShell()
{
    base::ModuleHandle& shell = ProcessCaches().shellLibrary;
    if (shell)
        return;
    INITCOMMONCONTROLSEX classes = {};
    classes.dwSize = sizeof(classes);
    classes.dwICC = 0xFFFF;
    InitCommonControlsEx(&classes);
    shell.Reset(LoadLibraryW(TEXT("shell32.dll")));
}

void ReleaseShellLibrary()
{
    ProcessCaches().shellLibrary.Reset();
}

void SetWindowIcons(HWND window)
{
    const auto load = [](int widthMetric, int heightMetric) {
        return LoadImageW(GetModuleHandleW(nullptr), TEXT("AAA"), IMAGE_ICON, GetSystemMetrics(widthMetric), GetSystemMetrics(heightMetric),
                          LR_SHARED | LR_VGACOLOR);
    };
    const auto large = reinterpret_cast<LPARAM>(load(SM_CXICON, SM_CYICON));
    const auto small = reinterpret_cast<LPARAM>(load(SM_CXSMICON, SM_CYSMICON));
    const auto give = [&](HWND receiver) {
        SendMessageW(receiver, WM_SETICON, ICON_BIG, large);
        SendMessageW(receiver, WM_SETICON, ICON_SMALL, small);
    };
    give(window);
    HWND last = window;
    while (const HWND owner = GetWindow(last, GW_OWNER))
        last = owner;
    if (last != window)
        give(last);
}

}  // namespace helpers
