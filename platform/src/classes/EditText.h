// EditText: the characters of an Edit, its selection, its one step of undo and its limits. It knows nothing of windows.
#pragma once

#include <windef.h>

#include <cstddef>
#include <string>
#include <string_view>

namespace platform {

class EditText {
public:
    /// How a replacement is remembered for `Undo`.
    enum class Record {
        None,   // forgets what could be undone
        Step,   // stands alone
        Typed,  // joins the step before it when it continues at the same place
    };
    struct Result {
        bool changed = false;
        bool truncated = false;  // the limit cut the insertion short
    };

    [[nodiscard]] const std::u16string& Characters() const { return text_; }
    [[nodiscard]] std::size_t Length() const { return text_.size(); }
    /// Replaces everything. The limit does not hold here; the caret goes to the start and there is nothing to undo.
    void Assign(std::u16string_view text);

    /// The selection in order, and its moving end.
    [[nodiscard]] std::size_t Start() const { return anchor_ < caret_ ? anchor_ : caret_; }
    [[nodiscard]] std::size_t End() const { return anchor_ < caret_ ? caret_ : anchor_; }
    [[nodiscard]] std::size_t Anchor() const { return anchor_; }
    [[nodiscard]] std::size_t Caret() const { return caret_; }
    [[nodiscard]] bool HasSelection() const { return anchor_ != caret_; }
    [[nodiscard]] std::u16string Selected() const { return text_.substr(Start(), End() - Start()); }
    /// Positions beyond the end count as the end.
    void Select(std::size_t anchor, std::size_t caret);

    /// Puts `inserted` in the place of the selection, as far as the limit allows, and the caret behind it.
    Result Replace(std::u16string_view inserted, Record record);
    bool Undo();
    [[nodiscard]] bool CanUndo() const { return undo_.valid; }
    void EmptyUndo() { undo_ = {}; }

    /// Most characters that can be typed, pasted or put in the place of a selection.
    std::size_t limit = 30000;
    bool modified = false;

private:
    struct Step {
        bool valid = false;
        std::size_t position = 0;
        std::size_t inserted = 0;  // characters that undoing takes out
        std::u16string deleted;    // characters that undoing puts back
    };
    void Remember(std::size_t start, std::u16string deleted, std::size_t inserted, Record record);

    std::u16string text_;
    std::size_t anchor_ = 0;
    std::size_t caret_ = 0;
    Step undo_;
};

/// Where the caret goes with Ctrl+Left and Ctrl+Right: to the start of the word before or behind.
[[nodiscard]] std::size_t PreviousWord(std::u16string_view text, std::size_t position);
[[nodiscard]] std::size_t NextWord(std::u16string_view text, std::size_t position);
/// One character back or on; a line break, two characters long, is passed in one go.
[[nodiscard]] std::size_t PreviousCharacter(std::u16string_view text, std::size_t position);
[[nodiscard]] std::size_t NextCharacter(std::u16string_view text, std::size_t position);

}  // namespace platform
