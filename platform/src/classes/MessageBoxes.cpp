// MessageBox: message boxes of the stand-in PC. They are recorded and answered, nobody has to click.
#include "platform/sim/MessageBoxes.h"
#include "platform/src/core/Gate.h"
#include "platform/src/window/Window.h"

#include <windows.h>

using namespace platform;

namespace {

std::u16string NameOf(LPCWSTR name)
{
    if (!name)
        return {};
    if (!IS_INTRESOURCE(name))
        return name;
    std::u16string text = u"#";
    for (const char digit : std::to_string(reinterpret_cast<ULONG_PTR>(name)))
        text += static_cast<char16_t>(digit);
    return text;
}

std::u16string TextOf(LPCWSTR text)
{
    if (!text)
        return {};
    if (IS_INTRESOURCE(text)) {
        SimPc::Current().Unsupported("MessageBoxIndirectW: text from the string table");
        return {};
    }
    return text;
}

}  // namespace

int MessageBoxes::Show(Shown box)
{
    shown_.push_back(std::move(box));
    int answer = IDOK;
    if (!answers_.empty()) {
        answer = answers_.front();
        answers_.pop_front();
    }
    return answer;
}

int WINAPI MessageBoxIndirectW(const MSGBOXPARAMSW* parameters)
{
    SIM_CALL(0, ERROR_NOT_ENOUGH_MEMORY, parameters);
    SimPc& pc = SimPc::Current();
    if (!parameters || parameters->cbSize != sizeof(MSGBOXPARAMSW))
        return pc.Fail(ERROR_INVALID_PARAMETER, 0);
    if (parameters->hwndOwner && !WindowOf(parameters->hwndOwner))
        return pc.Fail(ERROR_INVALID_WINDOW_HANDLE, 0);
    const bool userIcon = (parameters->dwStyle & MB_USERICON) != 0;
    return pc.Get<MessageBoxes>().Show({parameters->lpszCaption ? TextOf(parameters->lpszCaption) : u"Error", TextOf(parameters->lpszText),
                                        parameters->dwStyle, parameters->hwndOwner, userIcon ? NameOf(parameters->lpszIcon) : u"",
                                        userIcon ? parameters->hInstance : nullptr, parameters->dwLanguageId});
}
