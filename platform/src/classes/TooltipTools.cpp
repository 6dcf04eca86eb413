// TooltipTools: the tools that a tooltip knows, its texts, colours and delays.
#include "platform/sim/Modules.h"
#include "platform/src/classes/Tooltip.h"
#include "platform/src/core/Widths.h"

#include <algorithm>
#include <cstddef>

namespace platform {

static_assert(TTTOOLINFOW_V1_SIZE == Wide(56, 40) && TTTOOLINFOW_V2_SIZE == Wide(64, 44) && TTTOOLINFOW_V3_SIZE == Wide(72, 48));
static_assert(offsetof(TTTOOLINFOW, rect) == Wide(24, 16) && offsetof(TTTOOLINFOW, hinst) == Wide(40, 32) &&
              offsetof(TTTOOLINFOW, lpszText) == Wide(48, 36));
static_assert(sizeof(INITCOMMONCONTROLSEX) == 8);

namespace {

constexpr int kDefaultInitialDelay = 500;

bool KnownSize(UINT size)
{
    // Version 5 of the common controls refuses the record of version 6, which is longer.
    const bool longest = SimPc::Current().Get<Modules>().CommonControlsMajor() >= 6;
    return size == TTTOOLINFOW_V1_SIZE || size == TTTOOLINFOW_V2_SIZE || (longest && size == TTTOOLINFOW_V3_SIZE);
}

std::u16string TextOf(LPCWSTR text)
{
    if (text == reinterpret_cast<LPCWSTR>(static_cast<LONG_PTR>(-1)) || (text && IS_INTRESOURCE(text))) {
        SimPc::Current().Unsupported("tooltips_class32: a text from a callback or from the string table");
        return {};
    }
    return text ? text : u"";
}

LRESULT CALLBACK FollowTool(HWND window, UINT message, WPARAM wParam, LPARAM lParam, UINT_PTR id, DWORD_PTR)
{
    if ((message >= WM_MOUSEFIRST && message <= WM_MOUSELAST) || message == WM_NCMOUSEMOVE) {
        const auto tooltip = SimPc::Current().Get<ControlTable>().Find(reinterpret_cast<HWND>(id));
        if (tooltip)
            std::static_pointer_cast<Tooltip>(tooltip)->Relay(window, message, lParam);
    }
    return inner::DefSubclassProc(window, message, wParam, lParam);
}

}  // namespace

LRESULT Tooltip::HandleTooltipMessage(UINT message, WPARAM wParam, LPARAM lParam)
{
    switch (message) {
        case TTM_ADDTOOLW:
        case TTM_GETTOOLINFOW: {
            auto* info = reinterpret_cast<TTTOOLINFOW*>(lParam);
            return info && KnownSize(info->cbSize) && (message == TTM_ADDTOOLW ? AddTool(*info) : DescribeTool(*info));
        }
        case TTM_TRACKACTIVATE:
            if (const auto* info = reinterpret_cast<const TTTOOLINFOW*>(lParam); info && KnownSize(info->cbSize))
                Track(wParam != FALSE, *info);
            return 0;
        case TTM_TRACKPOSITION:
            tracked_ = {GET_X_LPARAM(lParam), GET_Y_LPARAM(lParam)};
            return 0;
        case TTM_GETTOOLCOUNT:
            return static_cast<LRESULT>(tools_.size());
        case TTM_SETDELAYTIME:
            SetDelay(wParam, static_cast<SHORT>(LOWORD(lParam)));
            return 0;
        case TTM_GETDELAYTIME:
            return Delay(wParam);
        case TTM_SETMAXTIPWIDTH:
            return std::exchange(maxWidth_, static_cast<int>(lParam));
        case TTM_GETMAXTIPWIDTH:
            return maxWidth_;
        case TTM_SETTIPBKCOLOR:
            backColor_ = static_cast<COLORREF>(wParam);
            return 0;
        case TTM_GETTIPBKCOLOR:
            return static_cast<LRESULT>(backColor_);
        case TTM_SETTIPTEXTCOLOR:
            textColor_ = static_cast<COLORREF>(wParam);
            return 0;
        case TTM_GETTIPTEXTCOLOR:
            return static_cast<LRESULT>(textColor_);
        case TTM_SETTITLEW:
            title_ = TextOf(reinterpret_cast<LPCWSTR>(lParam));
            icon_ = static_cast<int>(wParam);
            return TRUE;
        default:
            SimPc::Current().Unsupported("tooltips_class32: message " + std::to_string(message));
            return 0;
    }
}

bool Tooltip::DescribeTool(TTTOOLINFOW& info) const
{
    const auto found =
        std::find_if(tools_.begin(), tools_.end(), [&](const Tool& tool) { return tool.window == info.hwnd && tool.id == info.uId; });
    if (found == tools_.end())
        return false;
    info.uFlags = found->flags;
    info.rect = found->rectangle;
    info.hinst = found->instance;
    if (info.cbSize >= TTTOOLINFOW_V2_SIZE)
        info.lParam = found->data;
    if (info.lpszText)
        info.lpszText[found->text.copy(info.lpszText, std::u16string::npos)] = 0;
    return true;
}

bool Tooltip::AddTool(const TTTOOLINFOW& info)
{
    if (info.uFlags & ~static_cast<UINT>(TTF_SUBCLASS | TTF_CENTERTIP | TTF_TRACK))
        SimPc::Current().Unsupported("tooltips_class32: a tool with the flags " + std::to_string(info.uFlags));
    const LPARAM data = info.cbSize >= TTTOOLINFOW_V2_SIZE ? info.lParam : 0;
    tools_.push_back({info.uFlags, info.hwnd, info.uId, info.rect, info.hinst, TextOf(info.lpszText), data});
    if (info.uFlags & TTF_SUBCLASS)
        inner::SetWindowSubclass(info.hwnd, FollowTool, reinterpret_cast<UINT_PTR>(window_), 0);
    return true;
}

/// A tracked tip comes and goes when it is told to, wherever the mouse is.
void Tooltip::Track(bool activate, const TTTOOLINFOW& info)
{
    const auto found =
        std::find_if(tools_.begin(), tools_.end(), [&](const Tool& tool) { return tool.window == info.hwnd && tool.id == info.uId; });
    if (found == tools_.end() || !(found->flags & TTF_TRACK))
        return;
    Pop();
    current_ = activate ? static_cast<int>(found - tools_.begin()) : -1;
    if (activate)
        Show(current_);
}

void Tooltip::RemoveTool(std::size_t index)
{
    if (static_cast<int>(index) == current_) {
        Pop();
        current_ = -1;
    } else if (static_cast<int>(index) < current_) {
        --current_;
    }
    const Tool gone = tools_[index];
    tools_.erase(tools_.begin() + static_cast<std::ptrdiff_t>(index));
    const bool stillFollowed = std::any_of(tools_.begin(), tools_.end(),
                                           [&](const Tool& tool) { return (tool.flags & TTF_SUBCLASS) && tool.window == gone.window; });
    if ((gone.flags & TTF_SUBCLASS) && !stillFollowed)
        inner::RemoveWindowSubclass(gone.window, FollowTool, reinterpret_cast<UINT_PTR>(window_));
}

void Tooltip::SetDelay(WPARAM which, int milliseconds)
{
    if (which == TTDT_AUTOMATIC) {
        initialDelay_ = milliseconds < 0 ? kDefaultInitialDelay : milliseconds;
        autoPopDelay_ = initialDelay_ * 10;
        reshowDelay_ = initialDelay_ / 5;
        return;
    }
    int& delay = which == TTDT_INITIAL ? initialDelay_ : which == TTDT_AUTOPOP ? autoPopDelay_ : reshowDelay_;
    const int standard = which == TTDT_INITIAL   ? kDefaultInitialDelay
                         : which == TTDT_AUTOPOP ? kDefaultInitialDelay * 10
                                                 : kDefaultInitialDelay / 5;
    delay = milliseconds < 0 ? standard : milliseconds;
}

int Tooltip::Delay(WPARAM which) const
{
    return which == TTDT_AUTOPOP ? autoPopDelay_ : which == TTDT_RESHOW ? reshowDelay_ : initialDelay_;
}

}  // namespace platform
