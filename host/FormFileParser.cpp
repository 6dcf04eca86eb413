// FormFile: reading.
#include "base/Base64Bytes.h"
#include "host/FormFile.h"

#include <cstdlib>
#include <optional>

namespace host {

namespace {

constexpr int deepestNesting = 32;

/// One pass over the text, one method a rule. The first mistake is kept with its line and ends the pass: every method then returns false.
class Parser {
public:
    explicit Parser(base::String text) : text_(std::move(text)) {}

    ParsedForm Run()
    {
        ParsedForm form;
        base::String kind;
        SkipBlanks();
        if (Word(kind, "a kind such as Form") && Node(std::move(kind), form.root, 0)) {
            SkipBlanks();
            if (!AtEnd())
                Fail("text after the end of the form");
        }
        form.line = errorLine_;
        form.message = error_;
        if (!form.Ok())
            form.root = {};
        return form;
    }

private:
    [[nodiscard]] bool AtEnd() const { return at_ == text_.size(); }
    [[nodiscard]] WCHAR Peek() const { return AtEnd() ? WCHAR{0} : text_[at_]; }
    [[nodiscard]] bool PeekIsDigit() const { return Peek() >= '0' && Peek() <= '9'; }

    bool Fail(const char* what)
    {
        if (errorLine_ == 0) {
            errorLine_ = line_;
            error_ = what;
        }
        return false;
    }

    void SkipBlanks()
    {
        for (; Peek() == ' ' || Peek() == '\t' || Peek() == '\r' || Peek() == '\n'; ++at_)
            if (Peek() == '\n')
                ++line_;
    }

    bool Take(char mark)
    {
        SkipBlanks();
        if (AtEnd() || Peek() != static_cast<WCHAR>(mark))
            return false;
        ++at_;
        return true;
    }

    [[nodiscard]] bool PeekIsWord() const
    {
        const WCHAR c = Peek();
        return PeekIsDigit() || (c >= 'A' && c <= 'Z') || (c >= 'a' && c <= 'z') || c == '_';
    }

    bool Word(base::String& word, const char* expected)
    {
        SkipBlanks();
        const std::size_t start = at_;
        while (PeekIsWord())
            ++at_;
        if (start == at_)
            return Fail(expected);
        word = text_.substr(start, at_ - start);
        return true;
    }

    bool Node(base::String kind, FormNode& node, int depth)
    {
        if (depth > deepestNesting)
            return Fail("controls nested too deep");
        node.kind = std::move(kind);
        if (!Word(node.name, "a name"))
            return false;
        if (!Take('{'))
            return Fail("{ expected");
        while (!Take('}')) {
            base::String word;
            if (AtEnd())
                return Fail("} expected");
            if (!Word(word, "a property or a control"))
                return false;
            if (Take('=')) {
                Property property{std::move(word), {}};
                if (!Value(property.value))
                    return false;
                node.properties.push_back(std::move(property));
            } else if (!Node(std::move(word), node.children.emplace_back(), depth + 1)) {
                return false;
            }
        }
        return true;
    }

    bool Value(PropertyValue& value)
    {
        SkipBlanks();
        if (Peek() == '"')
            return Text(value.emplace<base::String>());
        if (Peek() == '[')
            return List(value.emplace<TextList>());
        if (Peek() == '-' || PeekIsDigit())
            return WholeNumber(value.emplace<Number>());
        base::String word;
        if (!Word(word, "a value"))
            return false;
        if (word == TEXT("True") || word == TEXT("False")) {
            value = word == TEXT("True");
            return true;
        }
        if (word == TEXT("Font"))
            return FontValue(value.emplace<FontDescription>());
        if (word == TEXT("None") || word == TEXT("Bitmap") || word == TEXT("Icon"))
            return PictureValue(word, value.emplace<PictureDescription>());
        return Fail("a value is a number, a text, True, False, Font(...), [...] or a picture");
    }

    bool Text(base::String& text)
    {
        if (!Take('"'))
            return Fail("a text in double quotes expected");
        text.clear();
        for (; Peek() != '"'; ++at_) {
            if (AtEnd() || Peek() == '\n')
                return Fail("the text has no closing double quote");
            WCHAR c = Peek();
            if (c == '\\') {
                ++at_;
                static constexpr base::StringView letters = TEXT("\"\\nrt"), meanings = TEXT("\"\\\n\r\t");
                const std::size_t which = AtEnd() ? base::StringView::npos : letters.find(Peek());
                if (which == base::StringView::npos)
                    return Fail("a backslash is followed by one of \" \\ n r t");
                c = meanings[which];
            }
            text += c;
        }
        ++at_;
        return true;
    }

    bool List(TextList& list)
    {
        Take('[');
        if (Take(']'))
            return true;
        do {
            if (!Text(list.emplace_back()))
                return false;
        } while (Take(','));
        return Take(']') || Fail("] expected");
    }

