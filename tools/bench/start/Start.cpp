// The start of two programs, one after the other and again: from CreateProcessW to the window that answers, and to the first rest.
#include <windows.h>

#include <algorithm>
#include <cstdio>
#include <string>
#include <vector>

namespace {

struct Program {
    const char* name;
    const WCHAR* variable;
    const WCHAR* windowClass;
    std::vector<double> shown{}, idle{};
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
    STARTUPINFOW startup{};
    startup.cb = sizeof startup;
    PROCESS_INFORMATION process{};
    const double begin = Milliseconds();
    if (!CreateProcessW(exe.c_str(), nullptr, nullptr, nullptr, FALSE, 0, nullptr, folder.c_str(), &startup, &process)) {
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
                          {"utility", TEXT("VELMORA_UTILITY"), TEXT("VelmoraForm")}};
    for (int round = 0; round < 21; ++round)
        for (Program& program : programs)
            if (!Run(program))
                return 1;
    for (Program& program : programs) {
        // The first one warms up the disk.
        program.shown.erase(program.shown.begin());
        program.idle.erase(program.idle.begin());
        std::printf("%-12s shown %6.0f ms, idle %6.0f ms (median of %zu)\n", program.name, Median(program.shown), Median(program.idle),
                    program.shown.size());
    }
    std::printf("ratio        shown %6.2f,    idle %6.2f\n", Median(programs[1].shown) / Median(programs[0].shown),
                Median(programs[1].idle) / Median(programs[0].idle));
    return 0;
}
