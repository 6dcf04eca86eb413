// Processes: what runs on the stand-in PC, and the programs that it can start.
#pragma once

#include "platform/sim/SimPc.h"

#include <winbase.h>

#include <functional>
#include <map>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace platform {

/// What a program does once it runs. It acts as a process of its own; it ends when `Processes::End` is called for it.
class Program {
public:
    virtual ~Program() = default;
    /// Called as the new process, in the same millisecond in which it was started, after CreateProcessW has returned.
    virtual void Start() {}
};

struct Thread {
    DWORD id = 0;
    DWORD process = 0;
    DWORD suspended = 0;
    DWORD exitCode = STILL_ACTIVE;
    bool ended = false;  // the exit code does not tell: a thread may end with STILL_ACTIVE
};

struct Process {
    DWORD id = 0;
    std::u16string image;
    DWORD exitCode = STILL_ACTIVE;
    bool ended = false;  // the exit code does not tell, as with threads
    DWORD priority = NORMAL_PRIORITY_CLASS;
    DWORD_PTR affinity = 0;  // 0: all processors
    /// Whether it is a 32-bit process on a 64-bit Windows. The program's own answer is `Machine::Wow64`.
    bool wow64 = false;
    /// Another user's: only who has the debug privilege enabled may open it.
    bool guarded = false;
    /// TerminateProcess is refused with 5.
    bool ignoresTermination = false;
    /// Times that its working set was emptied.
    int trims = 0;
    SIZE_T workingSet = 0x500000;
    std::vector<std::u16string> modules;  // full paths, the image first
    std::vector<std::shared_ptr<Thread>> threads;
    std::shared_ptr<Program> program;

    [[nodiscard]] bool Runs() const { return !ended; }
    [[nodiscard]] Actor MainActor() const { return {id, threads.front()->id}; }
};

class Mutex;

class Processes : public Area {
public:
    explicit Processes(SimPc& pc);
    ~Processes() override;

    /// The program under test.
    [[nodiscard]] Process& Own() { return *own_; }
    /// It was started from another path; the file is put there.
    void OwnImage(std::u16string_view path);

    /// Makes an executable file that starts `make(processId)`.
    using Maker = std::function<std::shared_ptr<Program>(DWORD processId)>;
    void AddProgram(std::u16string_view path, Maker make);
    /// Somebody else starts a program; without one of that path, a process that does nothing. Its process id.
    DWORD Launch(std::u16string_view image);
    /// Ends a process: its windows are gone, waits for it end.
    void End(DWORD id, DWORD exitCode = 0);
    /// Another thread of a process; its id.
    DWORD AddThread(DWORD process);

    /// Ids in the order in which EnumProcesses gives them: 0 and 4 are the system's.
    [[nodiscard]] std::vector<DWORD> All() const;
    /// Running processes of an image, without regard to case.
    [[nodiscard]] std::vector<DWORD> Running(std::u16string_view image) const;
    /// A running process, or an ended one that somebody still holds open; null for anything else.
    [[nodiscard]] std::shared_ptr<Process> Find(DWORD id) const;
    [[nodiscard]] std::shared_ptr<Thread> FindThread(DWORD id) const;
    [[nodiscard]] bool IsRunning(DWORD id) const { return running_.contains(id); }
    /// The process that a window belongs to; null when there is no such window.
    [[nodiscard]] std::shared_ptr<Process> OfWindow(HWND window) const;

    /// What CreateProcessW was asked for, successful or not.
    struct Request {
        std::u16string commandLine, folder;
        DWORD flags = 0, startupFlags = 0;
        WORD showWindow = 0;
        bool inheritHandles = false;
        DWORD processId = 0;  // 0: it failed
    };
    [[nodiscard]] const std::vector<Request>& Requests() const { return requests_; }
    void AddRequest(Request request) { requests_.push_back(std::move(request)); }

    /// Another program holds a named mutex, or lets it go.
    void HoldMutex(std::u16string_view name);
    void ReleaseHeldMutex(std::u16string_view name);

private:
    DWORD nextId_ = 4300;
    std::map<DWORD, std::shared_ptr<Process>> running_;
    std::map<DWORD, std::weak_ptr<Process>> ended_;
    std::shared_ptr<Process> own_;
    std::map<std::u16string, Maker> makers_;  // by upper-cased path
    std::vector<Request> requests_;
    std::map<std::u16string, std::shared_ptr<Mutex>> held_;
};

}  // namespace platform
