// The keyboard: which window gets a key, what message that makes, and what character a key types.
#include "platform/src/core/Gate.h"
#include "platform/src/input/Hardware.h"
#include "platform/src/input/Inner.h"

#include <string_view>

namespace platform {

namespace {

/// A US keyboard, row by row: what each key types without and with Shift, with its virtual key and scan code.
struct Key {
    WORD virtualKey;
    WORD scanCode;
    char16_t plain;
    char16_t shifted;
};
constexpr Key kKeys[] = {{'1', 0x02, u'1', u'!'},
                         {'2', 0x03, u'2', u'@'},
                         {'3', 0x04, u'3', u'#'},
                         {'4', 0x05, u'4', u'$'},
                         {'5', 0x06, u'5', u'%'},
                         {'6', 0x07, u'6', u'^'},
                         {'7', 0x08, u'7', u'&'},
                         {'8', 0x09, u'8', u'*'},
                         {'9', 0x0A, u'9', u'('},
                         {'0', 0x0B, u'0', u')'},
                         {VK_OEM_MINUS, 0x0C, u'-', u'_'},
                         {VK_OEM_PLUS, 0x0D, u'=', u'+'},
                         {0xDB, 0x1A, u'[', u'{'},
                         {0xDD, 0x1B, u']', u'}'},
                         {VK_OEM_1, 0x27, u';', u':'},
                         {0xDE, 0x28, u'\'', u'"'},
                         {0xC0, 0x29, u'`', u'~'},
                         {0xDC, 0x2B, u'\\', u'|'},
                         {VK_OEM_COMMA, 0x33, u',', u'<'},
                         {VK_OEM_PERIOD, 0x34, u'.', u'>'},
                         {0xBF, 0x35, u'/', u'?'},
                         {VK_SPACE, 0x39, u' ', u' '},
                         {VK_BACK, 0x0E, u'\b', u'\b'},
                         {VK_TAB, 0x0F, u'\t', u'\t'},
                         {VK_RETURN, 0x1C, u'\r', u'\r'},
                         {VK_ESCAPE, 0x01, 0x1B, 0x1B},
                         {VK_MULTIPLY, 0x37, u'*', u'*'},
                         {VK_ADD, 0x4E, u'+', u'+'},
                         {VK_SUBTRACT, 0x4A, u'-', u'-'},
                         {VK_DECIMAL, 0x53, u'.', u'.'},
                         {VK_DIVIDE, 0x35, u'/', u'/'},
                         {VK_SHIFT, 0x2A, 0, 0},
                         {VK_CONTROL, 0x1D, 0, 0},
                         {VK_MENU, 0x38, 0, 0},
                         {VK_CAPITAL, 0x3A, 0, 0},
                         {VK_PRIOR, 0x49, 0, 0},
                         {VK_NEXT, 0x51, 0, 0},
                         {VK_END, 0x4F, 0, 0},
                         {VK_HOME, 0x47, 0, 0},
                         {VK_LEFT, 0x4B, 0, 0},
                         {VK_UP, 0x48, 0, 0},
                         {VK_RIGHT, 0x4D, 0, 0},
                         {VK_DOWN, 0x50, 0, 0},
                         {VK_INSERT, 0x52, 0, 0},
                         {VK_DELETE, 0x53, 0, 0},
                         {VK_APPS, 0x5D, 0, 0}};
constexpr std::u16string_view kLetterScanOrder = u"QWERTYUIOP";  // from 0x10; the next rows begin at 0x1E and 0x2C

const Key* FindKey(WORD virtualKey)
{
    for (const Key& key : kKeys)
        if (key.virtualKey == virtualKey)
            return &key;
    return nullptr;
}

bool IsDown(const InputState& input, int key)
{
    return (input.keys[static_cast<std::size_t>(key)] & 0x80) != 0;
}

/// The character that a key types now, 0 when it types none.
char16_t CharacterOf(const InputState& input, WORD virtualKey)
{
    const bool shift = IsDown(input, VK_SHIFT);
    const bool control = IsDown(input, VK_CONTROL);
    if (virtualKey >= 'A' && virtualKey <= 'Z') {
        if (control)
            return static_cast<char16_t>(virtualKey - 'A' + 1);
        const bool capitals = shift != ((input.keys[VK_CAPITAL] & 0x01) != 0);
        return static_cast<char16_t>(capitals ? virtualKey : virtualKey - 'A' + 'a');
    }
    if (virtualKey >= VK_NUMPAD0 && virtualKey <= VK_NUMPAD9)
        return control ? u'\0' : static_cast<char16_t>(u'0' + virtualKey - VK_NUMPAD0);
    if (control) {
        switch (virtualKey) {
            case VK_RETURN:
                return u'\n';
            case VK_BACK:
                return 0x7F;
            case VK_ESCAPE:
            case 0xDB:
                return 0x1B;
            case 0xDC:
                return 0x1C;
            case 0xDD:
                return 0x1D;
            case VK_SPACE:
                return u' ';
            default:
                return 0;
        }
    }
    const Key* key = FindKey(virtualKey);
    return !key ? u'\0' : shift ? key->shifted : key->plain;
}

/// The key without its side: left and right Shift are both VK_SHIFT to a window.
WORD WithoutSide(WORD key)
{
    switch (key) {
        case VK_LSHIFT:
        case VK_RSHIFT:
            return VK_SHIFT;
        case VK_LCONTROL:
        case VK_RCONTROL:
            return VK_CONTROL;
        case VK_LMENU:
        case VK_RMENU:
            return VK_MENU;
        default:
            return key;
    }
}

void UpdateKey(InputState& input, WORD key, bool up)
{
    const auto set = [&](WORD which) {
        BYTE& state = input.keys[which & 0xFF];
        if (up)
            state = static_cast<BYTE>(state & ~0x80);
        else
            state = static_cast<BYTE>((state & 0x80) ? state : (state ^ 0x01) | 0x80);
    };
    set(WithoutSide(key));
    switch (key) {
        case VK_SHIFT:
            set(VK_LSHIFT);
            break;
        case VK_CONTROL:
            set(VK_LCONTROL);
            break;
        case VK_MENU:
            set(VK_LMENU);
            break;
        case VK_LSHIFT:
        case VK_RSHIFT:
        case VK_LCONTROL:
        case VK_RCONTROL:
        case VK_LMENU:
        case VK_RMENU:
            set(key);
            break;
        default:
            break;
    }
}

}  // namespace

WORD ScanCode(WORD virtualKey)
{
    static constexpr std::u16string_view rows[] = {kLetterScanOrder, u"ASDFGHJKL", u"ZXCVBNM"};
    static constexpr WORD starts[] = {0x10, 0x1E, 0x2C};
    for (std::size_t row = 0; row < 3; ++row)
        if (const auto column = rows[row].find(static_cast<char16_t>(virtualKey)); column != std::u16string_view::npos)
            return static_cast<WORD>(starts[row] + column);
    if (virtualKey >= VK_F1 && virtualKey <= VK_F10)
        return static_cast<WORD>(0x3B + virtualKey - VK_F1);
    const Key* key = FindKey(WithoutSide(virtualKey));
    return key ? key->scanCode : WORD{0};
}

std::optional<Keystroke> KeyFor(char16_t character)
{
    if (character >= u'a' && character <= u'z')
        return Keystroke{static_cast<WORD>(character - u'a' + 'A'), false};
    if (character >= u'A' && character <= u'Z')
        return Keystroke{static_cast<WORD>(character), true};
    if (character == u'\n')
        return Keystroke{VK_RETURN, false};
    for (const Key& key : kKeys) {
        if (character != 0 && key.plain == character)
            return Keystroke{key.virtualKey, false};
        if (character != 0 && key.shifted == character)
            return Keystroke{key.virtualKey, true};
    }
    return {};
}

std::optional<MSG> FindKeyReceiver(ThreadQueue& queue, const HardwareEvent& event)
{
    InputState& input = *queue.input;
    const WORD key = WithoutSide(event.virtualKey);
    const bool wasDown = IsDown(input, key);
    UpdateKey(input, event.virtualKey, event.up);
    const bool alt = IsDown(input, VK_MENU);
    const bool control = IsDown(input, VK_CONTROL);

    // A key is a system key while Alt is held without Ctrl, when it is Alt itself or F10, and when no window has the focus.
    bool system = !input.focus || (alt && !control) || key == VK_F10;
    if (key == VK_MENU) {
        system = !input.focus || (event.up ? input.menuKeyAlone : !control);
        input.menuKeyAlone = !event.up;
    } else {
        input.menuKeyAlone = false;
    }
    const HWND window = input.focus ? input.focus : input.active;
    if (!window)
        return {};
    DWORD flags = 1;
    if (key == VK_PACKET) {  // The high word is the character.
        flags |= static_cast<DWORD>(event.scanCode) << 16;
    } else {
        flags |= static_cast<DWORD>(event.scanCode & 0xFF) << 16 | (event.extended ? 1u << 24 : 0) | (alt ? 1u << 29 : 0);
        flags |= (wasDown || event.up ? 1u << 30 : 0) | (event.up ? 1u << 31 : 0);
    }
    const UINT message = event.up ? (system ? WM_SYSKEYUP : WM_KEYUP) : (system ? WM_SYSKEYDOWN : WM_KEYDOWN);
    return MSG{window, message, key, static_cast<LPARAM>(flags), event.time, event.point};
}

namespace inner {

BOOL TranslateMessage(const MSG& message)
{
    if (message.message < WM_KEYDOWN || message.message > WM_SYSKEYUP || message.message == WM_CHAR)
        return FALSE;
    if (message.message != WM_KEYDOWN && message.message != WM_SYSKEYDOWN)
        return TRUE;
    ThreadQueue& queue = Queues().Current();
    const char16_t character = message.wParam == VK_PACKET ? static_cast<char16_t>(HIWORD(message.lParam))
                                                           : CharacterOf(*queue.input, static_cast<WORD>(message.wParam));
    if (character != 0)
        Queues().Post(queue, message.hwnd, message.message == WM_KEYDOWN ? WM_CHAR : WM_SYSCHAR, character, message.lParam);
    return TRUE;
}

SHORT GetKeyState(int key)
{
    const BYTE state = Queues().Current().input->keys[static_cast<std::size_t>(key & 0xFF)];
    return static_cast<SHORT>(((state & 0x80) ? 0xFF80 : 0) | (state & 0x01));
}

}  // namespace inner

}  // namespace platform

using namespace platform;

SHORT WINAPI GetKeyState(int key)
{
    SIM_NOTE(key);
    return inner::GetKeyState(key);
}

SHORT WINAPI GetAsyncKeyState(int key)
{
    SIM_NOTE(key);
    BYTE& state = Queues().asyncKeys[static_cast<std::size_t>(key & 0xFF)];
    const auto result = static_cast<SHORT>(((state & 0x80) ? 0x8000 : 0) | (state & 0x01));
    state = static_cast<BYTE>(state & ~0x01);
    return result;
}
