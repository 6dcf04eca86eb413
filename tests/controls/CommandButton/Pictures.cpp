// Pictures on a button: which one, where, with which effect. The numbers are worked out by hand.
#include "controls/CommandButton/CommandButton.h"
#include "controls/PictureEffects.h"
#include "tests/controls/FormFixture.h"

namespace tests {

namespace {

// Two by two pixels: (100, 10, 30) and the mask's colour, the mask's colour and black. One green pixel. An icon: (100, 10, 30) at the top
// left and the bottom right, open in the other corners.
constexpr const char* two = R"(Bitmap("Qk1GAAAAAAAAADYAAAAoAAAAAgAAAAIAAAABABgAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAwMDAAAAAAAAeCmTAwMAAAA=="))";
constexpr const char* green = R"(Bitmap("Qk06AAAAAAAAADYAAAAoAAAAAQAAAAEAAAABABgAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAP8AAA=="))";
constexpr const char* icon =
    R"(Icon("AAABAAEAAgIAAAEAIABAAAAAFgAAACgAAAACAAAABAAAAAEAIAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAHgpkAB4KZAAAAAAAgAAAAEAAAAA="))";

constexpr COLORREF back = 0x406080, highlight = 0x20A0E0, dot = 0x1E0A64, lightDot = 0x220C73, darkDot = 0x1A0855;

}  // namespace

class Pictures : public FormFixture {
protected:
    void Show(const std::string& properties)
    {
        Open(R"(CommandButton B { Width = 1500 Height = 450 Caption = "" Style = 1 PictureAlign = 0 USeCustomColors = 1
            BackColor = 0x00406080 HighlightColor = 0x0020A0E0 MaskColorEnabled = 1 )" +
             properties + " }");
    }
    controls::CommandButton& Button() { return Get<controls::CommandButton>("B"); }
    COLORREF Pixel(int x, int y) { return GetPixel(Button().GetSurface().Dc(), x, y); }
    void Mouse(UINT message) { SendMessageW(Button().hWnd(), message, 0, MAKELPARAM(5, 6)); }
    void Expect(COLORREF first, COLORREF second, const char* what)
    {
        EXPECT_EQ(Pixel(49, 14), first) << what;
        EXPECT_EQ(Pixel(50, 14), second) << what << ": the mask's colour lets the button through";
    }
};

TEST_F(Pictures, FollowTheState)
{
    for (const auto& [picture, below] : {std::pair{icon, dot}, {two, COLORREF{0}}}) {
        Show(std::string("Picture = ") + picture);
        Expect(dot, back, "normal");
        EXPECT_EQ(Pixel(50, 15), below);
        EXPECT_EQ(Pixel(51, 14), back);
        Mouse(WM_MOUSEMOVE);
        Expect(lightDot, highlight, "hot");
    }
    Mouse(WM_LBUTTONDOWN);
    EXPECT_EQ(Pixel(50, 15), darkDot) << "pressed, a pixel further";
    EXPECT_EQ(Pixel(49, 14), highlight);
    Mouse(WM_LBUTTONUP);
    Mouse(WM_MOUSELEAVE);
    Button().MaskColorEnabled(false);
    Expect(dot, 0xC0C0C0, "without a mask");
}

TEST_F(Pictures, OfADisabledButton_StandInAsTheStyleSays)
{
    for (const auto& [style, color] : {std::pair{0, dot}, {1, COLORREF{0x384E79}}, {2, COLORREF{0x2D353D}}}) {
        Show(std::string("Enabled = False Picture = ") + two + " PictureDisabledStyle = " + std::to_string(style));
        Expect(color, back, "disabled");
    }
    Show(std::string("Enabled = False PictureDisabledStyle = 2 PictureDisabled = ") + two + " Picture = " + green);
    Expect(dot, back, "a picture for disabled buttons is shown as it is");
}

TEST_F(Pictures, OfTheStates_ComeBeforeTheNormalOne)
{
    Show(std::string("Picture = ") + two + " PictureOver = " + green + " PictureDown = " + two);
    EXPECT_EQ(Pixel(49, 14), dot);
    Mouse(WM_MOUSEMOVE);
    EXPECT_EQ(Pixel(50, 14), 0x00FF00U) << "one pixel in the middle, as light as it can be; 49.5 goes to the even column";
    Button().PictureOver(nullptr);
    EXPECT_EQ(Pixel(49, 14), lightDot);
    Button().Picture(nullptr);
    EXPECT_EQ(Pixel(49, 14), highlight);
    Mouse(WM_LBUTTONDOWN);
    EXPECT_EQ(Pixel(50, 15), darkDot);
}

TEST_F(Pictures, OnStyle13_RiseAndLeaveAShadow)
{
    Show(std::string("Picture = ") + two);
    Button().Style(13);
    EXPECT_EQ(Pixel(49, 14), dot);
    Mouse(WM_MOUSEMOVE);
    EXPECT_EQ(Pixel(48, 13), lightDot);
    EXPECT_EQ(Pixel(49, 14), 0U) << "the picture lies on its shadow";
    EXPECT_EQ(Pixel(50, 15), 0x808080U);
    EXPECT_EQ(Pixel(50, 14), 0xB9E1F5U) << "what is open casts no shadow";
}

TEST(PictureEffects, AreWholeNumbers)
{
    using namespace controls;
    for (const auto& [value, light, dark] :
         {std::tuple{0, 0, 0}, {10, 12, 8}, {30, 34, 26}, {100, 115, 85}, {221, 254, 188}, {222, 255, 189}, {255, 255, 217}}) {
        EXPECT_EQ(lighter[static_cast<std::size_t>(value)], light) << value;
        EXPECT_EQ(darker[static_cast<std::size_t>(value)], dark) << value;
    }
    for (const auto& [pixel, grey] :
         {std::pair{0xFF0000U, 0x4C4C4CU}, {0x00FF00U, 0x969696U}, {0x0000FFU, 0x1C1C1CU}, {0xFFFFFFU, 0xFFFFFFU}, {0x030000U, 0x010101U}})
        EXPECT_EQ(Grey(pixel), grey);
    const auto over = [](std::uint32_t picture, std::uint32_t beneath, const PictureEffect& effect) {
        Pixels under(1, 1);
        under.values = {beneath};
        Pixels pixels(1, 1);
        pixels.values = {picture};
        CoverAllBut(pixels, noColor);
        Composite(under, 0, 0, pixels, effect);
        return under.values[0];
    };
    EXPECT_EQ(over(0xFFFFFF, 0x000000, {}), 0xFFFFFFU) << "opaque is a copy";
    EXPECT_EQ(over(0xC86400, 0x64C8FF, {.opacity = 52}), 0x77B2CAU);
    EXPECT_EQ(over(0xC86400, 0x64C8FF, {.opacity = 191}), 0xAE7C3FU);
    EXPECT_EQ(over(0xFFFFFF, 0xFFFFFF, {.opacity = 191}), 0xFEFEFEU) << "blending loses a step";
}

}  // namespace tests
