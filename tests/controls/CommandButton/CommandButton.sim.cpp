// What only the stand-in PC can tell of a button: the texts that it drew, the calls that it made, the links that it opened.
#include "controls/CommandButton/CommandButton.h"
#include "controls/ThemeState.h"
#include "platform/sim/Graphics.h"
#include "platform/sim/Shell.h"
#include "tests/controls/FormFixture.h"

#include <algorithm>
#include <tuple>

namespace tests {

namespace {

platform::SimPc& Pc()
{
    return platform::SimPc::Current();
}

}  // namespace

class CommandButtonCalls : public FormFixture {
protected:
    void Show(const std::string& properties)
    {
        Open(R"(CommandButton B { Width = 1500 Height = 450 Caption = "Go" Style = 1 CaptionAlign = 1 FontColor = 0x00112233
            FontHighlightColor = 0x00445566 )" +
             properties + " }");
    }
    controls::CommandButton& Button() { return Get<controls::CommandButton>("B"); }
    /// The texts of one drawing: the columns that each stands off the caption's place, and its colour.
    std::vector<std::pair<LONG, COLORREF>> Texts(std::int32_t state)
    {
        if (state == controls::StateHot)
            SendMessageW(Button().hWnd(), WM_MOUSEMOVE, 0, MAKELPARAM(5, 6));
        Button().Refresh();  // laid out with the margin that the style has left
        auto& graphics = Pc().Get<platform::Graphics>();
        graphics.ForgetTexts();
        Button().DrawControl();
        std::vector<std::pair<LONG, COLORREF>> texts;
        for (const auto& text : graphics.Texts())
            texts.emplace_back(text.cell.left - 3, text.color);
        return texts;
    }
};

TEST_F(CommandButtonCalls, Caption_HasTheColoursOfItsStateAndEffect)
{
    using namespace controls;
    using Texts_ = std::vector<std::pair<LONG, COLORREF>>;
    constexpr COLORREF grey = 0xB8B8B8, white = 0xFFFFFF;
    const COLORREF text = GetSysColor(COLOR_BTNTEXT), greyText = GetSysColor(COLOR_GRAYTEXT);
    const std::tuple<int, bool, std::int32_t, Texts_> cases[] = {
        {CaptionFxNone, false, StateNormal, {{0, text}}},
        {CaptionFxNone, true, StateNormal, {{0, 0x112233}}},
        {CaptionFxNone, true, StateHot, {{0, 0x445566}}},
        {CaptionFxRaised, true, StateNormal, {{1, grey}, {-1, white}, {0, 0x112233}}},
        {CaptionFxSunken, false, StateHot, {{1, white}, {-1, grey}, {0, text}}},
        {CaptionFxShadow, false, StateNormal, {{1, grey}, {0, text}}},
        {9, false, StateNormal, {{1, grey}, {0, text}}},
        {CaptionFxSunken, true, StateDisabled, {{1, white}, {-1, grey}, {0, greyText}}},
        {CaptionFxNone, true, StateDisabled, {{1, 0xFFFFFF}, {0, GetSysColor(COLOR_BTNSHADOW)}}},
    };
    // The engraving's light is the light shade, 40 lighter.
    Pc().Get<platform::Graphics>().SystemColor(COLOR_3DLIGHT, 0xE3E3E3);
    for (const auto& [effect, own, state, texts] : cases) {
        Show("CaptionFx = " + std::to_string(effect) + " USeCustomColors = " + (own ? "1" : "0") +
             (state == StateDisabled ? " Enabled = False" : ""));
        EXPECT_EQ(Texts(state), texts) << "effect " << effect << (own ? ", own colours" : "") << ", state " << state;
    }
    Show("CaptionHide = 1");
    EXPECT_EQ(Texts(StateNormal), Texts_{});
}

TEST_F(CommandButtonCalls, BlackScheme_ShowsTheDesignedButtonAndGreysItsCaption)
{
    auto& graphics = Pc().Get<platform::Graphics>();
    constexpr COLORREF white = 0xFFFFFF, green = 0x3FF23F;
    const std::pair<int, COLORREF> scheme[] = {
        {COLOR_BTNFACE, 0}, {COLOR_BTNTEXT, white}, {COLOR_GRAYTEXT, green}, {COLOR_BTNSHADOW, 0x808080}, {COLOR_3DLIGHT, white}};
    for (const auto& [index, color] : scheme)
        graphics.SystemColor(index, color);
    for (const auto& [state, color] :
         {std::pair{controls::StateNormal, white}, {controls::StateHot, white}, {controls::StateDisabled, green}}) {
        Show(state == controls::StateDisabled ? "Enabled = False" : "");
        Button().Style(controls::SoftRoundStyle);
        EXPECT_EQ(Texts(state), (std::vector<std::pair<LONG, COLORREF>>{{3, color}})) << state;
        for (const auto& [x, y] : {std::pair{50, 0}, {0, 15}, {99, 15}, {50, 29}})
            EXPECT_EQ(GetPixel(Button().GetSurface().Dc(), x, y), color) << state << " at " << x << ", " << y;
    }
    Show("USeCustomColors = 1 BackColor = 0x00C08040");
    Button().Style(controls::SoftRoundStyle);
    EXPECT_EQ(GetPixel(Button().GetSurface().Dc(), 50, 0), 0x6C2C00U) << "colours of one's own";
}

