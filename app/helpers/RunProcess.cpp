#include "app/helpers/RunProcess.h"

#include "app/helpers/Paths.h"
#include "base/Handles.h"
#include "base/PendingMessages.h"

#include <shlwapi.h>

#include <algorithm>

namespace helpers {

using base::String;
using base::StringView;

namespace {

/// Lets one of the shell's path functions work on the text in a buffer of the size that they all assume.
template <class PathFunction>
String Edited(const String& path, PathFunction function)
{
    String buffer = path;
    buffer.resize(std::max<std::size_t>(path.size() + 3, MAX_PATH));
    function(buffer.data());
    return base::UpToZero(buffer);
}

/// PathQuoteSpacesW leaves a path as it is when the quotes would make it longer than MAX_PATH.
String Quoted(const String& path)
{
    const String quoted = Edited(path, PathQuoteSpacesW);
    return quoted == path && path.find(TEXT(' ')) != String::npos ? TEXT('"') + path + TEXT('"') : quoted;
}

void WaitForEnd(HANDLE process)
{
    for (;;) {
        const DWORD result = MsgWaitForMultipleObjects(1, &process, FALSE, INFINITE, QS_ALLINPUT);
        if (result == WAIT_OBJECT_0 || result == WAIT_FAILED)
            return;
        if (result != WAIT_TIMEOUT)
            PumpMessages(false);
    }
}

}  // namespace

DWORD RunProcess(StringView path, StringView arguments, bool wait, bool showNormally, DWORD flags, DWORD* error)
{
    const String program = Edited(base::Trim(path), PathUnquoteSpacesW);
    const auto fail = [error](DWORD reason) -> DWORD {
        if (error)
            *error = reason;
        return 0;
    };
    if (program.empty() || !FileExists(program))
        return fail(ERROR_FILE_NOT_FOUND);
    const String folder = GetFolderFromPath(program);
    String commandLine = Quoted(program);
    if (const String trimmed = base::Trim(arguments); !trimmed.empty())
        commandLine += TEXT(' ') + trimmed;

    STARTUPINFOW startup{};
    startup.cb = sizeof startup;
    startup.dwFlags = STARTF_USESHOWWINDOW;
    startup.wShowWindow = showNormally ? SW_SHOWNORMAL : SW_HIDE;
    PROCESS_INFORMATION started{};
    // CreateProcessW writes into the command line while it looks for the program's name in it.
    if (!CreateProcessW(nullptr, commandLine.data(), nullptr, nullptr, TRUE, flags, nullptr, folder.c_str(), &startup, &started))
        return fail(GetLastError());
    const base::KernelHandle process(started.hProcess);
    const base::KernelHandle thread(started.hThread);
    if (wait)
        WaitForEnd(process.Get());
    return started.dwProcessId;
}

void PumpMessages(bool waitFirst)
{
    if (waitFirst)
        WaitMessage();
    if (GetQueueStatus(QS_ALLINPUT))
        base::DispatchPendingMessages();
}

}  // namespace helpers
