#include "tools/bench/Bench.h"

#include "toolkit/TaskManLight.h"
#include "tools/bench/Faces.h"

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <functional>
#include <limits>
#include <vector>

namespace bench {

namespace {

constexpr int few = 1'000;
constexpr int many = 10'000;

BOOL CALLBACK Pass(HWND, LPARAM)
{
    return TRUE;
}

BOOL CALLBACK LookInside(HWND window, LPARAM)
{
    EnumChildWindows(window, Pass, 0);
    return TRUE;
}

BOOL CALLBACK SearchInside(HWND window, LPARAM)
{
    FindWindowExA(window, nullptr, nullptr, "no window of this title");
    return TRUE;
}

/// Microseconds of a member, and of the enumeration that it can't do without.
struct Times {
    double member = std::numeric_limits<double>::max(), bare = std::numeric_limits<double>::max();
};

struct Member {
    const char* name;
    WNDENUMPROC bare;
    std::function<void()> use;
    Times few = {}, many = {};
};

/// The shortest of the runs of one second: other programs only ever make a run longer. Both take turns, so that both meet the same ones.
Times Time(const Member& member)
{
    using Clock = std::chrono::steady_clock;
    const auto time = [](auto&& use, double& best) {
        const auto start = Clock::now();
        use();
        best = std::min(best, std::chrono::duration<double, std::micro>(Clock::now() - start).count());
    };
    Times times;
    for (const auto end = Clock::now() + std::chrono::seconds(1); Clock::now() < end;) {
        time([&] { EnumWindows(member.bare, 0); }, times.bare);
        time(member.use, times.member);
    }
    return times;
}

/// Untitled windows, so that a search for a title or a main window sees them all.
void Fill(std::vector<HWND>& windows, std::size_t count)
{
    while (windows.size() < count) {
        const HWND window = CreateWindowExW(0, TEXT("Static"), TEXT(""), WS_POPUP, 0, 0, 1, 1, nullptr, nullptr, nullptr, nullptr);
        if (!window)
            return;
        windows.push_back(window);
    }
}

}  // namespace

int Run(std::string_view only)
{
    TimeFaces();
    if (only == "faces")
        return 0;
    std::printf("\n");
    const toolkit::TaskManLight tools;
    const DWORD own = tools.GetMyPID();
    std::vector<HWND> list;
    std::vector<DWORD> ids;
    Member members[] = {
        {"GetAllHWnd", LookInside, [&] { tools.GetAllHWnd(list); }},
        {"GetHWndFromPID", LookInside, [&] { tools.GetHWndFromPID(own, list); }},
        {"GetMainWindowsHWndFromPID", Pass, [&] { tools.GetMainWindowsHWndFromPID(own, list); }},
        {"GetMainWindowFromPID", Pass, [&] { tools.GetMainWindowFromPID(own); }},
        {"FindHWndByCaption", SearchInside, [&] { tools.FindHWndByCaption(TEXT("no window of this title"), false); }},
        {"GetHWndByCaptionCount", SearchInside, [&] { tools.GetHWndByCaptionCount(TEXT("no window of this title"), false); }},
        {"GetAllInstancesPIDsByPID", Pass, [&] { tools.GetAllInstancesPIDsByPID(own, ids, true); }},
    };
    std::vector<HWND> windows;
    Fill(windows, few);
    for (Member& member : members)
        member.few = Time(member);
    Fill(windows, many);
    for (Member& member : members)
        member.many = Time(member);

    std::printf("%-28s%30s%30s%18s\n", "", "1,000 windows", "10,000 windows", "growth, 10 linear");
    std::printf("%-28s%10s%10s%10s%10s%10s%10s%9s%9s\n", "", "us", "bare", "times", "us", "bare", "times", "member", "bare");
    for (const auto& [name, callback, use, one, ten] : members)
        std::printf("%-28s%10.0f%10.0f%10.1f%10.0f%10.0f%10.1f%9.1f%9.1f\n", name, one.member, one.bare, one.member / one.bare, ten.member,
                    ten.bare, ten.member / ten.bare, ten.member / one.member, ten.bare / one.bare);
    if (windows.size() < many)
        std::printf("(Windows gave only %zu windows)\n", windows.size());
    while (!windows.empty()) {
        DestroyWindow(windows.back());
        windows.pop_back();
    }
    return 0;
}

}  // namespace bench
