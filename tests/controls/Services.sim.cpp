// The shared services on PCs with other fonts, other tips and dropped files.
#include "controls/CommandButton/CommandButton.h"
#include "controls/FontRule.h"
#include "controls/Frame/Frame.h"
#include "controls/TextBox/TextBox.h"
#include "controls/ThemeState.h"
#include "platform/sim/Desktop.h"
#include "platform/sim/Graphics.h"
#include "platform/sim/Modules.h"
#include "platform/sim/Shell.h"
#include "platform/sim/Theme.h"
#include "tests/controls/FormFixture.h"

namespace tests {

using controls::ForceTrueTypeChoice;

TEST(FontRule, FontThatIsNoTrueTypeText_IsReplaced)
{
    using platform::Graphics;
    Graphics& graphics = platform::SimPc::Current().Get<Graphics>();
    graphics.Families() = {{u"Bitmap", false, false, ANSI_CHARSET},
                           {u"Symbol", true, false, SYMBOL_CHARSET},
                           {u"First", true, false, ANSI_CHARSET},
                           {u"Message", true, false, ANSI_CHARSET}};
    const auto forced = [](const WCHAR* name, ForceTrueTypeChoice choice) {
        host::Font font({.name = name, .size = 20, .italic = true});
        controls::ApplyForceTrueType(font, choice);
        EXPECT_EQ(font.Size(), 20);
        EXPECT_TRUE(font.Italic());
        return font.Name();
    };
    platform::Desktop& desktop = platform::SimPc::Current().Get<platform::Desktop>();
    desktop.MessageFont(u"Message");
    EXPECT_EQ(forced(TEXT("Symbol"), ForceTrueTypeChoice::MessageFontFirst), TEXT("Message"));
    EXPECT_EQ(forced(TEXT("Bitmap"), ForceTrueTypeChoice::FirstFamily), TEXT("First"));
    EXPECT_EQ(forced(TEXT("Message"), ForceTrueTypeChoice::FirstFamily), TEXT("Message"));
    EXPECT_EQ(forced(TEXT("Missing"), ForceTrueTypeChoice::MessageFontFirst), TEXT("Missing"));
    desktop.MessageFont(u"Bitmap");
    EXPECT_EQ(forced(TEXT("Symbol"), ForceTrueTypeChoice::MessageFontFirst), TEXT("First"));
    graphics.Families().resize(2);
    EXPECT_EQ(forced(TEXT("Symbol"), ForceTrueTypeChoice::MessageFontFirst), TEXT("Symbol")) << "nothing suitable";
}

TEST(ThemeState, StylesComeAndGo_WhileTheVersionStays)
{
    platform::Theme& theme = platform::SimPc::Current().Get<platform::Theme>();
    platform::Modules& modules = platform::SimPc::Current().Get<platform::Modules>();
    controls::ThemeState state;
    modules.CommonControlsVersion(5, 82);
    theme.Active(false);
    EXPECT_FALSE(state.IsThemeAvailable());
    theme.Active(true);
    modules.CommonControlsVersion(6, 16);
    EXPECT_TRUE(state.IsThemeAvailable()) << "nothing was decided while styles were off";
    modules.CommonControlsVersion(5, 82);
    theme.AppThemed(false);
    EXPECT_FALSE(state.IsThemeAvailable());
    theme.AppThemed(true);
    EXPECT_TRUE(state.IsThemeAvailable()) << "asked once and kept";
    controls::ThemeState older;
    EXPECT_FALSE(older.IsThemeAvailable());
    modules.CommonControlsVersion(6, 16);
    EXPECT_FALSE(older.IsThemeAvailable()) << "older than 6 stays so for the life of the process";
}

class SharedServices : public FormFixture {};

TEST_F(SharedServices, DroppedFiles_AreNamedInOneEvent)
{
    Open(
        R"(Frame Box { Width = 3000 Height = 1500 DragDropEnabled = 1 } TextBox Text { Top = 2000 Width = 900 Height = 300 DragDropEnabled = 1 })");
    const auto note = [this](std::vector<base::String>& paths, std::int16_t& count) {
        std::string line = std::to_string(count);
        for (const base::String& path : paths)
            line += " [" + Narrow(path) + "]";
        Note(line);
    };
    Get<controls::Frame>("Box").DragDropFile.Connect(note);
    Get<controls::TextBox>("Text").DragDropFile.Connect(note);
    auto& shell = platform::SimPc::Current().Get<platform::Shell>();
    const auto accepts = [&](const char* name) { return (GetWindowLongW(Any(name).hWnd(), GWL_EXSTYLE) & WS_EX_ACCEPTFILES) != 0; };
    for (const char* const name : {"Box", "Text"}) {
        EXPECT_TRUE(accepts(name)) << name;
        SendMessageW(Any(name).hWnd(), WM_DROPFILES, reinterpret_cast<WPARAM>(shell.MakeDrop({u"C:\\a.txt", u" C:\\b ", u"C:\\c"})), 0);
    }
    const std::string expected = "3 [C:\\a.txt] [C:\\b] [C:\\c]";
    SendMessageW(Any("Box").hWnd(), WM_DROPFILES, reinterpret_cast<WPARAM>(shell.MakeDrop({})), 0);
    EXPECT_EQ(Take(), (Lines{expected, expected}));
    Get<controls::Frame>("Box").DragDropEnabled(false);
    Get<controls::TextBox>("Text").DragDropEnabled(false);
    EXPECT_FALSE(accepts("Box") || accepts("Text"));
    const HDROP unwanted = shell.MakeDrop({u"C:\\a.txt"});
    SendMessageW(Any("Text").hWnd(), WM_DROPFILES, reinterpret_cast<WPARAM>(unwanted), 0);
    EXPECT_EQ(Take(), Lines{});
    DragFinish(unwanted);
}

TEST_F(SharedServices, TipWindowThatCannotBeMade_IsTriedAgainAtTheNextEntry)
{
    Open(R"(CommandButton B { Width = 900 Height = 300 ToolTipTextW = "tip" })");
    const HWND window = Any("B").hWnd();
    platform::SimPc::Current().GetFaults().FailCall("CreateWindowExW", ERROR_NOT_ENOUGH_MEMORY);
    SendMessageW(window, WM_MOUSEMOVE, 0, 0);
    EXPECT_EQ(Get<controls::CommandButton>("B").ToolTipWindow(), nullptr);
    SendMessageW(window, WM_MOUSELEAVE, 0, 0);
    SendMessageW(window, WM_MOUSEMOVE, 0, 0);
    EXPECT_NE(Get<controls::CommandButton>("B").ToolTipWindow(), nullptr);
}

}  // namespace tests
