// WinMngHLP: collects windows, and the processes that own them, in the order in which Windows enumerates them.
#pragma once

#include <windows.h>

#include <cstdint>
#include <vector>

namespace toolkit {

/// Each returns the number of elements; the list's old contents are discarded. One collection runs at a time: a collector that is entered
/// while another runs returns -1 at once and leaves the caller's list as it was, and so does one that finds no memory for its list.
/// https://learn.microsoft.com/windows/win32/api/winuser/nf-winuser-enumwindows
///
/// The top-level windows of the process (of all for 0), each followed by all of its descendants.
std::int32_t CollectProcessWindows(DWORD In_PID, std::vector<HWND>& Out_hWnd);
/// All descendants of a window.
std::int32_t CollectChildWindows(HWND In_Parent, std::vector<HWND>& Out_hWnd);
/// The top-level windows of the process (of all for 0).
std::int32_t CollectTopLevelWindows(DWORD In_PID, std::vector<HWND>& Out_hWnd);
/// Each process that owns a top-level window, once, in the order of its first window.
std::int16_t CollectWindowOwnerPIDs(std::vector<DWORD>& Out_PID);

}  // namespace toolkit
