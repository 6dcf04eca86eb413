#include "host/Font.h"

#include "host/Units.h"

#include <cmath>

namespace host {

void Font::Changed()
{
    realised_.reset();
    FontChanged.Raise();
}

void Font::Name(base::StringView name)
{
    if (description_.name == name)
        return;
    description_.name = name;
    Changed();
}

void Font::Size(float points)
{
    if (std::exchange(description_.size, points) != points)
        Changed();
}

void Font::Bold(bool bold)
{
    if (Bold() != bold)
        Weight(bold ? FW_BOLD : FW_NORMAL);
}

void Font::Weight(std::int16_t weight)
{
    if (std::exchange(description_.weight, weight) != weight)
        Changed();
}

void Font::Italic(bool italic)
{
    if (std::exchange(description_.italic, italic) != italic)
        Changed();
}

void Font::Underline(bool underline)
{
    if (std::exchange(description_.underline, underline) != underline)
        Changed();
}

void Font::Strikethrough(bool strikethrough)
{
    if (std::exchange(description_.strikethrough, strikethrough) != strikethrough)
        Changed();
}

void Font::Charset(std::int16_t charset)
{
    if (std::exchange(description_.charset, charset) != charset)
        Changed();
}

LOGFONTW Font::LogicalFont() const
{
    LOGFONTW font{};
    // MulDiv counts in whole numbers; a point size has at most two decimals that matter.
    font.lfHeight = -MulDiv(static_cast<int>(std::lround(description_.size * 100)), ScreenResolution::Get().y, 7200);
    font.lfWeight = description_.weight;
    font.lfItalic = description_.italic;
    font.lfUnderline = description_.underline;
    font.lfStrikeOut = description_.strikethrough;
    font.lfCharSet = static_cast<BYTE>(description_.charset);
    description_.name.copy(font.lfFaceName, LF_FACESIZE - 1);
    return font;
}

std::shared_ptr<const base::FontHandle> Font::Share()
{
    if (!realised_) {
        const LOGFONTW logical = LogicalFont();
        base::FontHandle font(CreateFontIndirectW(&logical));
        if (font)
            realised_ = std::make_shared<const base::FontHandle>(std::move(font));
    }
    return realised_;
}

HFONT Font::Handle()
{
    const auto shared = Share();
    return shared ? shared->Get() : nullptr;
}

}  // namespace host
