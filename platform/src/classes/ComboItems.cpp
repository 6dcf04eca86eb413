// ComboItems: the list of texts that a ComboBox keeps.
#include "platform/src/classes/ComboBox.h"
#include "platform/src/text/Case.h"

#include <algorithm>

namespace platform {

LRESULT ComboBox::HandleItemMessage(UINT message, WPARAM wParam, LPARAM lParam)
{
    const auto index = static_cast<INT>(wParam);
    const bool exists = index >= 0 && index < static_cast<INT>(items_.size());
    auto* text = reinterpret_cast<char16_t*>(lParam);
    switch (message) {
        case CB_ADDSTRING: {
            std::size_t at = items_.size();
            if (Has(CBS_SORT)) {
                const auto after =
                    std::upper_bound(items_.begin(), items_.end(), UpperCase(std::u16string_view(text)),
                                     [](const std::u16string& wanted, const Item& item) { return wanted < UpperCase(item.text); });
                at = static_cast<std::size_t>(after - items_.begin());
            }
            return Insert(at, text);
        }
        case CB_INSERTSTRING:
            return index == -1                                          ? Insert(items_.size(), text)
                   : exists || index == static_cast<INT>(items_.size()) ? Insert(wParam, text)
                                                                        : CB_ERR;
        case CB_DELETESTRING:
            return exists ? Delete(wParam) : CB_ERR;
        case CB_RESETCONTENT:
            items_.clear();
            selected_ = highlighted_ = -1;
            Repaint();
            return CB_OKAY;
        case CB_GETCOUNT:
            return static_cast<LRESULT>(items_.size());
        case CB_GETCURSEL:
            return dropped_ ? highlighted_ : selected_;
        case CB_SETCURSEL:
            if (exists || index == -1) {
                selected_ = highlighted_ = index;
                Repaint();
            }
            return exists ? index : CB_ERR;
        case CB_GETLBTEXT:
            return exists ? CopyText(items_[wParam].text, items_[wParam].text.size() + 1, text) : CB_ERR;
        case CB_GETLBTEXTLEN:
            return exists ? static_cast<LRESULT>(items_[wParam].text.size()) : CB_ERR;
        case CB_GETITEMDATA:
            return exists ? items_[wParam].data : CB_ERR;
        case CB_SETITEMDATA:
            if (!exists)
                return CB_ERR;
            items_[wParam].data = lParam;
            return CB_OKAY;
        case CB_FINDSTRING:
        case CB_FINDSTRINGEXACT:
            return Find(index, text, message == CB_FINDSTRINGEXACT);
        case CB_GETITEMHEIGHT:
            return index == -1 ? FieldHeight() : ItemHeight();
        case CB_SETITEMHEIGHT:
            return SetHeight(index, static_cast<int>(lParam));
        default:
            SimPc::Current().Unsupported("ComboBox: message " + std::to_string(message));
            return CB_ERR;
    }
}

LRESULT ComboBox::Insert(std::size_t at, const char16_t* text)
{
    items_.insert(items_.begin() + static_cast<std::ptrdiff_t>(at), Item{text, 0});
    if (selected_ >= static_cast<int>(at))
        ++selected_;
    return static_cast<LRESULT>(at);
}

LRESULT ComboBox::Delete(std::size_t index)
{
    items_.erase(items_.begin() + static_cast<std::ptrdiff_t>(index));
    if (selected_ == static_cast<int>(index)) {
        selected_ = -1;
        Repaint();
    } else if (selected_ > static_cast<int>(index)) {
        --selected_;
    }
    return static_cast<LRESULT>(items_.size());
}

LRESULT ComboBox::Find(INT after, const char16_t* text, bool whole) const
{
    const std::u16string wanted = UpperCase(std::u16string_view(text));
    const std::size_t count = items_.size();
    for (std::size_t step = 1; step <= count; ++step) {  // Round the end, back to where the search began.
        const std::size_t index = (static_cast<std::size_t>(after < 0 ? -1 : after) + step) % count;
        const std::u16string candidate = UpperCase(items_[index].text);
        if (whole ? candidate == wanted : candidate.starts_with(wanted))
            return static_cast<LRESULT>(index);
    }
    return CB_ERR;
}

LRESULT ComboBox::CopyText(const std::u16string& text, std::size_t capacity, char16_t* buffer) const
{
    if (capacity == 0)
        return 0;
    const std::size_t copied = text.copy(buffer, capacity - 1);
    buffer[copied] = 0;
    return static_cast<LRESULT>(copied);
}

LRESULT ComboBox::SetHeight(INT item, int pixels)
{
    if (pixels <= 0 || pixels > 255)
        return CB_ERR;
    (item == -1 ? fieldHeight_ : itemHeight_) = pixels;
    FitHeight();
    return CB_OKAY;
}

}  // namespace platform
