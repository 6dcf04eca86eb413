// FormFile: writing.
#include "base/Base64Bytes.h"
#include "host/FormFile.h"

#include <cstdio>

namespace host {

namespace {

base::String Widen(const char* ascii)
{
    const std::string_view text(ascii);
    return {text.begin(), text.end()};
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
        char text[16];
        std::snprintf(text, sizeof text, "0x%08X", static_cast<unsigned>(number.value));
        return Widen(text);
    }

    base::String operator()(const base::String& text) const { return Quoted(text); }

    base::String operator()(const FontDescription& font) const
    {
        char size[32];
        std::snprintf(size, sizeof size, "%g", static_cast<double>(font.size));
        base::String text = TEXT("Font(") + Quoted(font.name) + TEXT(", ") + Widen(size);
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
