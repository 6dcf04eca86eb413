// TaskManLight: value-returning wrappers over processes, threads, windows and memory.
#pragma once

#include "base/String.h"

#include <cstdint>
#include <functional>
#include <vector>

namespace toolkit {

/// 1 = done, 0 = not done.
using Flag = std::uint8_t;

/// No member raises an error: failures give 0, false, an empty text or -1, or leave outputs untouched. Handles that a member opens are
/// closed before it returns, except those that `OpenHndProcessBy...` hand to the caller. Lists come in the order in which Windows
/// enumerates.
class TaskManLight {
public:
    // ---- Processes. An id that is 0 or no multiple of 4 does not exist, though Windows would round it down and open a stranger.
    DWORD GetMyPID() const;
    DWORD GetPIDFromhWnd(HWND In_hWnd) const;
    /// The caller closes the handle. The function that makes it is looked up in oleacc.dll.
    HANDLE OpenHndProcessByHWnd(HWND In_hWnd) const;
    DWORD GetPIDFromHndProcess(HANDLE In_hProcess) const;
    bool IsProcessRunningByHnd(HANDLE In_hProcess) const;
    bool ExistsPID(DWORD In_PID) const;
    /// Null for a process that has ended. The caller closes the handle.
    HANDLE OpenHndProcessByPID(DWORD In_PID, DWORD In_hRights) const;
    /// Ends a running process with the exit code 259.
    Flag KillProcessByHnd(HANDLE In_hProcess) const;
    Flag KillProcessByPID(DWORD In_PID) const;
    /// Asks the process's windows to close, without waiting; a process without windows is killed. Pending messages of the calling thread
    /// are handled meanwhile. 0 for the process 0, and while another list is being collected.
    Flag CloseProcessByPID(DWORD In_PID) const;
    void CloseProcessByHnd(HANDLE In_hProcess) const;
    /// All process ids; -1 on failure.
    std::int32_t GetAllPID(std::vector<DWORD>& Out_PID) const;
    /// Priorities are priority classes; 0 on failure. A class that takes a privilege which is missing becomes the next lower one.
    /// https://learn.microsoft.com/windows/win32/api/processthreadsapi/nf-processthreadsapi-setpriorityclass
    std::int32_t SetCurrentProcessPriority(DWORD In_Priority) const;
    DWORD GetCurrentProcessPriority() const;
    DWORD GetPriorityFromPID(DWORD In_PID) const;
    std::int32_t SetPriorityFromPID(DWORD In_PID, DWORD In_Priority) const;
    /// Empties the working set: its pages are read again when they are next touched.
    void TrimWorkingSet(DWORD In_PID) const;
    void TrimWorkingSetCurrentProcess() const;
    /// One bit a processor, as wide as an address. Untouched on failure. Windows gives 0 for a process in several processor groups.
    Flag GetAffinityMaskFromPID(DWORD In_PID, DWORD_PTR& Out_CPUAffinityMask, DWORD_PTR& Out_SystemAvailableCPUMask) const;
    Flag SetAffinityMaskFromPID(DWORD In_ProcessID, DWORD_PTR In_CPUAffinityMask) const;
    /// Bytes, except the page-fault count. Untouched on failure.
    Flag GetMemoryUsageFromPID(DWORD In_PID, SIZE_T& Out_WorkingSetSize, SIZE_T& Out_PeakWorkingSetSize, DWORD& Out_PageFaultCount,
                               SIZE_T& Out_QuotaPagedPoolUsage, SIZE_T& Out_QuotaPeakPagedPoolUsage, SIZE_T& Out_QuotaNonPagedPoolUsage,
                               SIZE_T& Out_QuotaPeakNonPagedPoolUsage, SIZE_T& Out_PagefileUsage, SIZE_T& Out_PeakPagefileUsage) const;
    /// Full names of at most 1024 modules.
    Flag GetDLLsFromPID(DWORD In_PID, std::vector<base::String>& Out_DLL) const;
    /// 1, 0 or -1 when the process cannot be opened. Always 1 where the toolkit does not run under WOW64.
    std::int32_t Is32BitProcess(DWORD In_PID) const;

    // ---- Paths of processes
    /// `\Device\HarddiskVolume1\...`
    base::String GetNTPathFromPID(DWORD In_PID) const;
    /// `C:\...`
    base::String GetPathFromPID(DWORD In_PID) const;
    base::String GetFileNameFromPID(DWORD In_PID) const;
    /// "C:", "D:", ...
    std::int16_t GetLogicalDrives(std::vector<base::String>& Out_DriveMatrix) const;
    base::String GetNtDeviceNameByLogicalDrive(base::StringView LogicalDrive) const;
    /// The first drive whose device name begins the path wins.
    base::String GetPathFromNTPath(base::StringView In_NTPath) const;

    // ---- Instances of a program. Processes without a top-level window are not seen.
    std::int16_t GetAllInstancesPIDsByPID(DWORD In_PID, std::vector<DWORD>& Out_PID, bool In_ReturnMainPIDToo) const;
    std::int16_t GetAppInstanceCountByPID(DWORD In_PID) const;
    std::int16_t GetAllMyInstancesCount() const;
    std::int16_t GetAllMyOtherInstancesPID(std::vector<DWORD>& Out_PID) const;