TEST_F(CommandButtonCalls, Window_IsCutOnlyWhenItsShapeChanges)
{
    Show("ContourStyle = 2 RoundedValue = 9");
    auto& trace = Pc().Trace();
    const auto cuts = [&](auto&& change) {
        trace.Start();
        change();
        trace.Stop();
        return trace.Count("SetWindowRgn");
    };
    EXPECT_EQ(cuts([&] { Button().DrawControl(); }), 0U);
    EXPECT_EQ(cuts([&] { Button().Style(8); }), 1U);
    EXPECT_EQ(cuts([&] { Button().GetExtender().Width(1800); }), 1U);
    EXPECT_EQ(cuts([&] { Button().Style(18); }), 1U);
    // What only redraws changes the shape too.
    EXPECT_EQ(cuts([&] { Button().Style(4); }), 1U) << "rounded by its contour";
    EXPECT_EQ(cuts([&] { Button().RoundedValue(13); }), 1U);
    Pc().GetFaults().FailCall("SetWindowRgn", ERROR_INVALID_HANDLE);
    Button().RoundedValue(9);
    EXPECT_EQ(cuts([&] { Button().DrawControl(); }), 1U) << "Windows refused the last one";
    EXPECT_EQ(cuts([&] { Button().ContourStyle(controls::ContourNone); }), 1U);
    EXPECT_EQ(cuts([&] { Button().Style(17); }), 1U);
    Button().GetExtender().Visible(false);
    EXPECT_EQ(cuts([&] { Button().GetExtender().Width(1500); }), 1U) << "nothing is drawn, and the shape is right when it is shown";
    Button().GetExtender().Visible(true);
    EXPECT_EQ(cuts([&] { Button().UseClassicTheme(true); }), 1U);
    EXPECT_EQ(cuts([&] { Button().NonThemeStyle(10); }), 0U);
    EXPECT_EQ(cuts([&] { Button().Style(7); }), 1U) << "the theme's own";
    EXPECT_EQ(cuts([&] { Button().DrawControl(); }), 0U);
    controls::ThemeState::OfProcess().AskVersionWith([] { return DWORD{5}; });
    EXPECT_EQ(cuts([&] { Button().DrawControl(); }), 1U) << "themes are gone, and style 10 stands in";
}

TEST_F(CommandButtonCalls, Theme_DrawsTheStateAndTheFocusAsDefaulted)
{
    Show("");
    controls::ThemeState::OfProcess().AskVersionWith([] { return DWORD{6}; });
    Button().Style(7);
    const auto drawn = [&] {
        auto& trace = Pc().Trace();
        trace.Start();
        Button().DrawControl();
        trace.Stop();
        const std::string arguments = trace.Of("DrawThemeBackground").front().arguments;
        return arguments.substr(arguments.find(", 1, ") + 5, 1);
    };
    ASSERT_EQ(form->ActiveControl(), &Button());
    EXPECT_EQ(drawn(), "5");
    form->Activate(nullptr);
    EXPECT_EQ(drawn(), "1");
    Button().SetFocus();
    SendMessageW(Button().hWnd(), WM_MOUSEMOVE, 0, MAKELPARAM(5, 6));
    EXPECT_EQ(drawn(), "2");
    Button().Enabled(false);
    EXPECT_EQ(drawn(), "4");
    Button().Enabled(true);
    EXPECT_EQ(drawn(), "5") << "it has forgotten the mouse";
}

TEST_F(CommandButtonCalls, EveryStyle_HasItsMargin)
{
    constexpr int margins[] = {3, 3, 3, 3, 6, 3, 3, 3, 7, 7, 6, 4, 6, 3, 4, 3, 6, 4, 4};
    Show("");
    controls::ThemeState::OfProcess().AskVersionWith([] { return DWORD{6}; });
    for (int style = 0; style < 19; ++style) {
        Button().Style(style);
        EXPECT_EQ(Texts(controls::StateNormal).back().first, margins[style] - 3) << style;
    }
}

TEST_F(CommandButtonCalls, ZedOrder_MovesNothingElse)
{
    Open("CommandButton B { Width = 1500 Height = 450 } CheckBox C { Top = 600 Width = 900 Height = 300 }");
    auto& trace = Pc().Trace();
    trace.Start();
    Button().ZedOrder(nullptr);
    trace.Stop();
    ASSERT_GE(trace.Count("SetWindowPos"), 1U);
    const std::string arguments = trace.Of("SetWindowPos").front().arguments;
    EXPECT_TRUE(arguments.ends_with(", 0, 0, 0, 0, 0x233")) << arguments;
    const auto redrawn = [&](HWND insertAfter) {
        trace.Start();
        Button().ZedOrder(insertAfter);
        trace.Stop();
        return std::ranges::count_if(trace.Of("RedrawWindow"), [](const auto& call) { return call.arguments.ends_with(", 0x185"); });
    };
    EXPECT_EQ(redrawn(HWND_BOTTOM), 1) << "the container";
    EXPECT_EQ(redrawn(Any("C").hWnd()), 2) << "both";
    EXPECT_EQ(redrawn(HWND_TOP), 0) << "it refreshes itself";
}

TEST_F(CommandButtonCalls, OpenLink_AsksTheShellAndTellsItsAnswer)
{
    Show("");
    auto& shell = Pc().Get<platform::Shell>();
    shell.Answer(31);
    EXPECT_EQ(Button().OpenLink(TEXT("http://example.com/caf\u00E9")), 31);
    ASSERT_EQ(shell.AllOpened().size(), 1U);
    const auto& [window, verb, file, parameters, folder, show] = shell.AllOpened().front();
    EXPECT_EQ(window, Button().hWnd());
    EXPECT_EQ(std::tie(verb, file, parameters, folder), std::tuple("open", "http://example.com/caf\xE9", "1", "1"));
    EXPECT_EQ(show, SW_SHOWNORMAL);
}

}  // namespace tests
