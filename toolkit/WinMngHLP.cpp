#include "toolkit/WinMngHLP.h"

#include <algorithm>
#include <utility>

namespace toolkit {

namespace {

void Append(HWND window) noexcept
{
    std::vector<HWND>& windows = CurrentWindowCollection().Windows;
    if (windows.size() == windows.capacity())
        windows.reserve(windows.size() + 10);
    windows.push_back(window);
}

DWORD OwnerOf(HWND window)
{
    DWORD process = 0;
    GetWindowThreadProcessId(window, &process);
    return process;
}

bool Belongs(HWND window, LPARAM process)
{
    return process == 0 || OwnerOf(window) == static_cast<DWORD>(process);
}

BOOL CALLBACK TakeChild(HWND window, LPARAM)
{
    Append(window);
    return TRUE;
}

BOOL CALLBACK TakeTopLevel(HWND window, LPARAM process)
{
    if (Belongs(window, process))
        Append(window);
    return TRUE;
}

BOOL CALLBACK TakeWithDescendants(HWND window, LPARAM process)
{
    if (Belongs(window, process)) {
        Append(window);
        EnumChildWindows(window, TakeChild, 0);
    }
    return TRUE;
}

BOOL CALLBACK TakeOwner(HWND window, LPARAM)
{
    std::vector<DWORD>& processes = CurrentWindowCollection().Processes;
    const DWORD process = OwnerOf(window);
    if (std::find(processes.begin(), processes.end(), process) == processes.end())
        processes.push_back(process);
    return TRUE;
}

template <class Count, class Element, class Enumerate>
Count Collect(std::vector<Element> WindowCollection::*list, std::vector<Element>& output, Enumerate enumerate)
{
    WindowCollection& collection = CurrentWindowCollection();
    if (collection.Busy)
        return -1;
    collection.Busy = 1;
    (collection.*list).clear();
    enumerate();
    output = std::exchange(collection.*list, {});
    collection.Busy = 0;
    return static_cast<Count>(output.size());
}

}  // namespace

WindowCollection& CurrentWindowCollection()
{
    static WindowCollection collection;
    return collection;
}

std::int32_t CollectProcessWindows(DWORD In_PID, std::vector<HWND>& Out_hWnd)
{
    return Collect<std::int32_t>(&WindowCollection::Windows, Out_hWnd,
                                 [&] { EnumWindows(TakeWithDescendants, static_cast<LPARAM>(In_PID)); });
}

std::int32_t CollectChildWindows(HWND In_Parent, std::vector<HWND>& Out_hWnd)
{
    return Collect<std::int32_t>(&WindowCollection::Windows, Out_hWnd, [&] { EnumChildWindows(In_Parent, TakeChild, 0); });
}

std::int32_t CollectTopLevelWindows(DWORD In_PID, std::vector<HWND>& Out_hWnd)
{
    return Collect<std::int32_t>(&WindowCollection::Windows, Out_hWnd, [&] { EnumWindows(TakeTopLevel, static_cast<LPARAM>(In_PID)); });
}

std::int16_t CollectWindowOwnerPIDs(std::vector<DWORD>& Out_PID)
{
    return Collect<std::int16_t>(&WindowCollection::Processes, Out_PID, [] { EnumWindows(TakeOwner, 0); });
}

}  // namespace toolkit
