// EditChange: everything that changes the text of an Edit, and what the parent hears of it.
#include "platform/src/classes/Clipboard.h"
#include "platform/src/classes/Edit.h"
#include "platform/src/text/Case.h"

namespace platform {

void Edit::SetText(const char16_t* text)
{
    text_.Assign(Cased(text ? text : u""));
    Arrange();
    Repaint();
    // An Edit with many lines keeps silent about text that it is given as a whole.
    if (multiLine_)
        return;
    Notify(EN_UPDATE);
    if (Alive())
        Notify(EN_CHANGE);
}

void Edit::ReplaceSelection(std::u16string_view text, EditText::Record record)
{
    const std::u16string cased = Cased(text);
    const std::u16string_view fitting = Fitting(cased);
    const EditText::Result result = text_.Replace(fitting, record);
    if (result.truncated || fitting.size() < cased.size())
        Notify(EN_MAXTEXT);
    if (result.changed && Alive())
        Changed();
}

void Edit::DeleteTo(std::size_t position)
{
    if (!text_.HasSelection())
        text_.Select(position, text_.Caret());
    if (text_.HasSelection())
        ReplaceSelection({}, EditText::Record::Typed);
}

void Edit::Undo()
{
    if (text_.Undo())
        Changed();
}

void Edit::Changed()
{
    Arrange();
    Notify(EN_UPDATE);
    if (!Alive())
        return;
    Repaint();
    ShowCaret();
    if (Alive())
        Notify(EN_CHANGE);
}

void Edit::Copy() const
{
    if (text_.HasSelection() && mask_ == 0)  // Passwords do not leave the box.
        SimPc::Current().Get<Clipboard>().Text(text_.Selected());
}

void Edit::Cut()
{
    if (readOnly_ || mask_ != 0 || !text_.HasSelection())
        return;
    Copy();
    ReplaceSelection({}, EditText::Record::Step);
}

void Edit::Paste()
{
    const std::u16string& pasted = SimPc::Current().Get<Clipboard>().Text();
    if (readOnly_ || pasted.empty())
        return;
    ReplaceSelection(multiLine_ ? pasted : pasted.substr(0, pasted.find_first_of(u"\r\n")), EditText::Record::Step);
}

std::u16string Edit::Cased(std::u16string_view text) const
{
    std::u16string cased(text);
    const DWORD style = Style();
    for (char16_t& unit : cased)
        unit = style & ES_UPPERCASE ? UpperCase(unit) : style & ES_LOWERCASE ? LowerCase(unit) : unit;
    return cased;
}

std::u16string_view Edit::Fitting(std::u16string_view text) const
{
    if (Has(multiLine_ ? ES_AUTOVSCROLL : ES_AUTOHSCROLL))
        return text;
    const std::u16string& all = text_.Characters();
    for (; !text.empty(); text.remove_suffix(1)) {
        if (view_.Fits(all.substr(0, text_.Start()) + std::u16string(text) + all.substr(text_.End())))
            break;
    }
    return text;
}

void Edit::Select(std::size_t anchor, std::size_t caret)
{
    text_.Select(anchor, caret);
    Repaint();
}

void Edit::ShowCaret()
{
    const EditView::Scrolled scrolled = view_.Show(text_.Caret());
    if (scrolled.horizontally || scrolled.vertically)
        Repaint();
    if (scrolled.vertically)  // Moving sideways with the caret is not told.
        Notify(EN_VSCROLL);
}

}  // namespace platform
