// ComboBox: the stock drop-down list.
#pragma once

#include "host/StockControl.h"

namespace host {

/// A "ComboBox" window that lets the user choose among given texts and type none.
class ComboBox final : public StockControl {
public:
    [[nodiscard]] base::StringView Kind() const override { return TEXT("ComboBox"); }
    [[nodiscard]] bool CanGetFocus() const override { return true; }
    [[nodiscard]] AccessibleFacts Accessibility() override;
    /// All but Tab; Enter and Esc only while the list is dropped down.
    [[nodiscard]] bool WantsKey(std::int16_t keyCode) const override;

    void AddItem(base::StringView text);
    [[nodiscard]] int ListCount() const { return static_cast<int>(items_.size()); }
    /// Empty for an index out of range.
    [[nodiscard]] base::String List(int index) const;
    /// From 0; -1 for none. An index out of range selects nothing.
    [[nodiscard]] int ListIndex() const { return listIndex_; }
    /// Raises Click when it changes something.
    void ListIndex(int index);
    /// The selected text, empty for none.
    [[nodiscard]] base::String Text() const { return List(listIndex_); }

    /// The selection has changed, by the user or by code.
    Event<1> Click;
    Event<2, std::int16_t&, std::int16_t&> KeyDown;
    Event<3, std::int16_t&, std::int16_t&> KeyUp;
    Event<4, std::int16_t&> KeyPress;

private:
    [[nodiscard]] SystemWindow Describe() const override;
    void Made() override;
    [[nodiscard]] RECT WindowRect(RECT place) const override;
    void ReadProperties(const PropertyBag& bag) override;
    void WriteProperties(PropertyBag& bag) override;
    [[nodiscard]] bool OnKey(KeyEvent event, WPARAM& key) override;
    void Command(WORD notification) override;

    TextList items_;
    int listIndex_ = -1;
};

}  // namespace host
