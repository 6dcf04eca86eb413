// ComboItems: the list of texts that a ComboBox keeps.
#include "platform/src/classes/ComboBox.h"

namespace platform {

LRESULT ComboBox::HandleItemMessage(UINT message, WPARAM wParam, LPARAM lParam)
{
    const auto index = static_cast<INT>(wParam);
    const bool exists = index >= 0 && index < static_cast<INT>(items_.size());
    switch (message) {
        case CB_ADDSTRING:
            if (Has(CBS_SORT)) {
                SimPc::Current().Unsupported("ComboBox: a sorted list");
                return CB_ERR;
            }
            items_.emplace_back(reinterpret_cast<const char16_t*>(lParam));
            return static_cast<LRESULT>(items_.size()) - 1;
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
        default:
            SimPc::Current().Unsupported("ComboBox: message " + std::to_string(message));
            return CB_ERR;
    }
}

LRESULT ComboBox::CopyText(const std::u16string& text, std::size_t capacity, char16_t* buffer) const
{
    if (capacity == 0)
        return 0;
    const std::size_t copied = text.copy(buffer, capacity - 1);
    buffer[copied] = 0;
    return static_cast<LRESULT>(copied);
}

}  // namespace platform
