#include "controls/TextPrinter.h"

#include "base/Handles.h"

#include <algorithm>
#include <cmath>
#include <vector>

namespace controls {

using base::String;
using base::StringView;

namespace {

/// Windows keeps the default printer in its profile, as "name,driver,port".
base::MemoryDc OpenDefaultPrinter()
{
    WCHAR entry[512];
    const DWORD length = GetProfileStringW(TEXT("windows"), TEXT("device"), TEXT(""), entry, static_cast<DWORD>(std::size(entry)));
    const StringView device(entry, length);
    const std::size_t comma = device.find(TEXT(','));
    if (comma == StringView::npos)
        return {};
    const String name(device.substr(0, comma));
    return base::MemoryDc(CreateDCW(TEXT("WINSPOOL"), name.c_str(), nullptr, nullptr));
}

/// Blanks up to the next multiple of eight characters in the place of every tab.
String WithoutTabs(StringView line)
{
    String spaced;
    for (const WCHAR unit : line)
        spaced.append(unit == TEXT('\t') ? 8 - spaced.size() % 8 : 1, unit == TEXT('\t') ? TEXT(' ') : unit);
    return spaced;
}

/// How many units of the line stand in the page's width, at least one.
std::size_t UnitsThatFit(HDC printer, StringView line)
{
    int fit = 0;
    SIZE size{};
    if (!GetTextExtentExPointW(printer, line.data(), static_cast<int>(line.size()), GetDeviceCaps(printer, HORZRES), &fit, nullptr, &size))
        return line.size();
    auto count = static_cast<std::size_t>(std::max(fit, 1));
    if (count >= line.size())
        return line.size();
    if (const std::size_t blank = line.find_last_of(TEXT(' '), count); blank != StringView::npos && blank > 0)
        return blank + 1;
    // A character beyond the first 65,536 is two units.
    if (count > 1 && IS_HIGH_SURROGATE(line[count - 1]))
        --count;
    return count;
}

std::vector<String> LinesOfPages(HDC printer, StringView text)
{
    std::vector<String> lines;
    for (;;) {
        const std::size_t end = text.find_first_of(TEXT("\r\n"));
        const String line = WithoutTabs(text.substr(0, end));
        StringView rest = line;
        do {
            const std::size_t count = UnitsThatFit(printer, rest);
            lines.emplace_back(rest.substr(0, count));
            rest.remove_prefix(count);
        } while (!rest.empty());
        if (end == StringView::npos)
            return lines;
        text.remove_prefix(text.substr(end).starts_with(TEXT("\r\n")) ? end + 2 : end + 1);
    }
}

bool PrintPages(HDC printer, const std::vector<String>& lines)
{
    TEXTMETRICW metrics{};
    if (!GetTextMetricsW(printer, &metrics))
        return false;
    const LONG height = metrics.tmHeight + metrics.tmExternalLeading;
    const LONG width = GetDeviceCaps(printer, HORZRES);
    const auto perPage = static_cast<std::size_t>(std::max(GetDeviceCaps(printer, VERTRES) / std::max(height, LONG{1}), LONG{1}));
    for (std::size_t first = 0; first < lines.size(); first += perPage) {
        if (StartPage(printer) <= 0)
            return false;
        RECT place{0, 0, width, height};
        for (std::size_t index = first; index < std::min(first + perPage, lines.size()); ++index) {
            DrawTextW(printer, lines[index].c_str(), static_cast<int>(lines[index].size()), &place,
                      DT_SINGLELINE | DT_NOPREFIX | DT_NOCLIP);
            place.top += height;
            place.bottom += height;
        }
        if (EndPage(printer) <= 0)
            return false;
    }
    return true;
}

}  // namespace

bool PrintOnDefaultPrinter(const String& text, const String& documentName, const host::Font& font)
{
    const base::MemoryDc printer = OpenDefaultPrinter();
    if (!printer)
        return false;
    LOGFONTW description = font.LogicalFont();
    description.lfHeight = -static_cast<LONG>(std::lround(font.Size() * static_cast<float>(GetDeviceCaps(printer.Get(), LOGPIXELSY)) / 72));
    const base::FontHandle face(CreateFontIndirectW(&description));
    if (!face)
        return false;
    const DOCINFOW document{sizeof document, documentName.c_str(), nullptr, nullptr, 0};
    if (StartDocW(printer.Get(), &document) <= 0)
        return false;
    const HGDIOBJ before = SelectObject(printer.Get(), face.Get());
    const bool printed = PrintPages(printer.Get(), LinesOfPages(printer.Get(), text)) && EndDoc(printer.Get()) > 0;
    if (!printed)
        AbortDoc(printer.Get());
    SelectObject(printer.Get(), before);
    return printed;
}

}  // namespace controls
