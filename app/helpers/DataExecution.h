// DataExecution: whether Windows keeps the process from executing data.
#pragma once

namespace helpers {

/// Sets the process's data execution prevention; true when Windows has done so. Nothing happens where kernel32 lacks SetProcessDEPPolicy,
/// nor for a disabled policy with thunk emulation disabled.
/// https://learn.microsoft.com/windows/win32/api/winbase/nf-winbase-setprocessdeppolicy
bool SetDEPPolicy(bool enable, bool disableThunkEmulation);

}  // namespace helpers
