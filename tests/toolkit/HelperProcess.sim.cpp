// HelperProcess on the stand-in PC: a scripted process there.
#include "tests/toolkit/HelperProcess.h"

#include "platform/sim/Desktop.h"
#include "platform/sim/Processes.h"
#include "tests/toolkit/TestWindows.h"

namespace tests {

namespace {

class Helper : public platform::Program {
public:
    explicit Helper(std::string script) : script_(std::move(script)) {}
    void Start() override { windows_.emplace().Make(script_); }

private:
    std::string script_;
    std::optional<TestWindows> windows_;
};

}  // namespace

void HelperProcess::Start(const std::string& script)
{
    platform::SimPc& pc = platform::SimPc::Current();
    auto& processes = pc.Get<platform::Processes>();
    constexpr const char16_t* path = u"C:\\Tools\\toolkit_helper.exe";
    processes.AddProgram(path, [&](DWORD) { return std::make_shared<Helper>(script); });
    const DWORD id = processes.Launch(path);
    process_.Reset(OpenProcess(PROCESS_ALL_ACCESS, FALSE, id));
    if (script.find("thread") != std::string::npos) {
        thread_ = processes.AddThread(id);
        processes.FindThread(thread_)->suspended = 1;
    }
    pc.Get<platform::Desktop>().OnQuit(
        [&processes](platform::Actor actor, int code) { processes.End(actor.process, static_cast<DWORD>(code)); });
    pc.Block(0);
}

}  // namespace tests
