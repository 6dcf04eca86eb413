// The window as designed, against its measures. It is loaded in design mode, so that nothing of the machine is asked.
#include "app/Form1.h"
#include "controls/RegisterControls.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <sstream>

using base::String;

namespace {

/// Kind, name, container; left, top, width, height; tab index; caption or text; tool tip.
constexpr const char* designs = R"(Frame|DFrame1||120|120|4575|1095|12|Set Password (need restart Velmora)|
TextBox|TextPassword|DFrame1|1200|480|3135|285|0||Password to send for shutdown this PC
Label|Label1|DFrame1|240|495|855|255||Password:|
Frame|FrameAutoStart||120|1320|4575|1575|14|Auto Start (optional)|
CheckBox|CheckAutoStart|FrameAutoStart|240|360|2550|255|1|Auto start when Windows starts|Auto start ''Velmora.exe'' when Windows starts
CheckBox|CheckHideTrayIcon|FrameAutoStart|240|720|1365|255|2|Hide Tray Icon|Not show Velmora tray icon
CheckBox|CheckSoundStart|FrameAutoStart|240|1080|1365|255|3|Starting Sound|Play a sound advise at startup
Frame|FrameService||120|2880|4575|2535|15|Install as Service (optional)|
CommandButton|cmdInstall|FrameService|240|480|1695|495|4|Install Service|
CommandButton|cmdStart|FrameService|2640|480|1695|495|5|Start Service|
Label|lblAccount|FrameService|240|1200|855|255||Account:|
TextBox|txtAccount|FrameService|1440|1200|2775|285|6||
Label|lblPassword|FrameService|240|1560|855|255||Password:|
TextBox|txtPassword|FrameService|1440|1560|1215|285|7||
CheckBox|chkSystem|FrameService|2760|1560|1470|315|20|System Account|
Label|lblStartup|FrameService|240|1920|1095|255||Startup Type:|
ComboBox|ComboStartup|FrameService|1440|1920|2895|315|||
Timer|tmrCheck|FrameService|0|0|0|0|||
Frame|FrameStartVelmora||120|5640|4575|1455|19|Start Velmora Now|
CommandButton|CommandStartVelmora|FrameStartVelmora|240|480|1935|615|9|Start Velmora|
CommandButton|CommandCloseVelmora|FrameStartVelmora|2400|480|1935|615|10|Close Velmora|
Timer|TimerMonitorIfVelmoraRunning|FrameStartVelmora|0|0|0|0|||
CommandButton|CommandOk||1080|7320|2655|615|11|OK|)";

struct Design {
    String kind, name, container, caption, toolTip;
    LONG left, top, width, height;
    int tabIndex;  // -1: any
};

std::vector<Design> Designs()
{
    std::vector<Design> parsed;
    std::istringstream lines(designs);
    for (std::string line; std::getline(lines, line);) {
        std::istringstream cells(line);
        std::vector<std::string> cell(10);
        for (std::string& text : cell)
            std::getline(cells, text, '|');
        const auto text = [&](int i) { return String(cell[i].begin(), cell[i].end()); };
        const auto number = [&](int i) { return cell[i].empty() ? -1 : std::stoi(cell[i]); };
        parsed.push_back({text(0), text(1), text(2), text(8), text(9), number(3), number(4), number(5), number(6), number(7)});
    }
    return parsed;
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
    RECT client = {};
    GetClientRect(form.hWnd(), &client);
    EXPECT_EQ(client.right, 4830 / 15);
    EXPECT_EQ(client.bottom, 8205 / 15);
    EXPECT_EQ(form.Caption(), TEXT("Velmora Setup Utility"));
    EXPECT_TRUE(form.KeyPreview());

    const std::vector<Design> expected = Designs();
    const std::vector<host::Control*> controls = form.Controls();
    ASSERT_EQ(controls.size(), expected.size());
    for (std::size_t i = 0; i < expected.size(); ++i) {
        const Design& design = expected[i];
        host::Control& control = *controls[i];
        const host::Extender& extender = control.GetExtender();
        SCOPED_TRACE(std::string(design.name.begin(), design.name.end()));
        EXPECT_EQ(control.Kind(), design.kind);
        EXPECT_EQ(extender.Name(), design.name);
        EXPECT_EQ(&extender.Container(), design.container.empty() ? &form : dynamic_cast<host::Container*>(form.Find(design.container)));
        EXPECT_EQ(extender.ToolTipText(), design.toolTip);
        EXPECT_EQ(CaptionOf(control), design.caption);
        if (design.tabIndex != -1) {
            EXPECT_EQ(extender.TabIndex(), design.tabIndex);
        }
        if (!control.OwnHandle())
            continue;
        RECT place = {};
        GetWindowRect(control.OwnHandle(), &place);
        MapWindowPoints(nullptr, control.ContainerWindow(), reinterpret_cast<POINT*>(&place), 2);
        EXPECT_EQ(place.left, design.left / 15);
        EXPECT_EQ(place.top, design.top / 15);
        // Check boxes that size themselves follow the machine's font, and a drop-down list is as high as its own.
        if (design.kind != TEXT("CheckBox")) {
            EXPECT_EQ(place.right - place.left, design.width / 15);
        }
        if (design.kind != TEXT("CheckBox") && design.kind != TEXT("ComboBox")) {
            EXPECT_EQ(place.bottom - place.top, design.height / 15);
        }
    }
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
