// FormFile: writing.
#include "base/Base64Bytes.h"
#include "host/FormFile.h"

#include <cmath>

namespace host {

namespace {

/// "0x" and eight digits.
base::String Hexadecimal(std::uint32_t number)
{
    base::String text = TEXT("0x");
    for (int shift = 28; shift >= 0; shift -= 4)
        text += TEXT("0123456789ABCDEF")[number >> shift & 15];
    return text;
}

/// Points with up to four decimal places, as many as Windows keeps of a font's size.
base::String Points(float size)
{
    constexpr long long one = 10'000;
    const long long parts = std::llround(static_cast<double>(size) * one);
    base::String text = base::ToDecimal(parts / one);
    if (parts % one == 0)
        return text;
    const base::String places = base::ToDecimal(one + parts % one);
    return text + TEXT('.') + places.substr(1, places.find_last_not_of(TEXT('0')));
}

base::String Quoted(const base::String& text)
{
    static constexpr base::StringView special = TEXT("\"\\\n\r\t"), letters = TEXT("\"\\nrt");
    base::String quoted = TEXT("\"");
    for (const WCHAR c : text) {
        const std::size_t which = special.find(c);
        if (which == base::StringView::npos) {
            quoted += c;
        } else {
            quoted += TEXT('\\');
            quoted += letters[which];
        }
    }
    return quoted + TEXT('"');
}

struct ValueWriter {
    base::String operator()(bool value) const { return value ? TEXT("True") : TEXT("False"); }

    base::String operator()(const Number& number) const
    {
        if (!number.hexadecimal)
            return base::ToDecimal(number.value);
        return Hexadecimal(static_cast<std::uint32_t>(number.value));
    }

    base::String operator()(const base::String& text) const { return Quoted(text); }

    base::String operator()(const FontDescription& font) const
    {
        base::String text = TEXT("Font(") + Quoted(font.name) + TEXT(", ") + Points(font.size);
        if (font.weight == FW_BOLD)
            text += TEXT(", Bold");
        else if (font.weight != FW_NORMAL)
            text += TEXT(", Weight ") + base::ToDecimal(font.weight);
        if (font.italic)
            text += TEXT(", Italic");
        if (font.underline)
            text += TEXT(", Underline");
        if (font.strikethrough)
            text += TEXT(", Strikethrough");
        if (font.charset != DEFAULT_CHARSET)
            text += TEXT(", Charset ") + base::ToDecimal(font.charset);
        return text + TEXT(")");
    }

    base::String operator()(const PictureDescription& picture) const
    {
        if (picture.type == PictureType::None)
            return TEXT("None");
        const base::String word = picture.type == PictureType::Icon ? TEXT("Icon(\"") : TEXT("Bitmap(\"");
        return word + base::Base64EncodeBytes(picture.bytes) + TEXT("\")");
    }

    base::String operator()(const TextList& list) const
    {
        base::String text = TEXT("[");
        for (const base::String& item : list) {
            if (text.size() > 1)
                text += TEXT(", ");
            text += Quoted(item);
        }
        return text + TEXT("]");
    }
};

void WriteNode(const FormNode& node, std::size_t depth, base::String& text)
{
    const base::String indent(depth * 4, TEXT(' '));
    text += indent + node.kind + TEXT(" ") + node.name + TEXT(" {\n");
    for (const Property& property : node.properties)
        text += indent + TEXT("    ") + property.key + TEXT(" = ") + std::visit(ValueWriter{}, property.value) + TEXT("\n");
    for (const FormNode& child : node.children)
        WriteNode(child, depth + 1, text);
    text += indent + TEXT("}\n");
}

}  // namespace

std::string WriteForm(const FormNode& form)
{
    base::String text;
    WriteNode(form, 0, text);
    const int length = static_cast<int>(text.size());
    const int size = WideCharToMultiByte(CP_UTF8, 0, text.data(), length, nullptr, 0, nullptr, nullptr);
    std::string utf8(static_cast<std::size_t>(size), '\0');
    WideCharToMultiByte(CP_UTF8, 0, text.data(), length, utf8.data(), size, nullptr, nullptr);
    return utf8;
}

}  // namespace host
