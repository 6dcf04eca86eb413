#include "tests/app/UtilityScene.h"

#include "controls/RegisterControls.h"
#include "host/MessageLoop.h"
#include "platform/sim/Desktop.h"
#include "platform/sim/Registry.h"
#include "platform/sim/Volumes.h"
#include "tests/app/FreshCaches.h"

namespace tests {

using namespace platform;

namespace {

constexpr std::u16string_view runKey = u"SOFTWARE\\Microsoft\\Windows\\CurrentVersion\\Run";

}  // namespace

UtilityScene::UtilityScene() : pc(SimPc::Current()), agent(AgentProgram::Install(pc))
{
    ForgetCaches();
    The<Desktop>().AddIconResource(u"AAA");
    controls::RegisterControls(factory_);
    pc.OnPump([] { host::MessageLoop::RunPending(); });
}

UtilityScene::~UtilityScene()
{
    Close();
}

bool UtilityScene::Open()
{
    form_ = std::make_unique<app::Form1>();
    if (!form_->Load(app::Form1Text(), factory_))
        return false;
    form_->Show();
    pc.Settle();
    return form_->IsLoaded();
}

void UtilityScene::Close()
{
    if (form_)
        form_->Unload();
    form_.reset();
    ForgetCaches();
}

std::u16string UtilityScene::Disabled()
{
    std::u16string names;
    for (const host::Control* control : form_->Controls())
        if (!control->Enabled())
            names += (names.empty() ? u"" : u" ") + control->GetExtender().Name();
    return names;
}

void UtilityScene::Click(base::StringView name)
{
    // The agent's window may be in front, and two clicks on one spot in no time are a double click.
    SetForegroundWindow(form_->hWnd());
    pc.Advance(GetDoubleClickTime() + 1);
    The<Desktop>().Click(form_->Find(name)->hWnd(), 5, 5);
}

std::optional<std::string> UtilityScene::Settings(std::u16string_view path)
{
    return The<Volumes>().ReadFile(path);
}

void UtilityScene::WriteSettings(std::string_view bytes)
{
    The<Volumes>().WriteFile(u"C:\\Tools\\Velmora.ini", bytes);
}

std::optional<std::u16string> UtilityScene::AutoStart()
{
    return The<Registry>().GetText(HKEY_LOCAL_MACHINE, runKey, u"Velmora");
}

void UtilityScene::SetAutoStart(std::u16string_view text)
{
    The<Registry>().Set(HKEY_LOCAL_MACHINE, runKey, u"Velmora", TextValue(text));
}

}  // namespace tests
