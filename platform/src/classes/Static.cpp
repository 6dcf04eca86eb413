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
            case WM_GETDLGCODE:
                return DLGC_STATIC;
            case WM_NCHITTEST:
                return Has(SS_NOTIFY) ? HTCLIENT : HTTRANSPARENT;
            case WM_LBUTTONDOWN:
                if (Has(SS_NOTIFY))
                    Notify(STN_CLICKED);
                return 0;
            case WM_ERASEBKGND:
                return 1;
            case WM_SETTEXT: {
                const LRESULT result = inner::DefWindowProc(window_, message, wParam, lParam);
                Repaint();
                return result;
            }
            case WM_THEMECHANGED:
            case WM_SYSCOLORCHANGE:
                Repaint();
                return 0;
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
        UINT format = DT_EXPANDTABS;
        const DWORD kind = Style() & 0x1F;
        if (kind > SS_RIGHT && kind != SS_LEFTNOWORDWRAP)
            SimPc::Current().Unsupported("Static: style " + std::to_string(kind));
        format |= kind == SS_CENTER ? DT_CENTER : kind == SS_RIGHT ? DT_RIGHT : DT_LEFT;
        if (kind != SS_LEFTNOWORDWRAP)
            format |= DT_WORDBREAK;
        if (Has(SS_CENTERIMAGE))
            format = (format & ~static_cast<UINT>(DT_WORDBREAK)) | DT_SINGLELINE | DT_VCENTER;
        if (Has(SS_NOPREFIX))
            format |= DT_NOPREFIX;
        else if (HiddenCues() & UISF_HIDEACCEL)
            format |= DT_HIDEPREFIX;
        return format;
    }
};

}  // namespace

LRESULT CALLBACK StaticProcedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam)
{
    return ControlProcedure<Static>(window, message, wParam, lParam);
}

}  // namespace platform
