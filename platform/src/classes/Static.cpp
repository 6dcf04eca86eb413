// Static: a text that the user cannot change.
#include "platform/src/classes/Control.h"
#include "platform/src/classes/SystemClasses.h"

namespace platform {

namespace {

class Static : public Control {
public:
    using Control::Control;

    LRESULT Handle(UINT message, WPARAM wParam, LPARAM lParam) override
    {
        switch (message) {
            case WM_NCHITTEST:
                return HTTRANSPARENT;
            case WM_SETTEXT: {
                const LRESULT result = inner::DefWindowProc(window_, message, wParam, lParam);
                Repaint();
                return result;
            }
            default:
                return HandleShared(message, wParam, lParam);
        }
    }

protected:
    void Paint(HDC dc) override
    {
        const HBRUSH background = AskColors(WM_CTLCOLORSTATIC, dc);
        Canvas canvas(dc);
        canvas.Fill(Client(), background);
        if (font_)
            canvas.Font(font_);
        if (!Enabled())
            canvas.TextColor(SimPc::Current().Get<Graphics>().SystemColor(COLOR_GRAYTEXT));
        RECT cell = Client();
        canvas.Text(Text(), cell, Format());
    }

private:
    [[nodiscard]] UINT Format() const
    {
        if (Style() & 0xFFFF & ~SS_EDITCONTROL)
            SimPc::Current().Unsupported("Static: style " + std::to_string(Style() & 0xFFFF));
        return DT_EXPANDTABS | DT_LEFT | DT_WORDBREAK | (Style() & SS_EDITCONTROL ? DT_EDITCONTROL : 0u);
    }
};

}  // namespace

LRESULT CALLBACK StaticProcedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam)
{
    return ControlProcedure<Static>(window, message, wParam, lParam);
}

}  // namespace platform
