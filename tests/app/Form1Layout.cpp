// The window as designed, against its measures. It is loaded in design mode, so that nothing of the machine is asked.
#include "app/Form1.h"
#include "controls/RegisterControls.h"
#include "tests/support/Place.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <sstream>

using base::String;

namespace {

std::string Shown(base::StringView text)
{
    return {text.begin(), text.end()};
}

std::string Shown(const std::shared_ptr<host::Font>& font)
{
    return Shown(font->Name()) + " " + std::to_string(font->Size()).substr(0, 4);
}

/// Left and top in its container, width and height, in pixels. A check box is as wide as its font makes it, a drop-down list as high.
std::string PlaceOf(const host::Control& control)
{
    const auto [left, top, right, bottom] = tests::PlaceIn(control.OwnHandle(), GetParent(control.OwnHandle()));
    const auto size = [&](const WCHAR* free, LONG pixels) { return control.Kind() == free ? "?" : std::to_string(pixels); };
    return std::to_string(left) + "," + std::to_string(top) + " " + size(TEXT("CheckBox"), right - left) + "x" +
           size(TEXT("ComboBox"), bottom - top);
}

/// What else was chosen when the control was drawn; colours in hexadecimal.
std::string LookOf(host::Control& control)
{
    std::ostringstream look;
    look << std::showbase;
    if (auto* const timer = dynamic_cast<host::Timer*>(&control)) {
        look << timer->Interval() << (timer->Enabled() ? " ms" : " off");
    } else if (auto* const button = dynamic_cast<controls::CommandButton*>(&control)) {
        look << "'" << Shown(button->Caption()) << "' " << Shown(button->Font()) << ", style " << button->Style() << std::hex << " focus "
             << button->ShowFocus() << " contour " << button->ContourColor() << " highlight " << button->HighLightColor() << " mask "
             << button->MaskColor() << " rounded " << button->RoundedBordersByTheme() << " tip " << button->TooltipBackColor() << "/"
             << button->ToolTipForeColor();
    } else if (auto* const check = dynamic_cast<controls::CheckBox*>(&control)) {
        look << "'" << Shown(check->Caption()) << "' " << Shown(check->Font()) << ", value " << int{check->Value()} << " size "
             << check->AutoSize();
    } else if (auto* const box = dynamic_cast<controls::TextBox*>(&control)) {
        look << "'" << Shown(box->Text()) << "' " << Shown(box->Font()) << ", password " << box->UseSystemPasswordChar() << " true type "
             << box->ForceTrueType();
    } else if (auto* const frame = dynamic_cast<controls::Frame*>(&control)) {
        look << "'" << Shown(frame->Caption()) << "' " << Shown(frame->Font());
    } else if (auto* const label = dynamic_cast<host::Label*>(&control)) {
        LOGFONTW font{};
        GetObjectW(reinterpret_cast<HFONT>(SendMessageW(control.hWnd(), WM_GETFONT, 0, 0)), sizeof font, &font);
        look << "'" << Shown(label->Caption()) << "' " << Shown(font.lfFaceName) << " " << -font.lfHeight << " px";
    }
    if (const auto* const tip = dynamic_cast<controls::ToolTip*>(&control))
        if (!tip->TooltipTitle().empty() || tip->ToolTipIcon() != 0 || tip->ToolTipBalloon())
            look << " with a tip of its own";
    return look.str() + (control.Enabled() ? "" : ", disabled");
}

class Form1Layout : public testing::Test {
protected:
    Form1Layout()
    {
        controls::RegisterControls(factory);
        form.UserMode(false);
        EXPECT_TRUE(form.Load(app::Form1Text(), factory)) << form.LoadError();
    }
    ~Form1Layout() override { form.Unload(); }

