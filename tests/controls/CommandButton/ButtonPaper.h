// ButtonPaper: a sheet in memory on which a painter draws a face, with colours that every test knows.
#pragma once

#include "controls/CommandButton/CommandButtonStyles.h"
#include "tests/conformance/Paper.h"

namespace tests {

class ButtonPaper : public Paper {
public:
    ButtonPaper(int width, int height) : Paper(width, height), width_(width), height_(height) {}

    /// Red 0x80, green 0x60, blue 0x40 for the face, a light orange for the highlight, dark red round it, grey when it is disabled.
    static controls::ButtonLook Look(std::int32_t state, bool ownColors)
    {
        controls::ButtonLook look;
        look.state = state;
        look.Resolve({ownColors, 0x406080, 0x808080, 0x20A0E0, 0x0000C0});
        return look;
    }
    void Draw(std::int32_t style, const controls::ButtonLook& look, COLORREF paper)
    {
        controls::Canvas canvas(Dc(), width_, height_);
        canvas.Fill(canvas.Client(), paper);
        controls::ButtonStyleOf(style).painter(canvas, look);
    }

private:
    int width_, height_;
};

}  // namespace tests
