#include "tools/desk/Scene.h"

#include "platform/sim/MessageBoxes.h"
#include "platform/sim/Processes.h"
#include "platform/sim/Registry.h"
#include "platform/sim/Services.h"
#include "platform/sim/Volumes.h"
#include "tests/support/AgentProgram.h"

namespace desk {

namespace {

constexpr std::u16string_view settingsFile = u"C:\\Tools\\Velmora.ini";
constexpr std::u16string_view runKey = u"SOFTWARE\\Microsoft\\Windows\\CurrentVersion\\Run";

std::string Utf8(std::u16string_view text)
{
    std::string utf8;
    for (const char16_t unit : text) {
        if (unit < 0x80)
            utf8 += static_cast<char>(unit);
        else if (unit < 0x800)
            utf8.append({static_cast<char>(0xC0 | unit >> 6), static_cast<char>(0x80 | (unit & 0x3F))});
        else
            utf8.append({static_cast<char>(0xE0 | unit >> 12), static_cast<char>(0x80 | (unit >> 6 & 0x3F)),
                         static_cast<char>(0x80 | (unit & 0x3F))});
    }
    return utf8;
}

std::string DescribeServices(platform::SimPc& pc)
{
    static constexpr const char* states[] = {"unknown", "stopped", "starting", "stopping", "running", "continuing", "pausing", "paused"};
    static constexpr const char* starts[] = {"boot", "system", "automatic", "manual", "disabled"};
    const platform::Service* const service = pc.Get<platform::Services>().Find(u"Velmora");
    if (!service)
        return "no service Velmora\n";
    return "service Velmora: " + std::string(states[service->state]) + ", " + starts[service->startType] + ", " + Utf8(service->path) +
           ", " + Utf8(service->account) + "\n";
}

std::string DescribeRegistry(platform::SimPc& pc)
{
    const auto value = pc.Get<platform::Registry>().GetText(HKEY_LOCAL_MACHINE, runKey, u"Velmora");
    return value ? "Run\\Velmora = " + Utf8(*value) + "\n" : "no value Run\\Velmora\n";
}

std::string DescribeProcesses(platform::SimPc& pc)
{
    std::string text;
    auto& processes = pc.Get<platform::Processes>();
    for (const DWORD id : processes.All())
        if (const auto process = processes.Find(id))
            text += std::to_string(id) + " " + Utf8(process->image) + "\n";
    return text;
}

std::string DescribeMessages(platform::SimPc& pc)
{
    std::string text;
    for (const auto& box : pc.Get<platform::MessageBoxes>().All())
        text += Utf8(box.caption) + ": " + Utf8(box.text) + "\n";
    return text.empty() ? "no message boxes\n" : text;
}

}  // namespace

void Prepare(platform::SimPc& pc)
{
    tests::AgentProgram::Install(pc);
    pc.Get<platform::Services>().DefaultTimes(1500, 1500);
}

std::string Describe(platform::SimPc& pc, const std::string& what)
{
    if (what == "services")
        return DescribeServices(pc);
    if (what == "registry")
        return DescribeRegistry(pc);
    if (what == "processes")
        return DescribeProcesses(pc);
    if (what == "messages")
        return DescribeMessages(pc);
    if (what == "settings")
        return pc.Get<platform::Volumes>().ReadFile(settingsFile).value_or("no settings file") + "\n";
    return {};
}

}  // namespace desk
