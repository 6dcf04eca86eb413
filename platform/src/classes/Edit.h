// Edit: the text box of the system, with one line or many.
#pragma once

#include "platform/src/classes/Control.h"
#include "platform/src/classes/EditText.h"
#include "platform/src/classes/EditView.h"

namespace platform {

class Edit : public Control {
public:
    using Control::Control;
    LRESULT Handle(UINT message, WPARAM wParam, LPARAM lParam) override;

    /// What a painter needs to know.
    struct Look {
        const EditView& view;
        std::size_t selectionStart = 0;
        std::size_t selectionEnd = 0;
        bool enabled = true;
    };

protected:
    void Paint(HDC dc) override;
    void FontChanged() override { Arrange(); }

private:
    // Life and questions (Edit.cpp).
    bool Create(const CREATESTRUCTW& create);
    LRESULT HandleEditMessage(UINT message, WPARAM wParam, LPARAM lParam);
    LRESULT GetSelection(DWORD* first, DWORD* last) const;
    /// A negative start selects nothing, a negative end is the end of the text.
    void SetSelection(INT start, INT end);
    LRESULT HandleLineMessage(UINT message, WPARAM wParam, LPARAM lParam) const;
    [[nodiscard]] LRESULT GetLine(std::size_t line, char16_t* buffer) const;
    [[nodiscard]] LRESULT LineLength(WPARAM position) const;
    [[nodiscard]] LRESULT CopyText(WPARAM capacity, char16_t* buffer) const;
    void SetPasswordChar(char16_t mask);
    void PaintBorder() const;
    void Arrange();

    // What changes the text (EditChange.cpp).
    void SetText(const char16_t* text);
    void ReplaceSelection(std::u16string_view text, EditText::Record record);
    /// Takes out what lies between the caret and another position, unless something is selected: then that.
    void DeleteTo(std::size_t position);
    void Undo();
    void Changed();
    void Copy() const;
    void Cut();
    void Paste();
    [[nodiscard]] std::u16string Cased(std::u16string_view text) const;
    /// As much of `text` as has room in a window that does not scroll by itself.
    [[nodiscard]] std::u16string_view Fitting(std::u16string_view text) const;
    void Select(std::size_t anchor, std::size_t caret);
    void ShowCaret();
    void ScrollLines(int lines);

    // Keys and mouse (EditInput.cpp).
    void TypeCharacter(char16_t character);
    LRESULT HandleKeyDown(WPARAM key, LPARAM lParam);
    [[nodiscard]] bool MoveByKey(WPARAM key);
    LRESULT HandleMouse(UINT message, WPARAM wParam, LPARAM lParam);

    EditText text_;
    EditView view_;
    char16_t mask_ = 0;
    bool multiLine_ = false;
    bool readOnly_ = false;
    bool selecting_ = false;  // the mouse draws a selection
};

/// Draws the text of an Edit and its selection into `dc`, whose colours are set. `background` fills the rest.
void PaintEdit(HDC dc, const RECT& client, const Edit::Look& look, HBRUSH background);
/// Draws the frame of an Edit with visual styles; `window` is the whole window from its own corner, `state` an ETS_ value.
void PaintEditBorder(HDC windowDc, const RECT& window, int state);

}  // namespace platform
