// Edit: how an Edit comes to be, and its answers to messages that change nothing.
#include "platform/src/classes/Edit.h"

#include "platform/sim/Modules.h"
#include "platform/src/classes/SystemClasses.h"
#include "platform/src/window/Window.h"

#include <vsstyle.h>

#include <algorithm>
#include <cstring>

namespace platform {

LRESULT CALLBACK EditProcedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam)
{
    return ControlProcedure<Edit>(window, message, wParam, lParam);
}

bool Edit::Create(const CREATESTRUCTW& create)
{
    const auto style = static_cast<DWORD>(create.style);
    if (style & (ES_CENTER | ES_RIGHT)) {
        SimPc::Current().Unsupported("Edit: centred or right-aligned text");
        return false;
    }
    multiLine_ = (style & ES_MULTILINE) != 0;
    readOnly_ = (style & ES_READONLY) != 0;
    // The common controls of version 6 show a black circle, older ones an asterisk.
    if ((style & ES_PASSWORD) && !multiLine_)
        mask_ = SimPc::Current().Get<Modules>().CommonControlsMajor() >= 6 ? u'\u25CF' : u'*';
    text_.Assign(create.lpszName ? Cased(create.lpszName) : std::u16string());
    return true;
}

LRESULT Edit::Handle(UINT message, WPARAM wParam, LPARAM lParam)
{
    switch (message) {
        case WM_NCCREATE:
            return Create(*reinterpret_cast<const CREATESTRUCTW*>(lParam)) && inner::DefWindowProc(window_, message, wParam, lParam);
        case WM_CREATE:
            Arrange();
            return 0;
        case WM_SETTEXT:
            SetText(reinterpret_cast<const char16_t*>(lParam));
            return TRUE;
        case WM_GETTEXT:
            return CopyText(wParam, reinterpret_cast<char16_t*>(lParam));
        case WM_GETTEXTLENGTH:
            return static_cast<LRESULT>(text_.Length());
        case WM_SIZE:
            Arrange();
            Repaint();
            return 0;
        case WM_NCPAINT: {
            const LRESULT result = inner::DefWindowProc(window_, message, wParam, lParam);
            if (Themed() && (WindowOf(window_)->exStyle & WS_EX_CLIENTEDGE))
                PaintBorder();
            return result;
        }
        case WM_SETFOCUS:
        case WM_KILLFOCUS:
            inner::RedrawWindow(window_, nullptr, nullptr, RDW_INVALIDATE | RDW_ERASE | RDW_FRAME);
            Notify(message == WM_SETFOCUS ? EN_SETFOCUS : EN_KILLFOCUS);
            return 0;
        case WM_CHAR:
            TypeCharacter(static_cast<char16_t>(wParam));
            return 0;
        case WM_KEYDOWN:
            return HandleKeyDown(wParam, lParam);
        case WM_LBUTTONDOWN:
        case WM_LBUTTONDBLCLK:
        case WM_LBUTTONUP:
        case WM_MOUSEMOVE:
        case WM_CAPTURECHANGED:
            return HandleMouse(message, wParam, lParam);
        case WM_CONTEXTMENU:
            return 0;  // Its menu opens, and nobody is there to choose from it.
        case WM_GETDLGCODE:
            return DLGC_HASSETSEL | DLGC_WANTCHARS | DLGC_WANTARROWS | (multiLine_ ? DLGC_WANTALLKEYS : 0);
        case WM_MOUSEWHEEL:
            if (!multiLine_)
                return inner::DefWindowProc(window_, message, wParam, lParam);
            ScrollLines(-3 * GET_WHEEL_DELTA_WPARAM(wParam) / WHEEL_DELTA);
            return 0;
        default:
            return message >= EM_GETSEL && message <= EM_CHARFROMPOS ? HandleEditMessage(message, wParam, lParam)
                                                                     : HandleShared(message, wParam, lParam);
    }
}

LRESULT Edit::GetSelection(DWORD* first, DWORD* last) const
{
    const auto start = static_cast<DWORD>(text_.Start());
    const auto end = static_cast<DWORD>(text_.End());
    if (first)
        *first = start;
    if (last)
        *last = end;
    // Positions that do not fit into the two halves of the result are told only through the pointers.
    return start > 0xFFFF || end > 0xFFFF ? -1 : MAKELRESULT(start, end);
}

void Edit::SetSelection(INT start, INT end)
{
    if (start < 0)
        Select(text_.Caret(), text_.Caret());
    else
        Select(static_cast<std::size_t>(start), end < 0 ? text_.Length() : static_cast<std::size_t>(end));
}

