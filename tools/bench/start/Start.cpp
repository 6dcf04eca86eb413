// The start of some programs, one after the other and again: from CreateProcessW to the window that answers, and to the first rest; and how
// much memory that took.
#include <windows.h>

#include <psapi.h>

#include <algorithm>
#include <cstdio>
#include <iterator>
#include <string>
#include <vector>

namespace {

struct Program {
    const char* name;
    const WCHAR* variable;
    const WCHAR* windowClass;
    const WCHAR* argument = TEXT("");
    std::vector<double> shown{}, idle{}, megabytes{};
};

double Milliseconds()
{
    LARGE_INTEGER count, frequency;
    QueryPerformanceCounter(&count);
    QueryPerformanceFrequency(&frequency);
    return 1000.0 * static_cast<double>(count.QuadPart) / static_cast<double>(frequency.QuadPart);
}

bool Run(Program& program)
{
    WCHAR path[MAX_PATH]{};
    GetEnvironmentVariableW(program.variable, path, MAX_PATH);
    std::wstring exe = (path[0] == L'/' ? L"Z:" : L"") + std::wstring(path);
    std::replace(exe.begin(), exe.end(), L'/', L'\\');
    const std::wstring folder = exe.substr(0, exe.rfind(L'\\'));
    std::wstring commandLine = TEXT('"') + exe + TEXT("\" ") + program.argument;
    STARTUPINFOW startup{};
    startup.cb = sizeof startup;
    PROCESS_INFORMATION process{};
    const double begin = Milliseconds();
    if (!CreateProcessW(exe.c_str(), commandLine.data(), nullptr, nullptr, FALSE, 0, nullptr, folder.c_str(), &startup, &process)) {
        std::printf("%s does not start: %lu\n", program.name, GetLastError());
        return false;
    }
    HWND window = nullptr;
    while (!(window = FindWindowW(program.windowClass, nullptr)) || !IsWindowVisible(window)) {
        if (Milliseconds() - begin > 30'000) {
            std::printf("%s shows no window\n", program.name);
            return false;
        }
        Sleep(1);
    }
    SendMessageW(window, WM_NULL, 0, 0);
    program.shown.push_back(Milliseconds() - begin);
    WaitForInputIdle(process.hProcess, 30'000);
    program.idle.push_back(Milliseconds() - begin);
    PROCESS_MEMORY_COUNTERS memory{};
    GetProcessMemoryInfo(process.hProcess, &memory, sizeof memory);
    program.megabytes.push_back(static_cast<double>(memory.PeakWorkingSetSize) / 1'048'576);
    PostMessageW(window, WM_CLOSE, 0, 0);
    WaitForSingleObject(process.hProcess, 30'000);
    CloseHandle(process.hThread);
    CloseHandle(process.hProcess);
    return true;
}

double Median(std::vector<double> times)
{
    std::sort(times.begin(), times.end());
    return times[times.size() / 2];
}

}  // namespace

int main()
{
    Program programs[] = {{"bare window", TEXT("VELMORA_BARE"), TEXT("BareWindow")},
                          {"its windows", TEXT("VELMORA_BARE"), TEXT("BareWindow"), TEXT("windows")},
                          {"utility", TEXT("VELMORA_UTILITY"), TEXT("VelmoraForm")}};
    for (int round = 0; round < 21; ++round)
        for (Program& program : programs)
            if (!Run(program))
                return 1;
    for (Program& program : programs) {
        // The first one warms up the disk.
        program.shown.erase(program.shown.begin());
        program.idle.erase(program.idle.begin());
        std::printf("%-12s shown %6.0f ms, idle %6.0f ms, at most %.1f MB in memory (median of %zu)\n", program.name, Median(program.shown),
                    Median(program.idle), Median(program.megabytes), program.shown.size());
    }
    for (int other = 1; other < std::ssize(programs); ++other)
        std::printf("%-12s shown %6.2f,    idle %6.2f times the bare window\n", programs[other].name,
                    Median(programs[other].shown) / Median(programs[0].shown), Median(programs[other].idle) / Median(programs[0].idle));
    return 0;
}
