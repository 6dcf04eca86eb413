// Pictures out of the bytes of files, and back.
#include "host/FormFile.h"
#include "host/PropertyBag.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <string>

namespace tests {

namespace {

using host::Picture;
using host::PictureDescription;
using host::PictureType;

PictureDescription Described(const std::string& value)
{
    const host::ParsedForm parsed = host::ParseForm("Form F { P = " + value + " }");
    EXPECT_TRUE(parsed.Ok()) << parsed.message;
    return std::get<PictureDescription>(parsed.root.properties.at(0).value);
}

std::vector<COLORREF> FirstRow(HBITMAP bitmap, int count)
{
    const base::MemoryDc dc(CreateCompatibleDC(nullptr));
    const HGDIOBJ former = SelectObject(dc.Get(), bitmap);
    std::vector<COLORREF> row;
    for (int x = 0; x < count; ++x)
        row.push_back(GetPixel(dc.Get(), x, 0));
    SelectObject(dc.Get(), former);
    return row;
}

// Red, green, blue; with 24 and with 32 bits (this one the top row first), with a short palette of three, with 16 colours.
constexpr const char* bitmaps[] = {"Qk1CAAAAAAAAADYAAAAoAAAAAwAAAAEAAAABABgAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAD/AP8A/wAAAAAA",
                                   "Qk1CAAAAAAAAADYAAAAoAAAAAwAAAP////8BACAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAD/AAD/AAD/AAAA",
                                   "Qk1GAAAAAAAAAEIAAAAoAAAAAwAAAAEAAAABAAgAAAAAAAAAAAAAAAAAAAAAAAMAAAAAAAAAAAD/AAD/AAD/AAAAAAECAA==",
                                   "Qk16AAAAAAAAAHYAAAAoAAAAAwAAAAEAAAABAAQAAAAAAAQAAAAAAAAAAAAAAAAAAAAAAAAAAAD/AAD/AAD/AAAAAAAAAAAA"
                                   "AAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAEgAAA="};
constexpr const char* icon =
    "AAABAAEAAgIAAAEAIABAAAAAFgAAACgAAAACAAAABAAAAAEAIAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAHgpkAB4KZAAAAAAAgAAAAEAAAAA=";
constexpr const char* blackAndWhiteIcon =
    "AAABAAEAAgICAAEAAQBAAAAAFgAAACgAAAACAAAABAAAAAEAAQAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAA////AIAAAABAAAAAQAAAAAAAAAA=";

}  // namespace

TEST(Picture, IsMadeOfTheBytesOfAFile_AndGivesThemBack)
{
    for (const char* const bytes : bitmaps) {
        const PictureDescription description = Described("Bitmap(\"" + std::string(bytes) + "\")");
        const auto picture = Picture::Of(description);
        ASSERT_TRUE(picture) << bytes;
        EXPECT_EQ(picture->GetType(), PictureType::Bitmap);
        EXPECT_EQ(picture->Size().cx, 3);
        EXPECT_EQ(picture->Size().cy, 1);
        EXPECT_EQ(FirstRow(picture->Bitmap(), 3), (std::vector<COLORREF>{0x0000FF, 0x00FF00, 0xFF0000})) << bytes;
        EXPECT_EQ(picture->Description(), description);
    }
    const auto picture = Picture::Of(Described("Icon(\"" + std::string(icon) + "\")"));
    ASSERT_TRUE(picture);
    EXPECT_EQ(picture->GetType(), PictureType::Icon);
    EXPECT_EQ(picture->Size().cx, 2);
    EXPECT_EQ(picture->Size().cy, 2);
}

TEST(Picture, OfTwoColours_HasThem)
{
    const auto picture =
        Picture::Of(Described("Bitmap(\"Qk1CAAAAAAAAAD4AAAAoAAAAAgAAAAEAAAABAAEAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAD/AP8AAABAAAAA\")"));
    ASSERT_TRUE(picture);
    EXPECT_EQ(FirstRow(picture->Bitmap(), 2), (std::vector<COLORREF>{0x0000FF, 0xFF0000}));
}

TEST(Picture, OfSeveralInAnIconFile_IsTheFirstOfTheNearestSize)
{
    // Two pictures of 64 bytes each; the second one is black and white. Windows' icons are 32 pixels wide.
    const std::tuple<int, int, bool> widths[] = {{16, 40, true}, {40, 16, false}, {24, 40, false}, {0, 48, true}, {48, 0, false}};
    for (const auto& [first, second, takesSecond] : widths) {
        PictureDescription both = Described("Icon(\"" + std::string(icon) + "\")");
        const auto other = Described("Icon(\"" + std::string(blackAndWhiteIcon) + "\")").bytes;
        both.bytes[4] = 2;
        both.bytes[6] = static_cast<std::uint8_t>(first);
        both.bytes[18] = 22 + 16;
        both.bytes.insert(both.bytes.begin() + 22, other.begin() + 6, other.begin() + 22);
        both.bytes[22] = static_cast<std::uint8_t>(second);
        both.bytes[34] = static_cast<std::uint8_t>(both.bytes.size());
        both.bytes.insert(both.bytes.end(), other.begin() + 22, other.end());
        const auto picture = Picture::Of(both);
        ASSERT_TRUE(picture) << first;
        ICONINFO parts{};
        ASSERT_TRUE(GetIconInfo(picture->Icon(), &parts));
        const base::BitmapHandle mask(parts.hbmMask), color(parts.hbmColor);
        EXPECT_EQ(!color, takesSecond) << first << " and " << second;
    }
}

TEST(Picture, OfAHandle_BecomesAFileThatShowsTheSame)
{
    BITMAPINFO info{};
    info.bmiHeader = {sizeof info.bmiHeader, 3, -1, 1, 32, BI_RGB, 0, 0, 0, 0, 0};
    void* bits = nullptr;
    base::BitmapHandle bitmap(CreateDIBSection(nullptr, &info, DIB_RGB_COLORS, &bits, nullptr, 0));
    ASSERT_TRUE(bitmap);
    std::ranges::copy(std::array{0xFF0000U, 0x00FF00U, 0x0000FFU}, static_cast<std::uint32_t*>(bits));
    const auto copy = Picture::Of(Picture(std::move(bitmap)).Description());
    ASSERT_TRUE(copy);
    EXPECT_EQ(FirstRow(copy->Bitmap(), 3), (std::vector<COLORREF>{0x0000FF, 0x00FF00, 0xFF0000}));

    // The lower row first: blue of both its pixels, and which of them are open; then so of the upper row.
    const std::pair<const char*, std::array<int, 6>> icons[] = {{icon, {0x00, 0x1E, 0x80, 0x1E, 0x00, 0x40}},
                                                                {blackAndWhiteIcon, {0xFF, 0x00, 0x40, 0x00, 0xFF, 0x00}}};
    for (const auto& [bytes, expected] : icons) {
        PictureDescription file = Described("Icon(\"" + std::string(bytes) + "\")");
        host::IconHandle made(CreateIconFromResourceEx(file.bytes.data() + 22, static_cast<DWORD>(file.bytes.size() - 22), TRUE, 0x00030000,
                                                       0, 0, LR_DEFAULTCOLOR));
        Picture picture(std::move(made));
        EXPECT_EQ(picture.Size().cy, 2);
        const std::vector<std::uint8_t> again = picture.Description().bytes;
        ASSERT_EQ(again.size(), 86U) << bytes;
        EXPECT_EQ((std::array<int, 6>{again[62], again[66], again[78] & 0xC0, again[70], again[74], again[82] & 0xC0}), expected) << bytes;
    }
}

/// Bytes come from a file that anybody may have changed: what they claim is not believed.
TEST(Picture, OfBrokenBytes_IsNone)
{
    for (const PictureType type : {PictureType::Bitmap, PictureType::Icon}) {
        const PictureDescription whole =
            Described(type == PictureType::Icon ? "Icon(\"" + std::string(icon) + "\")" : "Bitmap(\"" + std::string(bitmaps[2]) + "\")");
        for (std::size_t size = 0; size + 4 < whole.bytes.size(); ++size) {
            PictureDescription part = whole;
            part.bytes.resize(size);
            EXPECT_FALSE(Picture::Of(part)) << static_cast<int>(type) << ", the first " << size << " bytes";
        }
        for (std::size_t at = 0; at < whole.bytes.size(); ++at) {
            for (const std::uint8_t value : {0x00, 0x7F, 0x80, 0xFF}) {
                PictureDescription changed = whole;
                changed.bytes[at] = value;
                static_cast<void>(Picture::Of(changed));
            }
        }
    }
}

TEST(Picture, InAPropertyBag_FallsBackWhenItIsNone)
{
    host::PropertyBag bag;
    const auto picture = Picture::Of(Described("Icon(\"" + std::string(icon) + "\")"));
    bag.Write(TEXT("Some"), picture);
    bag.Write(TEXT("None"), std::shared_ptr<Picture>());
    bag.Write(TEXT("Text"), base::String(TEXT("x")));
    bag.Write(TEXT("Same"), picture, picture);
    EXPECT_EQ(bag.Read<std::shared_ptr<Picture>>(TEXT("Some"), nullptr)->Description(), picture->Description());
    EXPECT_EQ(bag.Read<std::shared_ptr<Picture>>(TEXT("None"), picture), nullptr);
    EXPECT_EQ(bag.Read<std::shared_ptr<Picture>>(TEXT("Text"), picture), picture);
    EXPECT_EQ(bag.Find(TEXT("Same")), nullptr);
    for (const char* const wrong : {"Bitmap", "Bitmap(3)", "Icon(\"?\")", "Bitmap(\"\")"})
        EXPECT_FALSE(host::ParseForm(std::string("Form F { P = ") + wrong + " }").Ok()) << wrong;
}

}  // namespace tests
