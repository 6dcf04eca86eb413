#include "platform/sim/AgentProgram.h"

#include "platform/sim/Desktop.h"
#include "platform/src/window/Inner.h"

namespace platform {

namespace {

constexpr const WCHAR* kClassName = u"VelmoraAgent";

/// The agent's window class, made once a PC.
class AgentClass : public Area {
public:
    explicit AgentClass(SimPc& pc) : Area(pc) {}
    void Require(WNDPROC procedure)
    {
        if (!made_)
            pc_.Get<Desktop>().RegisterSystemClass(kClassName, procedure, 0, 0);
        made_ = true;
    }

private:
    bool made_ = false;
};

}  // namespace

std::shared_ptr<AgentHabits> AgentProgram::Install(SimPc& pc, std::u16string_view path)
{
    auto habits = std::make_shared<AgentHabits>();
    pc.Get<Processes>().AddProgram(path, [&pc, habits](DWORD processId) { return std::make_shared<AgentProgram>(pc, processId, habits); });
    return habits;
}

AgentProgram::AgentProgram(SimPc& pc, DWORD processId, std::shared_ptr<AgentHabits> habits)
    : pc_(pc), processId_(processId), habits_(std::move(habits))
{
}

void AgentProgram::Start()
{
    pc_.Clock().Schedule(habits_->windowDelay, [this, process = pc_.Get<Processes>().Find(processId_)] {
        if (process->Runs())
            pc_.ActAs(process->MainActor(), [this] { OpenWindows(); });
    });
}

void AgentProgram::OpenWindows()
{
    pc_.Get<AgentClass>().Require(&AgentProgram::Procedure);
    const std::u16string identification(kIdentification);
    const HWND main = inner::CreateWindowEx(0, kClassName, habits_->mainTitle.c_str(), WS_OVERLAPPEDWINDOW | WS_VISIBLE, 60, 60, 300, 200,
                                            nullptr, nullptr, nullptr, this);
    // The identification window belongs to the main one, so that it is never taken for the main window itself.
    inner::CreateWindowEx(0, kClassName, identification.c_str(), WS_POPUP, 0, 0, 1, 1, main, nullptr, nullptr, this);
}

LRESULT CALLBACK AgentProgram::Procedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam)
{
    if (message != WM_CLOSE)
        return inner::DefWindowProc(window, message, wParam, lParam);
    Processes& processes = SimPc::Current().Get<Processes>();
    const auto process = processes.OfWindow(window);
    const auto* const agent = dynamic_cast<const AgentProgram*>(process->program.get());
    // Only the main window ends the agent, as the real one's hidden identification window does not handle closing.
    if (agent && !agent->habits_->ignoresClose && inner::GetText(window) != kIdentification)
        processes.End(process->id);
    return 0;
}

}  // namespace platform
