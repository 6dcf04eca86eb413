// Face: reading its description and drawing it.
#include "tools/gallery/Face.h"

#include "base/Handles.h"
#include "controls/CommandButton/CommandButtonCaption.h"
#include "controls/CommandButton/CommandButtonStyles.h"
#include "controls/CommandButton/ThemeButton.h"
#include "controls/Pixels.h"
#include "controls/Selection.h"
#include "host/DibInfo.h"

#include <algorithm>
#include <charconv>
#include <fstream>
#include <functional>
#include <iterator>
#include <map>

namespace gallery {

namespace {

using controls::ButtonLook;

std::optional<std::int64_t> Number(std::string_view text)
{
    int radix = 10;
    if (text.starts_with("0x")) {
        radix = 16;
        text.remove_prefix(2);
    }
    std::int64_t number = 0;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), number, radix);
    return error == std::errc() && end == text.data() + text.size() && !text.empty() ? std::optional(number) : std::nullopt;
}

/// Properties by their names in lower case, so that nobody has to remember which letters are capitals.
const std::map<std::string, std::function<void(Face&, std::int64_t)>, std::less<>>& Setters()
{
    const auto to = [](auto reach) {
        return [reach](Face& face, std::int64_t number) {
            auto& value = reach(face);
            value = static_cast<std::remove_reference_t<decltype(value)>>(number);
        };
    };
    static const std::map<std::string, std::function<void(Face&, std::int64_t)>, std::less<>> setters{
        {"toggled", to([](Face& face) -> bool& { return face.look.pressedByToggle; })},
        {"default", to([](Face& face) -> bool& { return face.look.isDefault; })},
        {"focus", to([](Face& face) -> bool& { return face.look.hasFocus; })},
        {"own", to([](Face& face) -> bool& { return face.colors.custom; })},
        {"usecustomcolors", to([](Face& face) -> bool& { return face.colors.custom; })},
        {"backcolor", to([](Face & face) -> auto& { return face.colors.back; })},
        {"backcolordisabled", to([](Face & face) -> auto& { return face.colors.backDisabled; })},
        {"highlightcolor", to([](Face & face) -> auto& { return face.colors.highlight; })},
        {"contourcolor", to([](Face & face) -> auto& { return face.colors.contour; })},
        {"contourstyle", to([](Face & face) -> auto& { return face.look.contourStyle; })},
        {"gradientdirection", to([](Face & face) -> auto& { return face.look.gradientDirection; })},
        {"roundedvalue", to([](Face & face) -> auto& { return face.look.roundedValue; })},
        {"captionalign", to([](Face & face) -> auto& { return face.captionAlign; })},
        {"righttoleft", to([](Face& face) -> bool& { return face.rightToLeft; })},
        {"captionfx", to([](Face & face) -> auto& { return face.captionFx; })},
        {"fontcolor", to([](Face & face) -> auto& { return face.fontColor; })},
        {"fonthighlightcolor", to([](Face & face) -> auto& { return face.fontHighlightColor; })},
        {"picturealign", to([](Face & face) -> auto& { return face.pictureAlign; })},
        {"picturedisabledstyle", to([](Face & face) -> auto& { return face.pictureDisabledStyle; })},
        {"maskcolorenabled", to([](Face& face) -> bool& { return face.maskColorEnabled; })},
        {"maskcolor", to([](Face & face) -> auto& { return face.maskColor; })},
        {"nonthemestyle", to([](Face & face) -> auto& { return face.nonThemeStyle; })},
        {"theme", to([](Face& face) -> bool& { return face.themed; })},
        {"cut", [](Face& face, std::int64_t color) { face.backdrop = static_cast<COLORREF>(color); }},
    };
    return setters;
}

/// The picture in a .bmp or an .ico file; null when the file holds neither.
std::shared_ptr<host::Picture> ReadPicture(const std::string& file)
{
    std::ifstream stream(file, std::ios::binary);
    host::PictureDescription description{host::PictureType::Bitmap, {std::istreambuf_iterator<char>(stream), {}}};
    if (!description.bytes.empty() && description.bytes[0] == 0)
        description.type = host::PictureType::Icon;
    return host::Picture::Of(description);
}

/// The picture of this name; null for what is a number.
std::shared_ptr<host::Picture>* PictureNamed(Face& face, std::string_view name)
{
    constexpr std::string_view names[] = {"picture", "pictureover", "picturedown", "picturedisabled"};
    const auto* const found = std::ranges::find(names, name);
    return found == std::end(names) ? nullptr : &face.pictures[static_cast<std::size_t>(found - names)];
}

bool Set(Face& face, std::string_view word)
{
    const std::size_t equals = std::min(word.find('='), word.size());
    std::string name(word.substr(0, equals));
    std::ranges::transform(name, name.begin(),
                           [](char letter) { return letter >= 'A' && letter <= 'Z' ? static_cast<char>(letter | 0x20) : letter; });
    if (equals == word.size())
        return false;
    const std::string_view value = word.substr(equals + 1);
    if (name == "caption") {
        face.caption.assign(value.begin(), value.end());
        return true;
    }
    if (std::shared_ptr<host::Picture>* const picture = PictureNamed(face, name)) {
        *picture = ReadPicture(std::string(value));
        return *picture != nullptr;
    }
    const auto setter = Setters().find(name);
    const auto number = Number(value);
    if (setter == Setters().end() || !number)
        return false;
    setter->second(face, *number);
    return true;
}