    host::ControlFactory factory;
    host::Form form;
};

TEST_F(Form1Layout, EveryControl_IsAsItWasDrawn)
{
    const std::string sans = "MS Sans Serif 8.25", micro = "Microsoft Sans Serif 8.25", label = "Microsoft Sans Serif 11 px";
    const std::string password = "'' " + micro + ", password 1 true type 1", box = sans + ", value 0 size 1";
    const std::string button = "' " + sans + ", style 10 focus 0x1 contour 0x800000 highlight 0x8000000f mask 0 rounded 0 tip 0xe1ffff/0";
    const struct {
        const char *name, *kind, *container, *place;
        int tabIndex;  // -1: any
        std::string look;
        const char* toolTip = "";
    } design[] = {
        {"DFrame1", "Frame", "", "8,8 305x73", 12, "'Set Password (need restart Velmora)' " + sans},
        {"Label1", "Label", "DFrame1", "16,33 57x17", -1, "'Password:' " + label},
        {"TextPassword", "TextBox", "DFrame1", "80,32 209x19", 0, password, "Password to send for shutdown this PC"},
        {"FrameAutoStart", "Frame", "", "8,88 305x105", 14, "'Auto Start (optional)' " + sans},
        {"CheckAutoStart", "CheckBox", "FrameAutoStart", "16,24 ?x17", 1, "'Auto start when Windows starts' " + box,
         "Auto start ''Velmora.exe'' when Windows starts"},
        {"CheckHideTrayIcon", "CheckBox", "FrameAutoStart", "16,48 ?x17", 2, "'Hide Tray Icon' " + box + ", disabled",
         "Not show Velmora tray icon"},
        {"CheckSoundStart", "CheckBox", "FrameAutoStart", "16,72 ?x17", 3, "'Starting Sound' " + box + ", disabled",
         "Play a sound advise at startup"},
        {"FrameService", "Frame", "", "8,192 305x169", 15, "'Install as Service (optional)' " + sans},
        {"cmdInstall", "CommandButton", "FrameService", "16,32 113x33", 4, "'Install Service" + button},
        {"cmdStart", "CommandButton", "FrameService", "176,32 113x33", 5, "'Start Service" + button},
        {"lblAccount", "Label", "FrameService", "16,80 57x17", -1, "'Account:' " + label},
        {"txtAccount", "TextBox", "FrameService", "96,80 185x19", 6, "'' " + micro + ", password 0 true type 0"},
        {"lblPassword", "Label", "FrameService", "16,104 57x17", -1, "'Password:' " + label},
        {"txtPassword", "TextBox", "FrameService", "96,104 81x19", 7, password},
        {"chkSystem", "CheckBox", "FrameService", "184,104 ?x21", 20, "'System Account' " + micro + ", value 1 size 1"},
        {"lblStartup", "Label", "FrameService", "16,128 73x17", -1, "'Startup Type:' " + label},
        {"ComboStartup", "ComboBox", "FrameService", "96,128 193x?", -1, ""},
        {"tmrCheck", "Timer", "FrameService", "", -1, "1000 ms"},
        {"FrameStartVelmora", "Frame", "", "8,376 305x97", 19, "'Start Velmora Now' " + sans},
        {"CommandStartVelmora", "CommandButton", "FrameStartVelmora", "16,32 129x41", 9, "'Start Velmora" + button},
        {"CommandCloseVelmora", "CommandButton", "FrameStartVelmora", "160,32 129x41", 10, "'Close Velmora" + button},
        {"TimerMonitorIfVelmoraRunning", "Timer", "FrameStartVelmora", "", -1, "2000 ms"},
        {"CommandOk", "CommandButton", "", "72,488 177x41", 11, "'OK" + button},
    };
    const std::vector<host::Control*> controls = form.Controls();
    ASSERT_EQ(controls.size(), std::size(design));
    auto drawn = controls.begin();
    for (const auto& [name, kind, container, place, tabIndex, look, toolTip] : design) {
        SCOPED_TRACE(name);
        host::Control& control = **drawn++;
        const host::Extender& extender = control.GetExtender();
        EXPECT_EQ(Shown(extender.Name()), name);
        EXPECT_EQ(Shown(control.Kind()), kind);
        const auto* const inside = dynamic_cast<const host::Control*>(&extender.Container());
        EXPECT_EQ(inside ? Shown(inside->GetExtender().Name()) : "", container);
        EXPECT_EQ(control.OwnHandle() ? PlaceOf(control) : "", place);
        EXPECT_TRUE(tabIndex == -1 || extender.TabIndex() == tabIndex) << extender.TabIndex();
        EXPECT_EQ(LookOf(control), look);
        EXPECT_EQ(Shown(extender.ToolTipText()), toolTip);
    }
    RECT client{};
    GetClientRect(form.hWnd(), &client);
    EXPECT_EQ(client.right, 322);
    EXPECT_EQ(client.bottom, 547);
    EXPECT_EQ(form.Caption(), TEXT("Velmora Setup Utility"));
    EXPECT_TRUE(form.KeyPreview());
    EXPECT_EQ(SendMessageW(form.Find<host::ComboBox>(TEXT("ComboStartup"))->hWnd(), CB_GETCOUNT, 0, 0), 3);
}

/// Takes out what the machine's fonts decide.
void ForgetSizes(host::FormNode& node)
{
    if (node.kind == TEXT("CheckBox"))
        std::erase_if(node.properties,
                      [](const auto& property) { return property.key == TEXT("Width") || property.key == TEXT("Height"); });
    std::ranges::for_each(node.children, ForgetSizes);
}

TEST_F(Form1Layout, SavingTheForm_ChangesNothing)
{
    host::ParsedForm designed = host::ParseForm(app::Form1Text());
    EXPECT_EQ(host::WriteForm(designed.root), app::Form1Text());
    host::ParsedForm saved = host::ParseForm(form.Write());
    ForgetSizes(designed.root);
    ForgetSizes(saved.root);
    EXPECT_EQ(host::WriteForm(saved.root), host::WriteForm(designed.root));
}

}  // namespace
