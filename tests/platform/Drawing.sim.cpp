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
    graphics.MoveDc(dc, pixels, {10, 0}, Region(RECT{10, 0, 12, 4}));
    const RECT all{-5, -5, 30, 30};
    FillRect(dc, &all, static_cast<HBRUSH>(GetStockObject(WHITE_BRUSH)));
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

/// Selects a font of this height for as long as it lives.
class Face {
public:
    Face(const Screen& screen, int height, const std::u16string& name = u"Microsoft Sans Serif") : dc_(screen.Dc())
    {
        LOGFONTW wanted{};
        wanted.lfHeight = height;
        name.copy(wanted.lfFaceName, LF_FACESIZE - 1);
        font_.Reset(CreateFontIndirectW(&wanted));
        before_ = SelectObject(dc_, font_.Get());
    }
    ~Face() { SelectObject(dc_, before_); }
    Face(const Face&) = delete;
    Face& operator=(const Face&) = delete;
    [[nodiscard]] TEXTMETRICW Metrics() const
    {
        TEXTMETRICW metrics{};
        GetTextMetricsW(dc_, &metrics);
        return metrics;
    }
    [[nodiscard]] LONG Width(const std::u16string& text) const
    {
        SIZE size{};
        GetTextExtentPoint32W(dc_, text.c_str(), static_cast<int>(text.size()), &size);
        return size.cx;
    }

private:
    HDC dc_;
    base::FontHandle font_;
    HGDIOBJ before_;
};

TEST(Typeface, IsTheSameEverywhere)
{
    const Screen screen(200, 60);
    SetBkMode(screen.Dc(), TRANSPARENT);
    {
        const Face face(screen, -11);
        EXPECT_EQ(face.Metrics().tmHeight, 13);
        EXPECT_EQ(face.Metrics().tmAscent, 11);
        EXPECT_EQ(face.Width(u"Velmora"), 6 + 6 + 2 + 8 + 6 + 4 + 6);
        RECT box{1, 1, 200, 60};
        DrawTextW(screen.Dc(), u"l\u00C4\u20AC\u4E00", 4, &box, DT_SINGLELINE);
    }
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

}  // namespace
