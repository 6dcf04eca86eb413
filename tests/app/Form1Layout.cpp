// The window as designed, against its measures. It is loaded in design mode, so that nothing of the machine is asked.
#include "app/Form1.h"
#include "controls/RegisterControls.h"
#include "tests/support/FormMap.h"

#include <gtest/gtest.h>

#include <algorithm>

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
    RECT client = {};
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
        if (!control.OwnHandle())
            continue;
        RECT place = {};
        GetWindowRect(control.OwnHandle(), &place);
        MapWindowPoints(nullptr, control.ContainerWindow(), reinterpret_cast<POINT*>(&place), 2);
        EXPECT_EQ(place.left, design.left / tests::kTwipsPerPixel);
        EXPECT_EQ(place.top, design.top / tests::kTwipsPerPixel);
        // Check boxes that size themselves follow the machine's font, and a drop-down list is as high as its own.
        if (kind != TEXT("CheckBox")) {
            EXPECT_EQ(place.right - place.left, design.width / tests::kTwipsPerPixel);
        }
        if (kind != TEXT("CheckBox") && kind != TEXT("ComboBox")) {
            EXPECT_EQ(place.bottom - place.top, design.height / tests::kTwipsPerPixel);
        }
    }
}

/// Takes out what the machine's fonts decide.
void ForgetFontsAndSizes(host::FormNode& node)
{
    if (node.kind == TEXT("CheckBox"))
        std::erase_if(node.properties,
                      [](const auto& property) { return property.key == TEXT("Width") || property.key == TEXT("Height"); });
    // A machine whose "Microsoft Sans Serif" is no TrueType face gives such a box another.
    if (std::ranges::find(node.properties, TEXT("ForceTrueType"), &host::Property::key) != node.properties.end())
        std::erase_if(node.properties, [](const auto& property) { return property.key == TEXT("Font"); });
    std::ranges::for_each(node.children, ForgetFontsAndSizes);
}

TEST_F(Form1Layout, SavingTheForm_ChangesNothing)
{
    host::ParsedForm designed = host::ParseForm(app::Form1Text());
    EXPECT_EQ(host::WriteForm(designed.root), app::Form1Text());
    host::ParsedForm saved = host::ParseForm(form.Write());
    ForgetFontsAndSizes(designed.root);
    ForgetFontsAndSizes(saved.root);
    EXPECT_EQ(host::WriteForm(saved.root), host::WriteForm(designed.root));
}

}  // namespace
