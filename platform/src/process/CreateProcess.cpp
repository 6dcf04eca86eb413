// Starting processes. https://learn.microsoft.com/windows/win32/api/processthreadsapi/nf-processthreadsapi-createprocessw
#include "platform/sim/Volumes.h"
#include "platform/src/core/Gate.h"
#include "platform/src/process/CommandLine.h"
#include "platform/src/process/ProcessHandle.h"
#include "platform/src/text/Buffers.h"

#include <windows.h>

using namespace platform;

namespace {

constexpr DWORD kPriorityFlags = NORMAL_PRIORITY_CLASS | IDLE_PRIORITY_CLASS | HIGH_PRIORITY_CLASS | REALTIME_PRIORITY_CLASS |
                                 BELOW_NORMAL_PRIORITY_CLASS | ABOVE_NORMAL_PRIORITY_CLASS;

/// Why no executable was found: a missing folder is told apart from a missing file.
DWORD WhyMissing(Volumes& volumes, std::u16string_view commandLine)
{
    const bool quoted = commandLine.starts_with(u'"');
    const std::u16string_view name = quoted ? commandLine.substr(1, commandLine.find(u'"', 1) - 1) : commandLine;
    const std::size_t slash = name.rfind(u'\\');
    if (slash == std::u16string_view::npos || volumes.IsFolder(name.substr(0, slash + 1)))
        return ERROR_FILE_NOT_FOUND;
    return ERROR_PATH_NOT_FOUND;
}

}  // namespace

BOOL WINAPI CreateProcessW(LPCWSTR application, LPWSTR commandLine, LPSECURITY_ATTRIBUTES, LPSECURITY_ATTRIBUTES, BOOL inheritHandles,
                           DWORD flags, LPVOID environment, LPCWSTR folder, LPSTARTUPINFOW startup, LPPROCESS_INFORMATION information)
{
    SIM_CALL(FALSE, ERROR_ACCESS_DENIED, application, commandLine, inheritHandles, flags, folder);
    SimPc& pc = SimPc::Current();
    if (environment || (!application && !commandLine) || (flags & CREATE_SUSPENDED) != 0) {
        pc.Unsupported("CreateProcessW with an environment, without any name, or suspended");
        return FALSE;
    }
    Processes& processes = pc.Get<Processes>();
    Volumes& volumes = pc.Get<Volumes>();
    Processes::Request request{std::u16string(OrEmpty(commandLine)),
                               std::u16string(OrEmpty(folder)),
                               flags,
                               startup->dwFlags,
                               startup->wShowWindow,
                               inheritHandles != FALSE};
    const auto exists = [&](std::u16string_view path) { return volumes.IsFile(path); };
    const std::u16string_view wanted = application ? application : commandLine;
    const std::u16string image =
        application ? (exists(application) ? std::u16string(application) : std::u16string()) : ExecutableOf(wanted, exists);
    DWORD error = NO_ERROR;
    if (image.empty())
        error = WhyMissing(volumes, wanted);
    else if (folder && !volumes.IsFolder(folder))
        error = ERROR_DIRECTORY;
    else if (!volumes.Allows(image, FILE_EXECUTE))
        error = ERROR_ACCESS_DENIED;
    if (error != NO_ERROR) {
        processes.AddRequest(std::move(request));
        return pc.Fail(error, FALSE);
    }

    const auto process = processes.Find(processes.Launch(image));
    if ((flags & kPriorityFlags) != 0)
        process->priority = flags & kPriorityFlags;
    request.processId = process->id;
    processes.AddRequest(std::move(request));
    *information = {OpenHandle(pc, std::make_shared<ProcessHandle>(PROCESS_ALL_ACCESS, process)),
                    OpenHandle(pc, std::make_shared<ThreadHandle>(THREAD_ALL_ACCESS, process->threads.front())), process->id,
                    process->threads.front()->id};
    return TRUE;
}