    // ---- Windows. While another list is being collected, the first three return -1 and leave their lists; all others find no window.
    std::int32_t GetHWndFromPID(DWORD In_PID, std::vector<HWND>& Out_hWnd) const;
    std::int32_t GetAllHWnd(std::vector<HWND>& Out_hWnd) const;
    std::int32_t GetChildWindows(HWND In_Parent, std::vector<HWND>& Out_hWnd) const;
    /// The process's top-level windows without an owner, titled or not.
    std::int32_t GetMainWindowsHWndFromPID(DWORD In_PID, std::vector<HWND>& Out_hWnd) const;
    /// A window without owner and with a title.
    bool IsMainWindow(HWND In_hWnd) const;
    HWND GetMainWindowFromPID(DWORD In_PID) const;
    /// At most 259 characters, without sending a message to the window.
    base::String GetWindowTitle(HWND In_hWnd) const;
    base::String GetClassNameFromHWnd(HWND In_hWnd, bool In_RealClassName) const;
    /// Both wait at most one second for the window's answer. No more than 16,777,216 characters of a text are read.
    std::int32_t GetLenTextByHWnd(HWND In_hWnd) const;
    base::String GetTextByHWnd(HWND In_hWnd) const;
    /// Looks for the exact title among the top-level windows, then among their direct children.
    HWND FindHWndByCaption(base::StringView In_Caption, bool In_ExcludeCurrentProcess) const;
    /// 1 for the first top-level window of that title, and 1 for each top-level window with a direct child of that title.
    std::int32_t GetHWndByCaptionCount(base::StringView In_Caption, bool In_ExcludeCurrentProcess) const;
    bool ExistsWindow(HWND In_hWnd) const;
    bool IsVisibleWindow(HWND In_hWnd) const;
    bool IsEnabledWindow(HWND In_hWnd) const;
    bool IsForegroundWindow(HWND In_hWnd) const;
    void CloseWindow(HWND In_hWnd) const;
    void QuitWindow(HWND In_hWnd) const;
    void MakeWindowVisible(HWND In_hWnd) const;
    void MakeWindowInvisible(HWND In_hWnd) const;
    /// Brings a window to the front; other programs are then kept from doing the same (LockSetForegroundWindow).
    void ActivateWindow(HWND In_hWnd) const;
    /// Brings the window that `FirstFormWindow` gives to the front.
    void ActivateMyWindow() const;
    /// The application sets this: the window of its first loaded form, or null.
    std::function<HWND()> FirstFormWindow;
    /// Desktop icons.
    void DeskTopVisible(bool In_Value) const;
    void TaskBarVisible(bool In_Value) const;
    /// Screen pixels.
    void GetMouseCursorPos(std::int32_t& Out_X, std::int32_t& Out_Y) const;
    HWND GetHWndFromMousePos() const;
    /// 0x00BBGGRR, CLR_INVALID where the screen cannot be read.
    COLORREF GetRGBPixelColorFromPos(std::int32_t In_X, std::int32_t In_Y) const;

    // ---- Threads and the workstation
    std::int32_t KillThread(DWORD ThreadID) const;
    /// The suspend count before, -1 when the thread cannot be opened.
    std::int32_t SospendiThread(DWORD ThreadID) const;
    std::int32_t RiattivaThread(DWORD ThreadID) const;
    Flag LockComputer() const;
    base::String GetActualUser() const;
    base::String GetActualDomain() const;
    /// Logical processors of the processor group that the process runs in, as one byte tells them; -1 on failure.
    std::int16_t GetCPUCount() const;

    // ---- Memory of the PC, in bytes. 0xFFFFFFFF stands for 4 GB and more. Of a PC with more memory Windows tells a 32-bit program at most
    // 0xFFFFFFFF, and of one with 2 to 4 GB only 2 GB, unless the program is linked as aware of large addresses.
    // https://learn.microsoft.com/windows/win32/api/winbase/nf-winbase-globalmemorystatus
    std::uint32_t GetPhysMemTotal() const;
    std::uint32_t GetVirtMemTotal() const;
    std::uint32_t GetPageFileMemTotal() const;
    std::uint32_t GetPhysMemAvailable() const;
    std::uint32_t GetVirtMemAvailable() const;
    std::uint32_t GetPageFileMemAvailable() const;
    /// Percent.
    std::int16_t GetMemLoad() const;

    // ---- The debug privilege of the process's own token
    void EnableDebugPrivilege();
    void DisableDebugPrivilege();
    /// Changes nothing.
    void RestoreDebugPrivilege();
    /// The last result other than 0 of `EnableDebugPrivilege` and `DisableDebugPrivilege`.
    Flag DebugPrivilegeResult = 0;

private:
    /// The handle of the window, or how many there are.
    LONG_PTR SearchHWndByCaption(base::StringView In_Caption, bool In_ExcludeCurrentProcess, bool In_Count) const;
    Flag AdjustPrivilegeByNumber(std::int32_t In_PrivilegeNumber, bool In_Enable) const;
};

}  // namespace toolkit
