#include "controls/TextBox/TextBox.h"

#include "controls/TextBox/TextBoxEditStyle.h"
#include "host/AccessibleFacts.h"

#include <oleacc.h>

namespace controls {

using base::String;

void TextBox::UserControl_InitProperties()
{
    TakeFont(*Ambient().Font());
    cachedText_ = Ambient().DisplayName();
    Begin();
}

void TextBox::UserControl_Paint()
{
    hosted_.ControlPainted();
    FixFocus();
}

/// What is typed in secret is not read out.
host::AccessibleFacts TextBox::Accessibility()
{
    host::AccessibleFacts facts = LibraryControl::Accessibility();
    facts.role = ROLE_SYSTEM_TEXT;
    const bool isSecret = useSystemPasswordChar_ || hosted_.Send(EM_GETPASSWORDCHAR) != 0;
    facts.state = (isSecret ? STATE_SYSTEM_PROTECTED : 0) | (locked_ ? STATE_SYSTEM_READONLY : 0);
    if (!isSecret)
        facts.value = hosted_.Text();
    return facts;
}

void TextBox::ReleaseWindow()
{
    HostedControl::ReleaseWindow();
    lineWindow_.Reset();
}

void TextBox::CreateWindowAnew()
{
    if (hosted_.Window())
        Cache(hosted_.Text());
    const std::int32_t start = SelStart(), length = SelLength();
    HostedControl::CreateWindowAnew();
    if (!hosted_.Window())
        return;
    Text(cachedText_);
    SetSel(start, length);
    ScrollToActualPos();
}

HostedWindow::Shape TextBox::Shape()
{
    DWORD style = CaseBits(caseStyle_) | LineBits(multiLine_, scrollBars_);
    style |= useSystemPasswordChar_ || passwordChar_ != 0 ? ES_PASSWORD : 0;
    style |= hideSelection_ ? 0 : ES_NOHIDESEL;
    return {TEXT("Edit"), style, dragDropEnabled_ ? WS_EX_ACCEPTFILES : DWORD{0}, {}};
}

void TextBox::WindowMade()
{
    CreateLineWindow();
    ShowFont();
    LimitText();
    hosted_.SetStyleBits(ES_NUMBER, allowOnlyNumbers_ ? ES_NUMBER : 0);
    if (allowOnlyNumbers_)
        rules_ = {};
    if (locked_)
        hosted_.Send(EM_SETREADONLY, TRUE);
    if (passwordChar_ != 0 && !useSystemPasswordChar_)
        hosted_.Send(EM_SETPASSWORDCHAR, static_cast<WPARAM>(passwordChar_));
    ShowColors();
    hosted_.Subclass();
}

/// An edit that scrolls sideways never wraps: its lines are the text's own. It stays out of sight and hears only questions.
void TextBox::CreateLineWindow()
{
    if (!enhacedLineComputing_ || ScrollsSideways(scrollBars_))
        return;
    lineWindow_.Reset(CreateWindowExW(0, TEXT("Edit"), nullptr, WS_CHILD | ES_MULTILINE | ES_AUTOVSCROLL | ES_AUTOHSCROLL, 0, 0, 0, 0,
                                      HWND_MESSAGE, nullptr, GetModuleHandleW(nullptr), nullptr));
}

}  // namespace controls