LRESULT Edit::HandleEditMessage(UINT message, WPARAM wParam, LPARAM lParam)
{
    switch (message) {
        case EM_GETSEL:
            return GetSelection(reinterpret_cast<DWORD*>(wParam), reinterpret_cast<DWORD*>(lParam));
        case EM_SETSEL:
            SetSelection(static_cast<INT>(wParam), static_cast<INT>(lParam));
            return 1;
        case EM_REPLACESEL: {
            const auto* text = reinterpret_cast<const char16_t*>(lParam);
            ReplaceSelection(text ? text : u"", wParam ? EditText::Record::Step : EditText::Record::None);
            return 1;
        }
        case EM_GETLIMITTEXT:
            return static_cast<LRESULT>(text_.limit);
        case EM_SETLIMITTEXT:
            text_.limit = static_cast<UINT>(wParam) ? static_cast<UINT>(wParam) : multiLine_ ? 0xFFFFFFFFu : 0x7FFFFFFEu;
            return 0;
        case EM_GETMODIFY:
            return text_.modified;
        case EM_SETMODIFY:
            text_.modified = wParam != 0;
            return 0;
        case EM_CANUNDO:
            return text_.CanUndo();
        case EM_UNDO: {
            const bool could = text_.CanUndo() && !readOnly_;
            if (could)
                Undo();
            return could || !multiLine_;
        }
        case EM_EMPTYUNDOBUFFER:
            text_.EmptyUndo();
            return 0;
        case EM_SETREADONLY:
            readOnly_ = wParam != 0;
            inner::SetStyle(window_, ES_READONLY, readOnly_ ? ES_READONLY : 0);
            Repaint();
            return 1;
        case EM_SETPASSWORDCHAR:
            SetPasswordChar(static_cast<char16_t>(wParam));
            return 1;
        case EM_GETPASSWORDCHAR:
            return mask_;
        case EM_SCROLLCARET:
            ShowCaret();
            return 1;
        default:
            return HandleLineMessage(message, wParam, lParam);
    }
}

LRESULT Edit::HandleLineMessage(UINT message, WPARAM wParam, LPARAM lParam) const
{
    const EditLines& lines = view_.Lines();
    const auto number = static_cast<INT>(wParam);
    switch (message) {
        case EM_GETLINECOUNT:
            return static_cast<LRESULT>(lines.Count());
        case EM_LINEFROMCHAR:
            return static_cast<LRESULT>(lines.LineOf(number < 0 ? text_.Start() : static_cast<std::size_t>(number)));
        case EM_LINEINDEX: {
            const std::size_t line = number < 0 ? lines.LineOf(text_.Caret()) : static_cast<std::size_t>(number);
            return line < lines.Count() ? static_cast<LRESULT>(lines.At(line).start) : -1;
        }
        case EM_LINELENGTH:
            return LineLength(wParam);
        case EM_GETLINE:
            return GetLine(multiLine_ ? wParam : 0, reinterpret_cast<char16_t*>(lParam));
        case EM_GETFIRSTVISIBLELINE:
            return static_cast<LRESULT>(multiLine_ ? view_.FirstLine()
                                                   : view_.PositionAt({view_.GetShape().format.left, view_.GetShape().format.top}));
        default:
            SimPc::Current().Unsupported("Edit: message " + std::to_string(message));
            return 0;
    }
}

LRESULT Edit::LineLength(WPARAM position) const
{
    if (!multiLine_)
        return static_cast<LRESULT>(text_.Length());
    const EditLines& lines = view_.Lines();
    if (static_cast<INT>(position) < 0) {  // What would stay of the selected lines if the selection went.
        const EditLines::Line& last = lines.At(lines.LineOf(text_.End()));
        return static_cast<LRESULT>(text_.Start() - view_.LineStart(text_.Start()) + last.start + last.length - text_.End());
    }
    return position > text_.Length() ? 0 : static_cast<LRESULT>(lines.At(lines.LineOf(position)).length);
}

LRESULT Edit::GetLine(std::size_t line, char16_t* buffer) const
{
    const EditLines& lines = view_.Lines();
    if (line >= lines.Count())
        return 0;
    WORD capacity = 0;  // The caller put it where the first character goes.
    std::memcpy(&capacity, buffer, sizeof capacity);
    const EditLines::Line& found = lines.At(line);
    return static_cast<LRESULT>(text_.Characters().copy(buffer, std::min<std::size_t>(capacity, found.length), found.start));
}

LRESULT Edit::CopyText(WPARAM capacity, char16_t* buffer) const
{
    if (capacity == 0 || !buffer)
        return 0;
    const std::size_t copied = text_.Characters().copy(buffer, capacity - 1);
    buffer[copied] = 0;
    return static_cast<LRESULT>(copied);
}

void Edit::SetPasswordChar(char16_t mask)
{
    if (multiLine_)
        return;
    mask_ = mask;
    inner::SetStyle(window_, ES_PASSWORD, mask ? ES_PASSWORD : 0);
    Arrange();
    Repaint();
}

void Edit::PaintBorder() const
{
    const RECT frame = inner::GetWindowRect(window_);
    const int state = !Enabled() ? ETS_DISABLED : Focused() ? ETS_FOCUSED : ETS_NORMAL;
    if (const HDC dc = inner::GetWindowDC(window_)) {
        PaintEditBorder(dc, {0, 0, frame.right - frame.left, frame.bottom - frame.top}, state);
        inner::ReleaseDC(window_, dc);
    }
}

void Edit::Arrange()
{
    const RECT client = Client();
    view_.Arrange(text_.Characters(), {multiLine_,
                                       multiLine_ && !Has(ES_AUTOHSCROLL),
                                       mask_,
                                       font_,
                                       {client.left + 1, client.top + 1, client.right - 1, client.bottom - 1}});
}

/// Which colours are asked for: conformance test SystemControls.ColorsAreAskedAsEdit_WhileOneCanTypeIntoIt.
void Edit::Paint(HDC dc)
{
    const HBRUSH background = AskColors(readOnly_ || !Enabled() ? WM_CTLCOLORSTATIC : WM_CTLCOLOREDIT, dc);
    const bool showsSelection = Focused() || Has(ES_NOHIDESEL);
    PaintEdit(dc, Client(), {view_, showsSelection ? text_.Start() : 0, showsSelection ? text_.End() : 0, Enabled()}, background);
}

}  // namespace platform