    bool WholeNumber(Number& number)
    {
        SkipBlanks();
        const bool negative = Take('-');
        if (Peek() == '0' && at_ + 1 < text_.size() && text_[at_ + 1] == 'x') {
            at_ += 2;
            number.hexadecimal = true;
        }
        const int radix = number.hexadecimal ? 16 : 10;
        const std::size_t start = at_;
        for (; PeekIsWord(); ++at_) {
            const std::optional<int> digit = Digit(Peek());
            if (!digit || *digit >= radix)
                return Fail("not a digit of a number");
            number.value = number.value * radix + *digit;
            if (number.value > 0xFFFFFFFF)
                return Fail("the number has more than 32 bits");
        }
        if (start == at_ || (negative && number.hexadecimal))
            return Fail("a number expected");
        if (negative)
            number.value = -number.value;
        return true;
    }

    static std::optional<int> Digit(WCHAR c)
    {
        if (c >= '0' && c <= '9')
            return c - '0';
        const int lower = c | 0x20;
        if (lower >= 'a' && lower <= 'f')
            return lower - 'a' + 10;
        return std::nullopt;
    }

    bool FontValue(FontDescription& font)
    {
        if (!Take('(') || !Text(font.name) || !Take(',') || !Points(font.size))
            return Fail("a font is written Font(\"name\", points, ...)");
        while (Take(',')) {
            base::String word;
            if (!Word(word, "a word for the font") || !FontWord(word, font))
                return false;
        }
        return Take(')') || Fail(") expected");
    }

    bool PictureValue(const base::String& word, PictureDescription& picture)
    {
        if (word == TEXT("None"))
            return true;
        picture.type = word == TEXT("Icon") ? PictureType::Icon : PictureType::Bitmap;
        base::String text;
        if (!Take('(') || !Text(text) || !Take(')'))
            return Fail("a picture is written Bitmap(\"...\") or Icon(\"...\")");
        picture.bytes = base::Base64DecodeBytes(text);
        return !picture.bytes.empty() || Fail("the picture is not in Base64");
    }

    bool Points(float& points)
    {
        SkipBlanks();
        // Without the runtime's own reader, which brings 20 KB of number formats along. All powers of ten up to the sixth digit are exact.
        double digits = 0, divisor = 0;
        for (; PeekIsDigit() || (Peek() == '.' && divisor == 0); ++at_) {
            if (Peek() == '.') {
                divisor = 1;
            } else if (divisor < 1e6) {
                digits = digits * 10 + (Peek() - '0');
                divisor *= 10;
            }
        }
        points = static_cast<float>(divisor == 0 ? digits : digits / divisor);
        return points > 0 && points < 1000;
    }

    bool FontWord(const base::String& word, FontDescription& font)
    {
        if (word == TEXT("Bold"))
            font.weight = FW_BOLD;
        else if (word == TEXT("Italic"))
            font.italic = true;
        else if (word == TEXT("Underline"))
            font.underline = true;
        else if (word == TEXT("Strikethrough"))
            font.strikethrough = true;
        else if (word == TEXT("Weight"))
            return Small(font.weight, 1000);
        else if (word == TEXT("Charset"))
            return Small(font.charset, 255);
        else
            return Fail("not a word for a font");
        return true;
    }

    bool Small(std::int16_t& value, std::int16_t greatest)
    {
        Number number;
        if (!WholeNumber(number))
            return false;
        if (number.value < 0 || number.value > greatest)
            return Fail("the number is out of range");
        value = static_cast<std::int16_t>(number.value);
        return true;
    }

    base::String text_;
    std::size_t at_ = 0;
    int line_ = 1;
    int errorLine_ = 0;
    std::string error_;
};

std::optional<base::String> FromUtf8(std::string_view utf8)
{
    if (utf8.empty())
        return base::String{};
    const int size = static_cast<int>(utf8.size());
    const int length = MultiByteToWideChar(CP_UTF8, MB_ERR_INVALID_CHARS, utf8.data(), size, nullptr, 0);
    base::String text(static_cast<std::size_t>(length), WCHAR{0});
    if (length == 0 || MultiByteToWideChar(CP_UTF8, MB_ERR_INVALID_CHARS, utf8.data(), size, text.data(), length) == 0)
        return std::nullopt;
    return text;
}

}  // namespace

ParsedForm ParseForm(std::string_view utf8)
{
    if (utf8.starts_with("\xEF\xBB\xBF"))
        utf8.remove_prefix(3);
    std::optional<base::String> text = FromUtf8(utf8);
    if (!text) {
        ParsedForm unreadable;
        unreadable.line = 1;
        unreadable.message = "the text is not UTF-8";
        return unreadable;
    }
    return Parser(std::move(*text)).Run();
}

}  // namespace host
