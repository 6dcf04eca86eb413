// EditText: the characters of an Edit, its selection, its one step of undo and its limits.
#include "platform/src/classes/EditText.h"

#include <algorithm>
#include <utility>

namespace platform {

namespace {

bool Blank(char16_t unit)
{
    return unit <= u' ';
}

}  // namespace

void EditText::Assign(std::u16string_view text)
{
    text_ = text;
    anchor_ = caret_ = 0;
    modified = false;
    EmptyUndo();
}

void EditText::Select(std::size_t anchor, std::size_t caret)
{
    anchor_ = std::min(anchor, Length());
    caret_ = std::min(caret, Length());
}

EditText::Result EditText::Replace(std::u16string_view inserted, Record record)
{
    const std::size_t start = Start();
    std::u16string deleted = Selected();
    const std::size_t kept = Length() - deleted.size();
    const std::size_t room = limit > kept ? limit - kept : 0;
    Result result;
    if (inserted.size() > room) {
        inserted = inserted.substr(0, room);
        result.truncated = true;
    }
    result.changed = !inserted.empty() || !deleted.empty();
    text_.replace(start, deleted.size(), inserted);
    anchor_ = caret_ = start + inserted.size();
    if (result.changed)
        modified = true;
    if (record == Record::None)
        EmptyUndo();
    else if (result.changed)
        Remember(start, std::move(deleted), inserted.size(), record);
    return result;
}

void EditText::Remember(std::size_t start, std::u16string deleted, std::size_t inserted, Record record)
{
    if (record == Record::Typed && undo_.valid) {
        if (deleted.empty() && undo_.position + undo_.inserted == start) {  // Typing goes on.
            undo_.inserted += inserted;
            return;
        }
        if (inserted == 0 && undo_.inserted == 0 && start + deleted.size() == undo_.position) {  // Backspace goes on.
            undo_.position = start;
            undo_.deleted.insert(0, deleted);
            return;
        }
        if (inserted == 0 && undo_.inserted == 0 && start == undo_.position) {  // Delete goes on.
            undo_.deleted += deleted;
            return;
        }
    }
    undo_ = {true, start, inserted, std::move(deleted)};
}

bool EditText::Undo()
{
    if (!undo_.valid)
        return false;
    const Step step = std::exchange(undo_, {});
    Step back{true, step.position, step.deleted.size(), text_.substr(step.position, step.inserted)};
    text_.replace(step.position, step.inserted, step.deleted);
    undo_ = std::move(back);  // Undoing twice brings the change back.
    anchor_ = step.position;
    caret_ = step.position + step.deleted.size();
    modified = true;
    return true;
}

std::size_t PreviousWord(std::u16string_view text, std::size_t position)
{
    while (position > 0 && Blank(text[position - 1]))
        --position;
    while (position > 0 && !Blank(text[position - 1]))
        --position;
    return position;
}

std::size_t NextWord(std::u16string_view text, std::size_t position)
{
    while (position < text.size() && !Blank(text[position]))
        ++position;
    while (position < text.size() && Blank(text[position]))
        ++position;
    return position;
}

std::size_t PreviousCharacter(std::u16string_view text, std::size_t position)
{
    if (position == 0)
        return 0;
    const bool lineBreak = position >= 2 && text[position - 1] == u'\n' && text[position - 2] == u'\r';
    return position - (lineBreak ? 2 : 1);
}

std::size_t NextCharacter(std::u16string_view text, std::size_t position)
{
    if (position >= text.size())
        return text.size();
    const bool lineBreak = text.substr(position, 2) == u"\r\n";
    return position + (lineBreak ? 2 : 1);
}

}  // namespace platform
