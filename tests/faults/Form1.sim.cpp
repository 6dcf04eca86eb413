// The utility while one Windows call after another fails: it neither crashes nor leaks, and the settings file stays whole.
#include "platform/sim/Services.h"
#include "tests/app/UtilityScene.h"
#include "tests/support/FaultSweep.h"

#include <gtest/gtest.h>

using tests::FaultSweep;
using tests::UtilityScene;

namespace {

constexpr const char* before = "[Other]\r\nx=1\r\n[Settings]\r\nPwd=AZg==\r\n";
constexpr const char* after = "[Other]\r\nx=1\r\n[Settings]\r\nPwd=AYWJj\r\n";

/// Sweeps what is done to the utility; its settings are whole at the end of each run.
void Sweep(const std::function<void(UtilityScene& scene, const std::function<void()>& arm)>& act)
{
    FaultSweep([&](const auto& arm) {
        UtilityScene scene;
        scene.WriteSettings(before);
        act(scene, arm);
        scene.Close();
        const auto settings = scene.Settings();
        EXPECT_TRUE(settings == before || settings == after) << settings.value_or("no file");
    });
}

/// One call fails, so of two looks at the machine one shows what is there.
void ExpectSoon(UtilityScene& scene, const std::function<bool()>& isTrue)
{
    scene.pc.Advance(2000);
    if (!isTrue())
        scene.pc.Advance(2000);
    EXPECT_TRUE(isTrue());
}

void ExpectTruePanel(UtilityScene& scene)
{
    ExpectSoon(scene, [&] {
        const bool isInstalled = scene.The<platform::Services>().Find(u"Velmora") != nullptr;
        return scene.Button(TEXT("cmdInstall")).Caption() == (isInstalled ? TEXT("Uninstall Service") : TEXT("Install Service")) &&
               scene.Enabled(TEXT("ComboStartup")) != isInstalled;
    });
}

TEST(Form1Faults, Start)
{
    Sweep([](UtilityScene& scene, const auto& arm) {
        scene.The<platform::Services>().Install(u"Velmora", u"C:\\Tools\\Velmora.exe");
        arm();
        if (scene.Open())
            ExpectTruePanel(scene);
    });
}

TEST(Form1Faults, Ticks)
{
    Sweep([](UtilityScene& scene, const auto& arm) {
        scene.The<platform::Services>().Install(u"Velmora", u"C:\\Tools\\Velmora.exe");
        ASSERT_TRUE(scene.Open());
        arm();
        ExpectSoon(scene, [&] {
            return scene.Button(TEXT("cmdInstall")).Caption() == TEXT("Uninstall Service") && scene.Enabled(TEXT("cmdInstall")) &&
                   scene.Enabled(TEXT("cmdStart")) && scene.Enabled(TEXT("CommandStartVelmora")) && !scene.Enabled(TEXT("ComboStartup")) &&
                   !scene.Enabled(TEXT("CommandCloseVelmora"));
        });
    });
}

TEST(Form1Faults, Ok)
{
    Sweep([](UtilityScene& scene, const auto& arm) {
        ASSERT_TRUE(scene.Open());
        scene.Text(TEXT("TextPassword")).Text(TEXT("abc"));
        scene.Check(TEXT("CheckAutoStart")).Value(1);
        arm();
        scene.Button(TEXT("CommandOk")).Click.Raise();
        EXPECT_FALSE(scene.IsOpen());
    });
}

TEST(Form1Faults, InstallStartAndRemove)
{
    Sweep([](UtilityScene& scene, const auto& arm) {
        ASSERT_TRUE(scene.Open());
        arm();
        for (const WCHAR* name : {TEXT("cmdInstall"), TEXT("cmdStart"), TEXT("CommandStartVelmora"), TEXT("CommandCloseVelmora")})
            scene.Button(name).Click.Raise();
        EXPECT_TRUE(scene.IsOpen());
        ExpectTruePanel(scene);
    });
}

}  // namespace