void PaintStyle(controls::Canvas& canvas, const controls::ButtonStyle*& style, const Face& face, const ButtonLook& look)
{
    const std::int32_t themeState = look.hasFocus && look.state == controls::StateNormal ? controls::StateDefaulted : look.state;
    if (face.style == controls::ThemeStyle && !(face.themed && controls::PaintThemeButton(canvas, nullptr, themeState, nullptr)))
        style = &controls::ButtonStyleOf(face.nonThemeStyle);
    style->painter(canvas, look);
}

void PaintCaption(controls::Canvas& canvas, const controls::ButtonStyle& style, const Face& face, const ButtonLook& look)
{
    const int width = canvas.Width(), height = canvas.Height();
    RECT block = controls::CaptionStart(width, height);
    DrawTextW(canvas.Dc(), face.caption.c_str(), static_cast<int>(face.caption.size()), &block,
              DT_CALCRECT | DT_WORDBREAK | (face.rightToLeft ? DT_RTLREADING : 0));
    controls::PaintButtonCaption(
        canvas, look,
        {face.caption, controls::PlaceCaption(width, height, block, face.captionAlign, style.margin, face.rightToLeft), face.captionFx,
         host::ToRgb(face.fontColor), host::ToRgb(face.fontHighlightColor)});
}

/// Everything outside the shape of the window gets the backdrop's colour.
void Cut(platform::Image& image, const controls::ButtonStyle& own, const controls::ButtonStyle& drawn, const ButtonLook& look,
         COLORREF backdrop)
{
    const base::RegionHandle region = ShapeRegion(OutlineOf(own, drawn, look, {image.width, image.height}));
    for (int y = 0; y < image.height; ++y)
        for (int x = 0; x < image.width; ++x)
            if (!PtInRegion(region.Get(), x, y))
                image.At(x, y) = controls::AsPixel(backdrop);
}

}  // namespace

const std::string_view stateNames[5] = {"normal", "hot", "pressed", "disabled", "defaulted"};

std::optional<Face> ReadFace(std::span<const std::string_view> words, std::string& mistake)
{
    Face face;
    const auto wrong = [&](std::string_view what, std::string_view word) {
        mistake = std::string(what) + ": " + std::string(word);
        return std::nullopt;
    };
    if (words.size() < 3)
        return wrong("too few words", "STYLE STATE WIDTHxHEIGHT [name=value ...] FILE.png");
    const auto style = Number(words[0]);
    const auto* const state = std::ranges::find(stateNames, words[1]);
    const std::size_t by = std::min(words[2].find('x'), words[2].size() - 1);
    const auto width = Number(words[2].substr(0, by)), height = Number(words[2].substr(by + 1));
    if (!style || *style < 0 || *style > 18)
        return wrong("no style", words[0]);
    if (state == std::end(stateNames))
        return wrong("no state", words[1]);
    if (!width || !height || *width < 1 || *height < 1 || *width > 10000 || *height > 10000)
        return wrong("no size", words[2]);
    face.style = static_cast<std::int32_t>(*style);
    face.look.state = static_cast<std::int32_t>(state - stateNames) + 1;
    face.size = {static_cast<LONG>(*width), static_cast<LONG>(*height)};
    for (const std::string_view word : words.subspan(3))
        if (!Set(face, word))
            return wrong("no property and its value", word);
    if (face.look.pressedByToggle)
        face.look.state = controls::StatePressed;
    return face;
}

std::optional<platform::Image> DrawFace(const Face& face)
{
    const int width = face.size.cx, height = face.size.cy;
    controls::Pixels pixels(width, height);
    const BITMAPINFO info = host::DibInfo(pixels.width, -pixels.height);
    const base::MemoryDc dc(CreateCompatibleDC(nullptr));
    void* bits = nullptr;
    const base::BitmapHandle bitmap(CreateDIBSection(nullptr, &info, DIB_RGB_COLORS, &bits, nullptr, 0));
    if (!dc || !bitmap)
        return std::nullopt;
    const controls::Selection paper(dc.Get(), bitmap.Get());
    const controls::Selection font(dc.Get(), GetStockObject(DEFAULT_GUI_FONT));

    ButtonLook look = face.look;
    look.Resolve(face.colors);
    controls::Canvas canvas(dc.Get(), width, height);
    canvas.Fill(canvas.Client(), look.IsDisabled() ? look.ground : GetSysColor(COLOR_BTNFACE));
    const controls::ButtonStyle& own = controls::ButtonStyleOf(face.style);
    const controls::ButtonStyle* drawn = &own;
    PaintStyle(canvas, drawn, face, look);
    if (look.hasFocus)
        controls::PaintButtonFocus(canvas, *drawn, look);
    controls::PaintButtonPicture(canvas, *drawn, look,
                                 {face.pictures, face.pictureAlign, face.pictureDisabledStyle, face.maskColorEnabled, face.maskColor});
    if (!face.caption.empty())
        PaintCaption(canvas, *drawn, face, look);

    platform::Image image(width, height);
    for (int y = 0; y < height; ++y)
        for (int x = 0; x < width; ++x)
            image.At(x, y) = controls::AsPixel(GetPixel(dc.Get(), x, y));
    if (face.backdrop)
        Cut(image, own, *drawn, look, *face.backdrop);
    return image;
}

}  // namespace gallery
