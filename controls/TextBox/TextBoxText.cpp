// TextBoxText: text, selection and lines.
#include "base/Wipe.h"
#include "controls/TextBox/TextBox.h"
#include "controls/TextPrinter.h"

#include <algorithm>

namespace controls {

using base::String;
using base::StringView;

namespace {

/// Without the control characters and blanks (codes 0 to 32) at both ends.
String TrimControls(StringView text)
{
    const auto isKept = [](WCHAR unit) { return unit > 32; };
    const auto first = std::find_if(text.begin(), text.end(), isKept);
    const auto last = std::find_if(text.rbegin(), std::make_reverse_iterator(first), isKept).base();
    return {first, last};
}

}  // namespace

String TextBox::Text()
{
    if (hosted_.Window())
        Cache(hosted_.Text());
    if (trimText_)
        Cache(TrimControls(cachedText_));
    return cachedText_;
}

void TextBox::Cache(String text)
{
    base::Wipe(cachedText_);
    cachedText_.swap(text);
}

void TextBox::Text(const String& text)
{
    const bool differs = text != cachedText_;
    Cache(text);
    hosted_.Send(WM_SETTEXT, 0, reinterpret_cast<LPARAM>(text.c_str()));
    PropertyChanged(TEXT("Text"));
    lineWindowStale_ = true;
    if (multiLine_ && differs)
        Change.Raise();
}

std::int32_t TextBox::Length() const
{
    return static_cast<std::int32_t>(hosted_.Send(WM_GETTEXTLENGTH));
}

void TextBox::SetSel(std::int32_t In_Start, std::int32_t In_Length)
{
    const std::int64_t end = std::int64_t{In_Start} + In_Length;
    hosted_.Send(EM_SETSEL, static_cast<WPARAM>(In_Start), static_cast<LPARAM>(std::clamp<std::int64_t>(end, INT32_MIN, INT32_MAX)));
}

std::int32_t TextBox::SelStart() const
{
    DWORD start = 0;
    hosted_.Send(EM_GETSEL, reinterpret_cast<WPARAM>(&start), 0);
    return static_cast<std::int32_t>(start);
}

void TextBox::SelStart(std::int32_t start)
{
    SetSel(start, 0);
}

std::int32_t TextBox::SelLength() const
{
    DWORD start = 0;
    DWORD end = 0;
    hosted_.Send(EM_GETSEL, reinterpret_cast<WPARAM>(&start), reinterpret_cast<LPARAM>(&end));
    return static_cast<std::int32_t>(end - start);
}

void TextBox::SelLength(std::int32_t length)
{
    SetSel(SelStart(), length);
}

String TextBox::SelText()
{
    const std::int32_t length = SelLength();
    const auto start = static_cast<std::size_t>(SelStart());
    const String text = Text();
    return length > 0 && start < text.size() ? text.substr(start, static_cast<std::size_t>(length)) : String();
}

void TextBox::SelText(const String& text)
{
    ReplaceSelection(text);
    lineWindowStale_ = true;
}

/// The line window gets the same replacement at the same place. A password edit passes text on like any other.
void TextBox::ReplaceSelection(const String& text)
{
    if (lineWindow_) {
        LineCounter();
        SendMessageW(lineWindow_.Get(), EM_SETSEL, static_cast<WPARAM>(SelStart()), SelStart() + SelLength());
        SendMessageW(lineWindow_.Get(), EM_REPLACESEL, TRUE, reinterpret_cast<LPARAM>(text.c_str()));
    }
    hosted_.Send(EM_REPLACESEL, TRUE, reinterpret_cast<LPARAM>(text.c_str()));
}

void TextBox::UnDo()
{
    hosted_.Send(EM_UNDO);
    lineWindowStale_ = true;
}

bool TextBox::CanUnDo() const
{
    return hosted_.Send(EM_CANUNDO) != 0;
}

void TextBox::ClearUnDo()
{
    hosted_.Send(EM_EMPTYUNDOBUFFER);
}

bool TextBox::IsChanged(bool In_ResetOnly)
{
    const bool changed = !In_ResetOnly && hosted_.Send(EM_GETMODIFY) != 0;
    if (changed || In_ResetOnly)
        hosted_.Send(EM_SETMODIFY, FALSE);
    return changed;
}

bool TextBox::PrintText()
{
    return PrintOnDefaultPrinter(Text(), GetExtender().Name(), *Font());
}

void TextBox::ScrollToActualPos()
{
    hosted_.Send(EM_SCROLLCARET);
}

HWND TextBox::LineCounter(bool withCaret)
{
    if (!lineWindow_)
        return hosted_.Window();
    if (lineWindowStale_) {
        SetWindowTextW(lineWindow_.Get(), hosted_.Text().c_str());
        lineWindowStale_ = false;
    }
    if (withCaret)
        SendMessageW(lineWindow_.Get(), EM_SETSEL, static_cast<WPARAM>(SelStart()), SelStart());
    return lineWindow_.Get();
}

LRESULT TextBox::AskLines(UINT message, WPARAM wParam, LPARAM lParam)
{
    const HWND counter = LineCounter();
    return counter == hosted_.Window() ? hosted_.Send(message, wParam, lParam) : SendMessageW(counter, message, wParam, lParam);
}

std::int32_t TextBox::LineCount()
{
    return static_cast<std::int32_t>(AskLines(EM_GETLINECOUNT));
}

std::int32_t TextBox::GetLineIndexFromPos(std::int32_t In_PosCharacter)
{
    return static_cast<std::int32_t>(AskLines(EM_LINEFROMCHAR, static_cast<WPARAM>(In_PosCharacter)));
}

/// A negative line would mean the caret's to the edit; it is none.
std::int32_t TextBox::GetPosStartFromLineIndex(std::int32_t In_LineIndex)
{
    return In_LineIndex < 0 ? -1 : static_cast<std::int32_t>(AskLines(EM_LINEINDEX, static_cast<WPARAM>(In_LineIndex)));
}

bool TextBox::ExistsLine(std::int32_t In_LineIndex)
{
    return GetPosStartFromLineIndex(In_LineIndex) >= 0;
}

std::int32_t TextBox::GetLineLength(std::int32_t In_LineIndex)
{
    const std::int32_t start = GetPosStartFromLineIndex(In_LineIndex);
    return start < 0 ? -1 : static_cast<std::int32_t>(AskLines(EM_LINELENGTH, static_cast<WPARAM>(start)));
}

/// The first unit of the buffer tells the edit how many units fit into it; one unit would have no room for an answer of one.
String TextBox::GetLine(std::int32_t In_LineIndex)
{
    const std::int32_t length = GetLineLength(In_LineIndex);
    if (length <= 0)
        return {};
    String line(static_cast<std::size_t>(std::max(length, 2)), TEXT('\0'));
    line[0] = static_cast<WCHAR>(line.size());
    line.resize(static_cast<std::size_t>(AskLines(EM_GETLINE, static_cast<WPARAM>(In_LineIndex), reinterpret_cast<LPARAM>(line.data()))));
    return line;
}

std::int32_t TextBox::LineIndex()
{
    LineCounter(true);
    return static_cast<std::int32_t>(AskLines(EM_LINEFROMCHAR, static_cast<WPARAM>(-1)));
}

void TextBox::LineIndex(std::int32_t line)
{
    const std::int32_t start = GetPosStartFromLineIndex(line);
    if (start >= 0)
        SelStart(start);
}

std::int32_t TextBox::GetCurrentPosInLine()
{
    return SelStart() - GetPosStartFromLineIndex(LineIndex());
}

std::int32_t TextBox::GetTopLineIndex() const
{
    return static_cast<std::int32_t>(hosted_.Send(EM_GETFIRSTVISIBLELINE));
}

bool TextBox::RemoveLine(std::int32_t In_LineIndex)
{
    const std::int32_t caret = SelStart();
    const std::int32_t length = GetLineLength(In_LineIndex);
    if (Length() == 0 || length < 0)
        return false;
    std::int32_t start = GetPosStartFromLineIndex(In_LineIndex);
    std::int32_t count = length + 2;
    if (start + count > Length()) {
        // The last line has no line break behind it; the one before it goes instead, if there is one.
        if (start >= 2)
            start -= 2;
        else
            count = length;
    }
    SetSel(start, count);
    ReplaceSelection({});
    SelStart(caret);
    return true;
}

}  // namespace controls
