#include "toolkit/WinMngHLP.h"

#include <algorithm>
#include <new>
#include <utility>

namespace toolkit {

namespace {

/// A list that grows by `Step` slots at a time. The vector behind it takes memory in ever larger pieces, so adding stays linear.
template <class Element, std::size_t Step>
class GrowingList {
public:
    void Start()
    {
        count_ = 0;
        whole_ = true;
        slots_.resize(1);
    }
    /// The callbacks run above Windows' own frames, which no exception may cross: without memory the list is not whole, and none is added.
    void Add(Element element) noexcept
    try {
        if (whole_ && count_ == slots_.size())
            slots_.resize(slots_.size() + Step);
        if (whole_)
            slots_[count_++] = element;
    } catch (const std::bad_alloc&) {
        whole_ = false;
    }
    [[nodiscard]] bool Whole() const { return whole_; }
    [[nodiscard]] bool Holds(Element element) const
    {
        const auto end = slots_.begin() + static_cast<std::ptrdiff_t>(count_);
        return std::find(slots_.begin(), end, element) != end;
    }
    /// Gives away the elements, without the slots that were not used, and keeps nothing.
    std::vector<Element> HandOver()
    {
        slots_.resize(count_);
        return std::exchange(slots_, {});
    }

private:
    std::vector<Element> slots_;
    std::size_t count_ = 0;
    bool whole_ = true;
};

/// The one collection that can run at a time; the callbacks write it.
struct Collection {
    std::uint8_t Busy = 0;
    GrowingList<HWND, 10> Windows;
    GrowingList<DWORD, 1> Processes;
};
Collection current;

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
    current.Windows.Add(window);
    return TRUE;
}

BOOL CALLBACK TakeTopLevel(HWND window, LPARAM process)
{
    if (Belongs(window, process))
        current.Windows.Add(window);
    return TRUE;
}

BOOL CALLBACK TakeWithDescendants(HWND window, LPARAM process)
{
    if (Belongs(window, process)) {
        current.Windows.Add(window);
        EnumChildWindows(window, TakeChild, 0);
    }
    return TRUE;
}

BOOL CALLBACK TakeOwner(HWND window, LPARAM)
{
    if (const DWORD process = OwnerOf(window); !current.Processes.Holds(process))
        current.Processes.Add(process);
    return TRUE;
}

template <class Count, class List, class Element, class Enumerate>
Count Collect(List& list, std::vector<Element>& output, Enumerate enumerate)
{
    if (current.Busy)
        return -1;
    struct BusyWhile {
        BusyWhile() { current.Busy = 1; }
        ~BusyWhile() { current.Busy = 0; }
    } const busy;
    try {
        list.Start();
        enumerate();
        std::vector<Element> elements = list.HandOver();
        if (!list.Whole())
            return -1;
        output = std::move(elements);
        return static_cast<Count>(output.size());
    } catch (const std::bad_alloc&) {
        return -1;
    }
}

std::int32_t CollectTopLevel(WNDENUMPROC take, DWORD process, std::vector<HWND>& output)
{
    return Collect<std::int32_t>(current.Windows, output, [&] { EnumWindows(take, static_cast<LPARAM>(process)); });
}

}  // namespace

std::int32_t CollectProcessWindows(DWORD In_PID, std::vector<HWND>& Out_hWnd)
{
    return CollectTopLevel(TakeWithDescendants, In_PID, Out_hWnd);
}

std::int32_t CollectChildWindows(HWND In_Parent, std::vector<HWND>& Out_hWnd)
{
    return Collect<std::int32_t>(current.Windows, Out_hWnd, [&] { EnumChildWindows(In_Parent, TakeChild, 0); });
}

std::int32_t CollectTopLevelWindows(DWORD In_PID, std::vector<HWND>& Out_hWnd)
{
    return CollectTopLevel(TakeTopLevel, In_PID, Out_hWnd);
}

std::int16_t CollectWindowOwnerPIDs(std::vector<DWORD>& Out_PID)
{
    return Collect<std::int16_t>(current.Processes, Out_PID, [] { EnumWindows(TakeOwner, 0); });
}

}  // namespace toolkit
