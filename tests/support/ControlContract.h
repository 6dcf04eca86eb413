// ControlContract: what every user control must stand, whatever it does.
#pragma once

#include "host/Form.h"

#include <gtest/gtest.h>

#include <string>

namespace tests {

/// Made new, stored, read back, stored again, hidden, moved, disabled, repainted, unloaded twice over: the stored text stays the same and
/// no window stays behind. `kind` is known to `factory`; `stored` is what a form file says of a control that differs from a new one.
inline void KeepsControlContract(const host::ControlFactory& factory, const std::string& kind, const std::string& stored)
{
    const std::string head = "Form F {\n    ClientWidth = 6000\n    ClientHeight = 3000\n";
    std::string fresh;
    {
        host::Form form;
        ASSERT_TRUE(form.Load(head + "}\n", factory));
        form.Show();
        host::Control* const control = form.Add(base::String(kind.begin(), kind.end()), TEXT("New"), 150, 150, 1500, 450, factory);
        ASSERT_NE(control, nullptr);
        fresh = form.Write();
        EXPECT_NE(control->hWnd(), nullptr);
        form.Unload();
        EXPECT_EQ(control->OwnHandle(), nullptr);
        EXPECT_EQ(control->hWnd(), nullptr);
    }
    for (const std::string& text :
         {fresh, head + "    " + kind + " Stored { Left = 150 Top = 150 Width = 1500 Height = 450 " + stored + " }\n}\n"}) {
        std::string first;
        {
            host::Form form;
            ASSERT_TRUE(form.Load(text, factory)) << form.LoadError();
            form.Show();
            first = form.Write();
            EXPECT_FALSE(form.Controls().empty());
            host::Control& control = *form.Controls().front();
            const HWND own = control.OwnHandle(), shown = control.hWnd();
            UpdateWindow(form.hWnd());
            control.GetExtender().Move(0, 0, 3000, 900);
            control.GetExtender().Visible(false);
            control.GetExtender().Visible(true);
            control.Enabled(!control.Enabled());
            control.Enabled(!control.Enabled());
            control.SetFocus();
            SendMessageW(shown, WM_MOUSEMOVE, 0, 0);
            SendMessageW(shown, WM_SYSCOLORCHANGE, 0, 0);
            SendMessageW(control.hWnd(), WM_THEMECHANGED, 0, 0);
            form.Unload();
            form.Unload();
            EXPECT_FALSE(IsWindow(own));
            EXPECT_FALSE(IsWindow(shown));
        }
        host::Form again;
        ASSERT_TRUE(again.Load(first, factory)) << again.LoadError();
        EXPECT_EQ(again.Write(), first);
    }
}

}  // namespace tests
