// EditInput: keys and mouse in an Edit.
#include "platform/src/classes/Edit.h"

#include <algorithm>

namespace platform {

namespace {

// What the keyboard makes of Ctrl and a letter.
enum ControlCode : char16_t {
    kSelectAll = 1,
    kCopy = 3,
    kBackspace = 8,
    kTab = 9,
    kLineFeed = 10,
    kReturn = 13,
    kPaste = 22,
    kCut = 24,
    kUndo = 26
};
constexpr char16_t kControlBackspace = 127;

bool Held(int key)
{
    return inner::GetKeyState(key) < 0;
}

}  // namespace

void Edit::TypeCharacter(char16_t character)
{
    switch (character) {
        case kSelectAll:
            Select(0, text_.Length());
            return;
        case kCopy:
            Copy();
            return;
        case kCut:
            Cut();
            return;
        case kPaste:
            Paste();
            return;
        case kUndo:
            inner::SendMessage(window_, EM_UNDO, 0, 0);
            return;
        case kBackspace:
            if (!readOnly_)
                DeleteTo(PreviousCharacter(text_.Characters(), text_.Caret()));
            return;
        case kReturn:
        case kLineFeed:
            if (multiLine_ && !readOnly_) {
                if (text_.Length() - (text_.End() - text_.Start()) + 2 > text_.limit)
                    Notify(EN_MAXTEXT);  // Half a line break is none.
                else
                    ReplaceSelection(u"\r\n", EditText::Record::Typed);
            }
            return;
        default:
            break;
    }
    if (readOnly_ || character == kControlBackspace || (character < u' ' && !(character == kTab && multiLine_)))
        return;
    if (Has(ES_NUMBER) && !(character >= u'0' && character <= u'9'))
        return;
    ReplaceSelection({&character, 1}, EditText::Record::Typed);
}

LRESULT Edit::HandleKeyDown(WPARAM key, LPARAM lParam)
{
    if (MoveByKey(key))
        return 0;
    const bool shift = Held(VK_SHIFT);
    const bool control = Held(VK_CONTROL);
    if (key == VK_DELETE && shift) {
        Cut();
    } else if (key == VK_DELETE && !readOnly_) {
        const std::size_t caret = text_.Caret();
        DeleteTo(control ? view_.LineEnd(caret) : NextCharacter(text_.Characters(), caret));
    } else if (key == VK_INSERT && shift) {
        Paste();
    } else if (key == VK_INSERT && control) {
        Copy();
    } else if (key != VK_DELETE && key != VK_INSERT) {
        return inner::DefWindowProc(window_, WM_KEYDOWN, key, lParam);
    }
    return 0;
}

bool Edit::MoveByKey(WPARAM key)
{
    const std::u16string& text = text_.Characters();
    const std::size_t caret = text_.Caret();
    const bool control = Held(VK_CONTROL);
    const bool shift = Held(VK_SHIFT);
    const bool collapses = text_.HasSelection() && !shift && !control;
    const int page = static_cast<int>(view_.VisibleLines());
    // In a single line the vertical arrows go the way of the horizontal ones.
    if (!multiLine_ && (key == VK_UP || key == VK_DOWN))
        key = key == VK_UP ? VK_LEFT : VK_RIGHT;
    std::size_t target = caret;
    switch (key) {
        case VK_LEFT:
            target = control ? PreviousWord(text, caret) : collapses ? text_.Start() : PreviousCharacter(text, caret);
            break;
        case VK_RIGHT:
            target = control ? NextWord(text, caret) : collapses ? text_.End() : NextCharacter(text, caret);
            break;
        case VK_UP:
        case VK_DOWN:
            target = view_.PositionFrom(caret, key == VK_UP ? -1 : 1);
            break;
        case VK_PRIOR:
        case VK_NEXT: {
            if (!multiLine_)
                return true;
            const int row = static_cast<int>(view_.Lines().LineOf(caret));
            const int last = static_cast<int>(view_.Lines().Count()) - 1;
            target = view_.PositionFrom(caret, std::clamp(row + (key == VK_PRIOR ? -page : page), 0, last) - row);
            break;
        }
        case VK_HOME:
            target = control ? 0 : view_.LineStart(caret);
            break;
        case VK_END:
            target = control ? text.size() : view_.LineEnd(caret);
            break;
        default:
            return false;
    }
    Select(shift ? text_.Anchor() : target, target);
    ShowCaret();
    return true;
}

LRESULT Edit::HandleMouse(UINT message, WPARAM wParam, LPARAM lParam)
{
    const POINT point{GET_X_LPARAM(lParam), GET_Y_LPARAM(lParam)};
    switch (message) {
        case WM_LBUTTONDOWN: {
            if (!Focused())
                inner::SetFocus(window_);
            if (!Alive())
                return 0;
            const std::size_t position = view_.PositionAt(point);
            Select(wParam & MK_SHIFT ? text_.Anchor() : position, position);
            selecting_ = true;
            inner::SetCapture(window_);
            return 0;
        }
        case WM_MOUSEMOVE:
            if (selecting_) {
                Select(text_.Anchor(), view_.PositionAt(point));
                ShowCaret();
            }
            return 0;
        case WM_LBUTTONUP:
            if (selecting_)
                inner::ReleaseCapture();
            return 0;
        case WM_CAPTURECHANGED:
            selecting_ = false;
            return 0;
        default: {  // A double click selects the word with the spaces behind it.
            const std::u16string& text = text_.Characters();
            const std::size_t position = view_.PositionAt(point);
            const std::size_t end = NextWord(text, position);
            Select(std::min(PreviousWord(text, std::min(position + 1, text.size())), end), end);
            return 0;
        }
    }
}

void Edit::ScrollLines(int lines)
{
    if (!view_.ScrollBy(lines))
        return;
    Repaint();
    Notify(EN_VSCROLL);
}

}  // namespace platform
