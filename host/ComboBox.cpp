#include "host/ComboBox.h"

#include "host/AccessibleFacts.h"

#include <oleacc.h>

namespace host {

namespace {

constexpr const WCHAR* listKey = TEXT("List");
constexpr int droppedHeight = 130;

}  // namespace

StockControl::SystemWindow ComboBox::Describe() const
{
    return {TEXT("ComboBox"), CBS_DROPDOWNLIST | CBS_HASSTRINGS | WS_VSCROLL | WS_TABSTOP, {}};
}

void ComboBox::Made()
{
    for (const base::String& item : items_)
        SendMessageW(hWnd(), CB_ADDSTRING, 0, reinterpret_cast<LPARAM>(item.c_str()));
    SendMessageW(hWnd(), CB_SETCURSEL, static_cast<WPARAM>(listIndex_), 0);
}

/// Windows counts the list that drops down into the height of the window.
RECT ComboBox::WindowRect(RECT place) const
{
    place.bottom += droppedHeight;
    return place;
}

void ComboBox::AddItem(base::StringView text)
{
    const base::String& item = items_.emplace_back(text);
    if (hWnd())
        SendMessageW(hWnd(), CB_ADDSTRING, 0, reinterpret_cast<LPARAM>(item.c_str()));
}

base::String ComboBox::List(int index) const
{
    return index >= 0 && index < ListCount() ? items_[static_cast<std::size_t>(index)] : base::String{};
}

void ComboBox::ListIndex(int index)
{
    if (index < 0 || index >= ListCount())
        index = -1;
    if (index == listIndex_)
        return;
    listIndex_ = index;
    if (hWnd())
        SendMessageW(hWnd(), CB_SETCURSEL, static_cast<WPARAM>(index), 0);
    Click.Raise();
}

AccessibleFacts ComboBox::Accessibility()
{
    const bool isDropped = SendMessageW(hWnd(), CB_GETDROPPEDSTATE, 0, 0) != FALSE;
    return {.role = ROLE_SYSTEM_COMBOBOX,
            .state = STATE_SYSTEM_HASPOPUP | (isDropped ? STATE_SYSTEM_EXPANDED : STATE_SYSTEM_COLLAPSED),
            .value = Text()};
}

void ComboBox::Command(WORD notification)
{
    if (notification != CBN_SELCHANGE)
        return;
    const int index = static_cast<int>(SendMessageW(hWnd(), CB_GETCURSEL, 0, 0));
    if (std::exchange(listIndex_, index) != index)
        Click.Raise();
}

bool ComboBox::WantsKey(std::int16_t keyCode) const
{
    if (keyCode == VK_RETURN || keyCode == VK_ESCAPE)
        return SendMessageW(hWnd(), CB_GETDROPPEDSTATE, 0, 0) != FALSE;
    return keyCode != VK_TAB;
}

bool ComboBox::OnKey(KeyEvent event, WPARAM& key)
{
    return HandOver(
        event, key, [this](auto& code) { KeyPress.Raise(code); }, [this](auto& code, auto& shift) { KeyDown.Raise(code, shift); },
        [this](auto& code, auto& shift) { KeyUp.Raise(code, shift); });
}

void ComboBox::ReadProperties(const PropertyBag& bag)
{
    items_ = bag.Read<TextList>(listKey, {});
}

void ComboBox::WriteProperties(PropertyBag& bag)
{
    bag.Write(listKey, items_, {});
}

}  // namespace host
