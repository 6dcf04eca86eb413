// StartUpChecks: what the program finds out about the system, and sets up, when it starts.
#pragma once

#include <windows.h>

namespace helpers {

/// Sets the process's data execution prevention; true when Windows has done so. Nothing happens where kernel32 lacks SetProcessDEPPolicy,
/// nor for a disabled policy with thunk emulation disabled.
/// https://learn.microsoft.com/windows/win32/api/winbase/nf-winbase-setprocessdeppolicy
bool SetDEPPolicy(bool enable, bool disableThunkEmulation);

/// True in a 32-bit process on 64-bit Windows. Cached.
bool IsWow64();

/// True when the user belongs to the administrators and runs with their rights.
bool IsUserAdmin();

/// Registers all classes of the common controls and keeps shell32.dll loaded until `ReleaseShellLibrary`: unloading it while themed windows
/// close is a known way to crash at exit.
void InitCommonControlsAndShell();
void ReleaseShellLibrary();

/// Gives the icon resource "AAA" to the window and to the last window of its chain of owners, which is the one that the task list shows.
void SetWindowIcons(HWND window);

}  // namespace helpers
