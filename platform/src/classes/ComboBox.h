// ComboBox: a field that shows one text of a list, with the list to choose from below it.
#pragma once

#include "platform/src/classes/Control.h"

#include <vector>

namespace platform {

class ComboBox : public Control {
public:
    using Control::Control;
    LRESULT Handle(UINT message, WPARAM wParam, LPARAM lParam) override;

    /// What the two painters need to know. Heights are pixels.
    struct Look {
        const std::vector<std::u16string>& items;
        int shown = -1;  // the item in the field; in the list the highlighted one
        int first = 0;   // the topmost item of the list
        int itemHeight = 0;
        bool enabled = true;
        bool focused = false;
        bool dropped = false;
        bool themed = false;
        HFONT font = nullptr;
    };

    // What the list's window asks for and reports.
    [[nodiscard]] Look ListLook() const;
    [[nodiscard]] HBRUSH AskListColors(HDC dc, HWND list) const;
    /// The mouse is over an item, or a wheel or an arrow key moves on.
    void Highlight(int item);
    void ScrollList(int items);
    /// Closes the list; `accept` takes the highlighted item.
    void RollUp(bool accept);
    /// Takes an item that was clicked. The parent hears of it even when it is the one that was chosen before.
    void Pick(int item);
    /// A press beside the list closes it.
    void PressedOutside(POINT screen);
    [[nodiscard]] int ItemAt(int y) const;

protected:
    void Paint(HDC dc) override;
    void FontChanged() override;

private:
    bool Create(const CREATESTRUCTW& create);
    void KeepHeight(WINDOWPOS& place);
    void FocusMoved(bool here);
    /// The mouse wheel; 120 is one notch away from the user.
    void Turn(int wheel);

    // The list of texts (ComboItems.cpp).
    LRESULT HandleItemMessage(UINT message, WPARAM wParam, LPARAM lParam);
    [[nodiscard]] LRESULT CopyText(const std::u16string& text, std::size_t capacity, char16_t* buffer) const;

    // Heights, keys, the open list.
    [[nodiscard]] int ItemHeight() const;
    [[nodiscard]] int FieldHeight() const;
    [[nodiscard]] int ClosedHeight() const { return FieldHeight() + 6; }
    void FitHeight() const;
    [[nodiscard]] int VisibleItems() const;
    void DropDown();
    [[nodiscard]] bool HandleKey(WPARAM key, bool alt);
    void TypeCharacter(char16_t character);
    void ChooseByKey(int item);

    std::vector<std::u16string> items_;
    int selected_ = -1;
    int highlighted_ = -1;
    int firstVisible_ = 0;
    int openHeight_ = 0;  // the height that the creator asked for, list included
    HWND list_ = nullptr;
    bool dropped_ = false;
};

/// The field with its arrow, and the open list. `background` is what the parent answered to WM_CTLCOLOREDIT or WM_CTLCOLORLISTBOX.
void PaintComboField(HDC dc, const RECT& client, const ComboBox::Look& look, HBRUSH background);
void PaintComboList(HDC dc, const RECT& client, const ComboBox::Look& look, HBRUSH background);

}  // namespace platform
