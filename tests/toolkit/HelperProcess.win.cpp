// HelperProcess on Windows: toolkit_helper.exe beside the test program, which says on its output when it is ready.
#include "tests/toolkit/HelperProcess.h"

#include "base/String.h"

#include <string>

namespace tests {

void HelperProcess::Start(const std::string& script)
{
    WCHAR own[MAX_PATH]{};
    GetModuleFileNameW(nullptr, own, MAX_PATH);
    base::String path(own);
    path.replace(path.rfind(L'\\') + 1, base::String::npos, L"toolkit_helper.exe");
    base::String line = L'"' + path + L"\" " + base::String(script.begin(), script.end());

    base::KernelHandle reading;
    base::KernelHandle writing;
    SECURITY_ATTRIBUTES inherited = {sizeof inherited, nullptr, TRUE};
    CreatePipe(reading.Receive(), writing.Receive(), &inherited, 0);
    SetHandleInformation(reading.Get(), HANDLE_FLAG_INHERIT, 0);
    STARTUPINFOW startup{};
    startup.cb = sizeof startup;
    startup.dwFlags = STARTF_USESTDHANDLES;
    startup.hStdOutput = writing.Get();
    PROCESS_INFORMATION started{};
    if (!CreateProcessW(path.c_str(), line.data(), nullptr, nullptr, TRUE, 0, nullptr, nullptr, &startup, &started))
        return;
    CloseHandle(started.hThread);
    process_.Reset(started.hProcess);
    // Without this end of its own, reading ends also when the helper does.
    writing.Reset();
    std::string said;
    char letter = 0;
    for (DWORD count = 0; ReadFile(reading.Get(), &letter, 1, &count, nullptr) && count == 1 && letter != '\n';)
        said += letter;
    thread_ = static_cast<DWORD>(std::stoul("0" + said));
}

}  // namespace tests
