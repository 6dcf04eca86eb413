#include "tests/support/AgentProgram.h"

#include "platform/sim/Desktop.h"

namespace tests {

using platform::Processes;
using platform::SimPc;

namespace {

constexpr const WCHAR* className = u"VelmoraAgent";
constexpr const WCHAR* identification = u"VELMORA-IDENTIFICATION-WINDOW";

}  // namespace

std::shared_ptr<AgentHabits> AgentProgram::Install(SimPc& pc)
{
    auto habits = std::make_shared<AgentHabits>();
    pc.Get<Processes>().AddProgram(u"C:\\Tools\\Velmora.exe",
                                   [&pc, habits](DWORD processId) { return std::make_shared<AgentProgram>(pc, processId, habits); });
    return habits;
}

AgentProgram::AgentProgram(SimPc& pc, DWORD processId, std::shared_ptr<AgentHabits> habits)
    : pc_(pc), processId_(processId), habits_(std::move(habits))
{
}

void AgentProgram::Start()
{
    pc_.Clock().Schedule(500, [this, process = pc_.Get<Processes>().Find(processId_)] {
        if (process->Runs())
            pc_.ActAs(process->MainActor(), [this] { OpenWindows(); });
    });
}

void AgentProgram::OpenWindows()
{
    WNDCLASSEXW windowClass{};
    windowClass.cbSize = sizeof windowClass;
    windowClass.lpfnWndProc = &AgentProgram::Procedure;
    windowClass.lpszClassName = className;
    RegisterClassExW(&windowClass);
    const HWND main = CreateWindowExW(0, className, TEXT("Velmora"), WS_OVERLAPPEDWINDOW | WS_VISIBLE, 60, 60, 300, 200, nullptr, nullptr,
                                      nullptr, nullptr);
    // The identification window belongs to the main one, so that it is never taken for the main window itself.
    CreateWindowExW(0, className, identification, WS_POPUP, 0, 0, 1, 1, main, nullptr, nullptr, nullptr);
}

LRESULT CALLBACK AgentProgram::Procedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam)
{
    if (message != WM_CLOSE)
        return DefWindowProcW(window, message, wParam, lParam);
    SimPc& pc = SimPc::Current();
    Processes& processes = pc.Get<Processes>();
    const auto process = processes.OfWindow(window);
    const auto* const agent = dynamic_cast<const AgentProgram*>(process->program.get());
    // Only the main window ends the agent, as the real one's hidden identification window does not handle closing.
    if (agent && !agent->habits_->ignoresClose && pc.Get<platform::Desktop>().Text(window) != identification)
        processes.End(process->id);
    return 0;
}

}  // namespace tests
