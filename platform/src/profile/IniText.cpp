#include "platform/src/profile/IniText.h"

#include "platform/src/text/Case.h"
#include "platform/src/text/CodePages.h"

#include <cstring>

namespace platform {

namespace {

constexpr std::string_view kWideMark = "\xFF\xFE";

std::u16string_view Trimmed(std::u16string_view text)
{
    constexpr std::u16string_view kBlanks = u" \t";
    const std::size_t first = text.find_first_not_of(kBlanks);
    if (first == std::u16string_view::npos)
        return {};
    return text.substr(first, text.find_last_not_of(kBlanks) - first + 1);
}

std::u16string_view SectionName(std::u16string_view line)
{
    line = Trimmed(line);
    return line.starts_with(u'[') && line.find(u']') != std::u16string_view::npos ? Trimmed(line.substr(1, line.find(u']') - 1))
                                                                                  : std::u16string_view();
}

bool IsSection(std::u16string_view line)
{
    line = Trimmed(line);
    return line.starts_with(u'[') && line.find(u']') != std::u16string_view::npos;
}

}  // namespace

IniText::IniText(std::string_view bytes) : wide_(bytes.starts_with(kWideMark))
{
    std::u16string text;
    if (wide_) {
        bytes.remove_prefix(kWideMark.size());
        text.resize(bytes.size() / sizeof(char16_t));
        std::memcpy(text.data(), bytes.data(), text.size() * sizeof(char16_t));
    } else {
        text = FromCp1252(bytes);
    }
    for (std::size_t start = 0; start < text.size();) {
        const std::size_t end = std::min(text.find(u'\n', start), text.size());
        std::u16string line = text.substr(start, end - start);
        if (line.ends_with(u'\r'))
            line.pop_back();
        lines_.push_back(std::move(line));
        start = end + 1;
    }
}

std::string IniText::Bytes() const
{
    std::u16string text;
    for (const std::u16string& line : lines_)
        text += line + u"\r\n";
    if (!wide_)
        return ToCp1252(text);
    return std::string(kWideMark) + std::string(reinterpret_cast<const char*>(text.data()), text.size() * sizeof(char16_t));
}

std::optional<IniText::Range> IniText::FindSection(std::u16string_view section) const
{
    for (std::size_t index = 0; index < lines_.size(); ++index) {
        if (!IsSection(lines_[index]) || !SameName(SectionName(lines_[index]), Trimmed(section)))
            continue;
        std::size_t last = index + 1;
        while (last < lines_.size() && !IsSection(lines_[last]))
            ++last;
        return Range{index + 1, last};
    }
    return std::nullopt;
}

std::optional<std::size_t> IniText::FindKey(const Range& range, std::u16string_view key) const
{
    for (std::size_t index = range.first; index < range.last; ++index) {
        const std::u16string_view line = Trimmed(lines_[index]);
        const std::size_t equals = line.find(u'=');
        if (!line.starts_with(u';') && equals != std::u16string_view::npos && SameName(Trimmed(line.substr(0, equals)), Trimmed(key)))
            return index;
    }
    return std::nullopt;
}

std::optional<std::u16string> IniText::Get(std::u16string_view section, std::u16string_view key) const
{
    const auto range = FindSection(section);
    const auto line = range ? FindKey(*range, key) : std::nullopt;
    if (!line)
        return std::nullopt;
    std::u16string_view value = lines_[*line];
    value = Trimmed(value.substr(value.find(u'=') + 1));
    if (value.size() >= 2 && (value.front() == u'"' || value.front() == u'\'') && value.back() == value.front())
        value = value.substr(1, value.size() - 2);
    return std::u16string(value);
}

void IniText::Set(std::u16string_view section, std::u16string_view key, std::u16string_view value)
{
    auto range = FindSection(section);
    if (!range) {
        lines_.push_back(u"[" + std::u16string(section) + u"]");
        range = Range{lines_.size(), lines_.size()};
    }
    const std::u16string line = std::u16string(key) + u"=" + std::u16string(value);
    if (const auto found = FindKey(*range, key)) {
        lines_[*found] = line;
        return;
    }
    std::size_t place = range->last;  // New keys come before the blank lines that end a section.
    while (place > range->first && Trimmed(lines_[place - 1]).empty())
        --place;
    lines_.insert(lines_.begin() + static_cast<std::ptrdiff_t>(place), line);
}

bool IniText::RemoveKey(std::u16string_view section, std::u16string_view key)
{
    const auto range = FindSection(section);
    const auto line = range ? FindKey(*range, key) : std::nullopt;
    if (line)
        lines_.erase(lines_.begin() + static_cast<std::ptrdiff_t>(*line));
    return line.has_value();
}

bool IniText::RemoveSection(std::u16string_view section)
{
    const auto range = FindSection(section);
    if (range)
        lines_.erase(lines_.begin() + static_cast<std::ptrdiff_t>(range->first - 1),
                     lines_.begin() + static_cast<std::ptrdiff_t>(range->last));
    return range.has_value();
}

}  // namespace platform
