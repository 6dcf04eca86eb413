#include "platform/sim/Processes.h"

#include "platform/sim/Volumes.h"
#include "platform/src/behaviour/Inner.h"
#include "platform/src/message/MessageQueues.h"
#include "platform/src/process/Mutex.h"
#include "platform/src/text/Case.h"

#include <algorithm>

namespace platform {

namespace {

constexpr DWORD kIdleProcess = 0;
constexpr DWORD kSystemProcess = 4;
constexpr DWORD kStep = 100;

std::shared_ptr<Process> MakeProcess(DWORD id, std::u16string_view image)
{
    auto process = std::make_shared<Process>();
    process->id = id;
    process->image = image;
    process->modules = {std::u16string(image), u"C:\\Windows\\System32\\ntdll.dll", u"C:\\Windows\\System32\\kernel32.dll"};
    process->threads.push_back(std::make_shared<Thread>(Thread{id + 4, id}));
    return process;
}

}  // namespace

Processes::Processes(SimPc& pc) : Area(pc)
{
    const Actor own = SimPc::Own();
    own_ = MakeProcess(own.process, pc.Program());
    own_->threads.front()->id = own.thread;
    running_[own.process] = own_;
}

Processes::~Processes() = default;

void Processes::OwnImage(std::u16string_view path)
{
    own_->image = path;
    own_->modules.front() = path;
    pc_.Get<Volumes>().WriteFile(path, "MZ");
}

void Processes::AddProgram(std::u16string_view path, Maker make)
{
    makers_[UpperCase(path)] = std::move(make);
    pc_.Get<Volumes>().WriteFile(path, "MZ");
}

DWORD Processes::Launch(std::u16string_view image)
{
    const DWORD id = nextId_;
    nextId_ += kStep;
    const auto process = MakeProcess(id, image);
    running_[id] = process;
    const auto maker = makers_.find(UpperCase(image));
    if (maker != makers_.end()) {
        process->program = maker->second(id);
        pc_.Clock().Schedule(0, [this, process] {
            if (process->Runs())
                pc_.ActAs(process->MainActor(), [&] { process->program->Start(); });
        });
    }
    return id;
}

void Processes::End(DWORD id, DWORD exitCode)
{
    const auto found = running_.find(id);
    if (found == running_.end())
        return;
    const std::shared_ptr<Process> process = found->second;
    process->exitCode = exitCode;
    process->ended = true;
    for (const auto& thread : process->threads) {
        thread->exitCode = exitCode;
        thread->ended = true;
    }
    running_.erase(found);
    ended_[id] = process;
    pc_.ActAs(process->MainActor(), [&] {
        for (const WindowPtr& window : Tree().All())
            if (window->actor.process == id)
                inner::DestroyWindow(window->handle);
    });
    pc_.Get<MessageQueues>().Forget(id);
}

DWORD Processes::AddThread(DWORD process)
{
    const auto found = Find(process);
    const DWORD id = found->threads.back()->id + 4;
    found->threads.push_back(std::make_shared<Thread>(Thread{id, process}));
    return id;
}

std::vector<DWORD> Processes::All() const
{
    std::vector<DWORD> ids{kIdleProcess, kSystemProcess};
    for (const auto& entry : running_)
        ids.push_back(entry.first);
    return ids;
}

std::vector<DWORD> Processes::Running(std::u16string_view image) const
{
    std::vector<DWORD> ids;
    for (const auto& [id, process] : running_) {
        if (SameName(process->image, image))
            ids.push_back(id);
    }
    return ids;
}

std::shared_ptr<Process> Processes::Find(DWORD id) const
{
    const auto found = running_.find(id);
    if (found != running_.end())
        return found->second;
    const auto gone = ended_.find(id);
    return gone == ended_.end() ? nullptr : gone->second.lock();
}

std::shared_ptr<Thread> Processes::FindThread(DWORD id) const
{
    for (const auto& entry : running_) {
        const auto& threads = entry.second->threads;
        const auto found = std::find_if(threads.begin(), threads.end(), [&](const auto& thread) { return thread->id == id; });
        if (found != threads.end())
            return *found;
    }
    return nullptr;
}

std::shared_ptr<Process> Processes::OfWindow(HWND window) const
{
    const WindowPtr found = WindowOf(window);
    return found ? Find(found->actor.process) : nullptr;
}

void Processes::HoldMutex(std::u16string_view name)
{
    bool existed = false;
    held_[std::u16string(name)] = pc_.Get<Mutexes>().Open(name, existed);
}

void Processes::ReleaseHeldMutex(std::u16string_view name)
{
    held_.erase(std::u16string(name));
}

}  // namespace platform
