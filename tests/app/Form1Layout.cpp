// The window as designed, against its measures. It is loaded in design mode, so that nothing of the machine is asked.
#include "app/Form1.h"
#include "controls/RegisterControls.h"
#include "tests/app/FormMap.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <sstream>

using base::String;

namespace {

String Wide(const char* text)
{
    return {text, text + std::string_view(text).size()};
}

String CaptionOf(host::Control& control)
{
    if (auto* const frame = dynamic_cast<controls::Frame*>(&control))
        return frame->Caption();
    if (auto* const button = dynamic_cast<controls::CommandButton*>(&control))
        return button->Caption();
    if (auto* const check = dynamic_cast<controls::CheckBox*>(&control))
        return check->Caption();
    if (auto* const label = dynamic_cast<host::Label*>(&control))
        return label->Caption();
    if (auto* const text = dynamic_cast<controls::TextBox*>(&control))
        return text->Text();
    return {};
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

TEST_F(Form1Layout, EveryControl_StandsWhereItWasDrawn)
{
    const base::Handle<base::NullHandleTraits<HDC, &DeleteDC>> screen(CreateCompatibleDC(nullptr));
    ASSERT_EQ(GetDeviceCaps(screen.Get(), LOGPIXELSX), 96);
    RECT client{};
    GetClientRect(form.hWnd(), &client);
    EXPECT_EQ(client.right, tests::kClientSize.cx);
    EXPECT_EQ(client.bottom, tests::kClientSize.cy);
    EXPECT_EQ(form.Caption(), TEXT("Velmora Setup Utility"));
    EXPECT_TRUE(form.KeyPreview());

    const std::vector<host::Control*> controls = form.Controls();
    ASSERT_EQ(controls.size(), std::size(tests::kFormMap));
    for (std::size_t i = 0; i < controls.size(); ++i) {
        const tests::Designed& design = tests::kFormMap[i];
        host::Control& control = *controls[i];
        const host::Extender& extender = control.GetExtender();
        SCOPED_TRACE(design.name);
        const String kind = Wide(design.kind);
        EXPECT_EQ(control.Kind(), kind);
        EXPECT_EQ(extender.Name(), Wide(design.name));
        EXPECT_EQ(&extender.Container(), *design.container ? dynamic_cast<host::Container*>(form.Find(Wide(design.container))) : &form);
        EXPECT_EQ(extender.ToolTipText(), Wide(design.toolTip));
        EXPECT_EQ(CaptionOf(control), Wide(design.caption));
        if (design.tabIndex != -1) {
            EXPECT_EQ(extender.TabIndex(), design.tabIndex);
        }
        ASSERT_EQ(control.OwnHandle() == nullptr, kind == TEXT("Timer"));
        if (kind == TEXT("Timer"))
            continue;
        RECT place{};
        GetWindowRect(control.OwnHandle(), &place);
        MapWindowPoints(nullptr, GetParent(control.OwnHandle()), reinterpret_cast<POINT*>(&place), 2);
        EXPECT_EQ(place.left, design.left / tests::kTwipsPerPixel);
        EXPECT_EQ(place.top, design.top / tests::kTwipsPerPixel);
        // Check boxes that size themselves are as wide as the machine's font makes them, a drop-down list is as high as its own.
        if (kind != TEXT("CheckBox")) {
            EXPECT_EQ(place.right - place.left, design.width / tests::kTwipsPerPixel);
        }
        if (kind != TEXT("ComboBox")) {
            EXPECT_EQ(place.bottom - place.top, design.height / tests::kTwipsPerPixel);
        }
    }
}

/// Font, size in points, and what else was chosen when the control was drawn; colours in hexadecimal.
std::string LookOf(host::Control& control)
{
    const auto text = [](const std::shared_ptr<host::Font>& font) {
        return std::string(font->Name().begin(), font->Name().end()) + " " + std::to_string(font->Size()).substr(0, 4);
    };
    std::ostringstream look;
    look << std::hex << std::showbase;
    if (auto* const timer = dynamic_cast<host::Timer*>(&control)) {
        look << std::dec << timer->Interval() << (timer->Enabled() ? " ms" : " off");
    } else if (auto* const button = dynamic_cast<controls::CommandButton*>(&control)) {
        look << text(button->Font()) << ", style " << std::dec << button->Style() << std::hex << " focus " << button->ShowFocus()
             << " contour " << button->ContourColor() << " highlight " << button->HighLightColor() << " mask " << button->MaskColor()
             << " rounded " << button->RoundedBordersByTheme() << " tip " << button->TooltipBackColor() << "/"
             << button->ToolTipForeColor();
    } else if (auto* const check = dynamic_cast<controls::CheckBox*>(&control)) {
        look << text(check->Font()) << ", value " << static_cast<int>(check->Value()) << " size " << check->AutoSize();
    } else if (auto* const box = dynamic_cast<controls::TextBox*>(&control)) {
        look << text(box->Font()) << ", password " << box->UseSystemPasswordChar() << " true type " << box->ForceTrueType();
    } else if (auto* const frame = dynamic_cast<controls::Frame*>(&control)) {
        look << text(frame->Font());
    } else {
        LOGFONTW font{};
        GetObjectW(reinterpret_cast<HFONT>(SendMessageW(control.hWnd(), WM_GETFONT, 0, 0)), sizeof font, &font);
        const String face = font.lfFaceName;
        look << std::string(face.begin(), face.end()) << " " << std::dec << -font.lfHeight << " px";
    }
    if (const auto* const tip = dynamic_cast<controls::ToolTip*>(&control))
        if (!tip->TooltipTitle().empty() || tip->ToolTipIcon() != 0 || tip->ToolTipBalloon())
            look << " with a tip of its own";
    return look.str() + (control.Enabled() ? "" : ", disabled");
}

TEST_F(Form1Layout, EveryControl_LooksAsItWasDrawn)
{
    const std::string button =
        "MS Sans Serif 8.25, style 10 focus 0x1 contour 0x800000 highlight 0x8000000f mask 0 rounded 0 tip 0xe1ffff/0";
    const std::string frame = "MS Sans Serif 8.25", label = "Microsoft Sans Serif 11 px";
    const std::string password = "Microsoft Sans Serif 8.25, password 0x1 true type 0x1";
    const std::pair<const char*, std::string> looks[] = {{"DFrame1", frame},
                                                         {"TextPassword", password},
                                                         {"Label1", label},
                                                         {"FrameAutoStart", frame},
                                                         {"CheckAutoStart", "MS Sans Serif 8.25, value 0 size 0x1"},
                                                         {"CheckHideTrayIcon", "MS Sans Serif 8.25, value 0 size 0x1, disabled"},
                                                         {"CheckSoundStart", "MS Sans Serif 8.25, value 0 size 0x1, disabled"},
                                                         {"FrameService", frame},
                                                         {"cmdInstall", button},
                                                         {"cmdStart", button},
                                                         {"lblAccount", label},
                                                         {"txtAccount", "Microsoft Sans Serif 8.25, password 0 true type 0"},
                                                         {"lblPassword", label},
                                                         {"txtPassword", password},
                                                         {"chkSystem", "Microsoft Sans Serif 8.25, value 0x1 size 0x1"},
                                                         {"lblStartup", label},
                                                         {"tmrCheck", "1000 ms"},
                                                         {"FrameStartVelmora", frame},
                                                         {"CommandStartVelmora", button},
                                                         {"CommandCloseVelmora", button},
                                                         {"TimerMonitorIfVelmoraRunning", "2000 ms"},
                                                         {"CommandOk", button}};
    for (const auto& [name, look] : looks)
        EXPECT_EQ(LookOf(*form.Find(Wide(name))), look) << name;
    const auto& startup = *form.Find<host::ComboBox>(TEXT("ComboStartup"));
    EXPECT_EQ(SendMessageW(startup.hWnd(), CB_GETCOUNT, 0, 0), 3);
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
