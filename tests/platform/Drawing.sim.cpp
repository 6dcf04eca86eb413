// The stand-in PC's own drawing: images, pictures as files, what is watched, and looks that must never change by themselves.
#include "base/Handles.h"
#include "platform/sim/Graphics.h"
#include "platform/sim/Png.h"
#include "platform/sim/Theme.h"

#include <gtest/gtest.h>

#include <uxtheme.h>
#include <vsstyle.h>

#include <algorithm>

namespace {

using namespace platform;

/// A device context of a window's kind on an image of its own.
class Screen {
public:
    Screen(int width, int height) : image_(std::make_shared<Image>(width, height, 0xF0F0F0))
    {
        dc_ = Pc().OpenDc(image_, {0, 0}, Region(image_->Bounds()), nullptr);
    }
    ~Screen() { Pc().CloseDc(dc_); }
    Screen(const Screen&) = delete;
    Screen& operator=(const Screen&) = delete;
    static Graphics& Pc() { return SimPc::Current().Get<Graphics>(); }
    [[nodiscard]] HDC Dc() const { return dc_; }
    [[nodiscard]] Image& Pixels() const { return *image_; }

private:
    std::shared_ptr<Image> image_;
    HDC dc_ = nullptr;
};

TEST(Image, HashTellsPixelsAndShapesApart_AndIgnoresTheOrderOfRows)
{
    const Image flat(6, 4, 5);
    Image other = flat;
    EXPECT_EQ(flat.Hash(), other.Hash());
    other.At(5, 3) = 6;
    EXPECT_NE(flat.Hash(), other.Hash());
    EXPECT_NE(flat.Hash(), Image(4, 6, 5).Hash());
    Image turned(6, 4, 5);
    turned.bottomUp = true;
    turned.At(5, 3) = 6;
    EXPECT_EQ(turned.Hash(), other.Hash());
    EXPECT_EQ(other.Part({5, 3, 7, 4}).pixels, (std::vector<std::uint32_t>{6, 0}));
}

TEST(Png, HoldsThePixelsInStoredBlocks)
{
    Image image(200, 150, 0xABCDEF);  // 90150 bytes with the rows' filter bytes: two blocks
    image.At(199, 149) = 0x123456;
    const std::vector<std::uint8_t> file = EncodePng(image);
    // Signature, header chunk, length and name of the data chunk and two bytes of its own header come before the first block.
    const std::size_t first = 8 + 25 + 8 + 2, second = first + 5 + 65535, end = second + 5 + 90150 - 65535;
    ASSERT_EQ(file.size(), end + 4 + 4 + 12);
    EXPECT_EQ((std::vector(&file[first], &file[first + 9])), (std::vector<std::uint8_t>{0, 0xFF, 0xFF, 0, 0, 0, 0xAB, 0xCD, 0xEF}));
    EXPECT_EQ((std::vector(&file[second], &file[second + 5])), (std::vector<std::uint8_t>{1, 0x27, 0x60, 0xD8, 0x9F}));
    EXPECT_EQ((std::vector(&file[end - 6], &file[end])), (std::vector<std::uint8_t>{0xAB, 0xCD, 0xEF, 0x12, 0x34, 0x56}));
}

TEST(GdiObjects, AreNotDeletedWhileSelected_AndLeaksAreNamed)
{
    const Screen screen(4, 4);
    const HandleTable& handles = SimPc::Current().Handles();
    const std::size_t before = handles.Leaks().size();
    const HPEN pen = CreatePen(PS_SOLID, 1, RGB(255, 0, 0));
    const HGDIOBJ old = SelectObject(screen.Dc(), pen);
    EXPECT_EQ(SaveDC(screen.Dc()), 1);
    SelectObject(screen.Dc(), old);
    EXPECT_FALSE(DeleteObject(pen));
    EXPECT_TRUE(RestoreDC(screen.Dc(), -1));
    EXPECT_FALSE(DeleteObject(pen));
    SelectObject(screen.Dc(), old);
    ASSERT_EQ(handles.Leaks().size(), before + 1);
    EXPECT_NE(handles.Leaks().back().find("CreatePen"), std::string::npos);
    EXPECT_TRUE(DeleteObject(pen));
    EXPECT_EQ(handles.Leaks().size(), before);
}

TEST(DeviceContexts, FollowTheirWindow_AndKeepWhatTheProgramSet)
{
    Graphics& graphics = Screen::Pc();
    const auto pixels = std::make_shared<Image>(20, 10);
    const HWND window = reinterpret_cast<HWND>(static_cast<INT_PTR>(64));
    const HDC dc = graphics.OpenDc(pixels, {2, 2}, Region(RECT{2, 2, 6, 6}), window);
    EXPECT_EQ(graphics.DcsOf(window), std::vector<HDC>{dc});
    SetTextColor(dc, RGB(1, 1, 1));
    IntersectClipRect(dc, 0, 0, 2, 9);
    graphics.MoveDc(dc, pixels, {10, 0}, Region(RECT{10, 0, 14, 4}));
    PatBlt(dc, -5, -5, 30, 30, WHITENESS);
    EXPECT_EQ(GetTextColor(dc), RGB(1, 1, 1));
    Image expected(20, 10);
    for (int y = 0; y < 4; ++y)
        expected.At(10, y) = expected.At(11, y) = 0xFFFFFF;
    EXPECT_EQ(*pixels, expected);
    EXPECT_FALSE(DeleteDC(dc));
    EXPECT_TRUE(graphics.CloseDc(dc));
    EXPECT_FALSE(graphics.CloseDc(dc));
    EXPECT_EQ(SetTextColor(dc, 0), CLR_INVALID);
    EXPECT_EQ(SimPc::Current().LastError(), static_cast<DWORD>(ERROR_INVALID_HANDLE));
}

TEST(Typeface, IsTheSameEverywhere)
{
    const Screen screen(200, 60);
    SetBkMode(screen.Dc(), TRANSPARENT);
    const base::FontHandle font(CreateFontW(-11, 0, 0, 0, FW_NORMAL, 0, 0, 0, 0, 0, 0, 0, 0, TEXT("Microsoft Sans Serif")));
    const HGDIOBJ before = SelectObject(screen.Dc(), font.Get());
    TEXTMETRICW metrics{};
    GetTextMetricsW(screen.Dc(), &metrics);
    EXPECT_EQ(metrics.tmHeight, 13);
    EXPECT_EQ(metrics.tmAscent, 11);
    SIZE size{};
    GetTextExtentPoint32W(screen.Dc(), TEXT("Velmora"), 7, &size);
    EXPECT_EQ(size.cx, 6 + 6 + 2 + 8 + 6 + 4 + 6);
    TextOutW(screen.Dc(), 1, 1, u"l\u00C4\u20AC\u4E00", 4);
    SelectObject(screen.Dc(), before);
    std::vector<std::string> rows;
    for (int y = 1; y < 13; ++y) {
        std::string& row = rows.emplace_back();
        for (int x = 1; x < 22; ++x)
            row += screen.Pixels().At(x, y) == 0 ? '#' : '.';
    }
    EXPECT_EQ(rows, (std::vector<std::string>{".....................", "....#.#..............", ".....................",
                                              "#...##.....###.#####.", "#...##....#....#...#.", "#..#..#..#.....#...#.",
                                              "#..#..#..####..#...#.", "#..####..#.....#...#.", "#.#....#.####..#...#.",
                                              "#.#....#..#....#...#.", "#.#....#...###.#####.", "....................."}));
    ASSERT_EQ(Screen::Pc().Texts().size(), 1u);
    EXPECT_EQ(Screen::Pc().Texts()[0].cell.left, 1);
}

TEST(Typeface, FixedPitchAndUnknownFamilies)
{
    const Screen screen(10, 10);
    const auto width = [&](LPCWSTR face, LPCWSTR text) {
        const base::FontHandle font(CreateFontW(-11, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, face));
        const HGDIOBJ before = SelectObject(screen.Dc(), font.Get());
        SIZE size{};
        GetTextExtentPoint32W(screen.Dc(), text, 2, &size);
        SelectObject(screen.Dc(), before);
        return size.cx;
    };
    EXPECT_EQ(width(TEXT("Courier New"), TEXT("il")), width(TEXT("courier new"), TEXT("MW")));
    EXPECT_LT(width(TEXT("Tahoma"), TEXT("il")), width(TEXT("Tahoma"), TEXT("MW")));
    EXPECT_EQ(width(TEXT("No such family"), TEXT("MW")), width(TEXT("Tahoma"), TEXT("MW")));
    for (const int height : {7, 13, 20, 31}) {
        const base::FontHandle font(CreateFontW(height, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, TEXT("Tahoma")));
        const HGDIOBJ before = SelectObject(screen.Dc(), font.Get());
        TEXTMETRICW metrics{};
        GetTextMetricsW(screen.Dc(), &metrics);
        SelectObject(screen.Dc(), before);
        EXPECT_EQ(metrics.tmHeight, height);
        EXPECT_EQ(metrics.tmAscent + metrics.tmDescent, height);
    }
}

TEST(StateDrawing, DisabledTextIsEngraved)
{
    const Screen screen(30, 20);
    EXPECT_TRUE(
        DrawStateW(screen.Dc(), nullptr, nullptr, reinterpret_cast<LPARAM>(TEXT("&H")), 2, 2, 2, 0, 0, DST_PREFIXTEXT | DSS_DISABLED));
    const Image& engraved = screen.Pixels();
    int dark = 0;
    for (int y = 0; y < 19; ++y)
        for (int x = 0; x < 29; ++x)
            if (engraved.At(x, y) == 0xA0A0A0) {
                ++dark;
                EXPECT_NE(engraved.At(x + 1, y + 1), 0xF0F0F0u);
            }
    EXPECT_GT(dark, 20);
}

TEST(Icons, CoverWhatTheirMaskCovers)
{
    const base::MemoryDc dc(CreateCompatibleDC(nullptr));
    const BYTE maskBits[]{0x40, 0, 0, 0};
    const std::uint32_t colorBits[]{0x00FF0000, 0, 0x0000FF00, 0x000000FF};
    const base::BitmapHandle mask(CreateBitmap(2, 2, 1, 1, maskBits));
    const base::BitmapHandle color(CreateBitmap(2, 2, 1, 32, colorBits));
    ICONINFO info{TRUE, 0, 0, mask.Get(), color.Get()};
    const HICON icon = CreateIconIndirect(&info);
    const Screen screen(4, 4);
    EXPECT_TRUE(DrawIconEx(screen.Dc(), 0, 0, icon, 4, 4, 0, nullptr, DI_NORMAL));
    EXPECT_EQ(screen.Pixels().At(1, 1), 0xFF0000u);
    EXPECT_EQ(screen.Pixels().At(2, 0), 0xF0F0F0u);
    EXPECT_EQ(screen.Pixels().At(3, 3), 0x0000FFu);
    SimPc::Current().Handles().Close<Icon>(icon);
}

TEST(ThemeLooks, EveryKnownStateHasItsOwnLook)
{
    const auto looks = [](const WCHAR* className, int part, int states) {
        std::vector<std::uint64_t> hashes;
        for (int state = 1; state <= states; ++state) {
            const Screen screen(60, 24);
            const HTHEME theme = OpenThemeData(nullptr, className);
            const RECT box{0, 0, 60, 24};
            EXPECT_EQ(DrawThemeBackground(theme, screen.Dc(), part, state, &box, &box), S_OK);
            CloseThemeData(theme);
            hashes.push_back(screen.Pixels().Hash());
        }
        std::sort(hashes.begin(), hashes.end());
        return std::unique(hashes.begin(), hashes.end()) - hashes.begin();
    };
    EXPECT_EQ(looks(TEXT("Button"), BP_PUSHBUTTON, 5), 5);
    EXPECT_EQ(looks(TEXT("BUTTON"), BP_CHECKBOX, 12), 12);
    EXPECT_EQ(looks(TEXT("button"), BP_GROUPBOX, 2), 2);
    EXPECT_EQ(looks(TEXT("none;ComboBox"), CP_READONLY, 4), 4);
}

TEST(ThemeLooks, SwitchedOffOrUnknown_NothingOpens)
{
    Theme& theme = SimPc::Current().Get<Theme>();
    EXPECT_EQ(OpenThemeData(nullptr, TEXT("Nothing")), nullptr);
    theme.Active(false);
    EXPECT_FALSE(IsThemeActive());
    EXPECT_EQ(OpenThemeData(nullptr, TEXT("Button")), nullptr);
    theme.Active(true);
    theme.AppThemed(false);
    EXPECT_TRUE(IsThemeActive());
    EXPECT_EQ(OpenThemeData(nullptr, TEXT("Button")), nullptr);
    theme.AppThemed(true);
    const HTHEME open = OpenThemeData(nullptr, TEXT("Button"));
    HRGN region = nullptr;
    const RECT box{0, 0, 20, 10};
    EXPECT_EQ(GetThemeBackgroundRegion(open, nullptr, BP_PUSHBUTTON, PBS_NORMAL, &box, &region), S_OK);
    RECT bounds{};
    EXPECT_EQ(GetRgnBox(region, &bounds), SIMPLEREGION);
    DeleteObject(region);
    EXPECT_EQ(CloseThemeData(open), S_OK);
    EXPECT_EQ(CloseThemeData(open), E_HANDLE);
}

}  // namespace
