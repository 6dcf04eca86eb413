// The window as another program reads it out: what every control is, what happens to it, and pressing it from there.
#include "tests/e2e/EndToEnd.h"
#include "tests/support/Reader.h"

#include <objbase.h>

#include <vector>

namespace e2e {

namespace {

using tests::itself;
using tests::Reader;

class ScreenReader : public EndToEnd {
protected:
    ScreenReader() { CoInitializeEx(nullptr, COINIT_APARTMENTTHREADED); }
    ~ScreenReader() override { CoUninitialize(); }

    [[nodiscard]] Reader ReaderOf(HWND window) const
    {
        void* object = nullptr;
        objectFromWindow_(window, static_cast<DWORD>(OBJID_CLIENT), IID_IAccessible, &object);
        return Reader(static_cast<IAccessible*>(object));
    }

    const base::SystemExport<HRESULT WINAPI(HWND, DWORD, REFIID, void**)> objectFromWindow_{TEXT("oleacc.dll"),
                                                                                            "AccessibleObjectFromWindow"};
    const base::SystemExport<HRESULT WINAPI(IAccessible*, LONG, LONG, VARIANT*, LONG*)> childrenOf_{TEXT("oleacc.dll"),
                                                                                                    "AccessibleChildren"};
};

/// The events that a program's windows raise for their client areas.
class Events {
public:
    explicit Events(HWND window)
    {
        DWORD process = 0;
        GetWindowThreadProcessId(window, &process);
        heard.clear();
        hook_ = SetWinEventHook(EVENT_OBJECT_FOCUS, EVENT_OBJECT_VALUECHANGE, nullptr, &Hear, process, 0, WINEVENT_OUTOFCONTEXT);
    }
    ~Events() { UnhookWinEvent(hook_); }
    Events(const Events&) = delete;
    Events& operator=(const Events&) = delete;

    /// Waits for an event and forgets all that came before it.
    [[nodiscard]] static bool Told(DWORD event, HWND window)
    {
        return Eventually([=] {
            for (MSG message; PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE);)
                DispatchMessageW(&message);
            for (std::size_t at = 0; at < heard.size(); ++at)
                if (heard[at] == std::pair(event, window)) {
                    heard.erase(heard.begin(), heard.begin() + static_cast<std::ptrdiff_t>(at) + 1);
                    return true;
                }
            return false;
        });
    }

private:
    static void CALLBACK Hear(HWINEVENTHOOK, DWORD event, HWND window, LONG object, LONG, DWORD, DWORD)
    {
        if (object == OBJID_CLIENT)
            heard.emplace_back(event, window);
    }
    static inline std::vector<std::pair<DWORD, HWND>> heard;
    HWINEVENTHOOK hook_;
};

}  // namespace

TEST_F(ScreenReader, EveryControl_IsReadOut)
{
    constexpr LONG grouping = 0x14, label = 0x29, text = 0x2A, button = 0x2B, check = 0x2C, combo = 0x2E;
    constexpr LONG disabled = 0x1, checked = 0x10, readOnly = 0x40, focusable = 0x100000, secret = 0x20000000, closedList = 0x40000400;
    // As the window opens where no service is installed and no agent runs.
    const struct {
        const char* control;
        LONG role, state;
        const char *name, *action, *value, *description;
    } expected[] = {
        {"DFrame1", grouping, 0, "Set Password (need restart Velmora)", "", "", ""},
        {"Label1", label, readOnly, "Password:", "", "", ""},
        {"TextPassword", text, secret | focusable, "Password:", "", "", "Password to send for shutdown this PC"},
        {"FrameAutoStart", grouping, 0, "Auto Start (optional)", "", "", ""},
        {"CheckAutoStart", check, focusable, "Auto start when Windows starts", "Check", "",
         "Auto start ''Velmora.exe'' when Windows starts"},
        {"CheckHideTrayIcon", check, disabled, "Hide Tray Icon", "Check", "", "Not show Velmora tray icon"},
        {"CheckSoundStart", check, disabled, "Starting Sound", "Check", "", "Play a sound advise at startup"},
        {"FrameService", grouping, 0, "Install as Service (optional)", "", "", ""},
        {"cmdInstall", button, focusable, "Install Service", "Press", "", "Install Velmora Service"},
        {"cmdStart", button, disabled, "Start Service", "Press", "", ""},
        {"lblAccount", label, readOnly | disabled, "Account:", "", "", ""},
        {"txtAccount", text, disabled, "Account:", "", "LocalSystem", ""},
        {"lblPassword", label, readOnly | disabled, "Password:", "", "", ""},
        {"txtPassword", text, secret | disabled, "Password:", "", "", ""},
        {"chkSystem", check, checked | focusable, "System Account", "Uncheck", "", ""},
        {"lblStartup", label, readOnly, "Startup Type:", "", "", ""},
        {"ComboStartup", combo, closedList | focusable, "Startup Type:", nullptr, "Automatic", ""},
        {"FrameStartVelmora", grouping, 0, "Start Velmora Now", "", "", ""},
        {"CommandStartVelmora", button, focusable, "Start Velmora", "Press", "", ""},
        {"CommandCloseVelmora", button, disabled, "Close Velmora", "Press", "", ""},
        {"CommandOk", button, focusable, "OK", "Press", "", ""},
    };
    Utility utility(exe_);
    ASSERT_TRUE(utility.Opened());
    for (const auto& [control, role, state, name, action, value, description] : expected) {
        SCOPED_TRACE(control);
        const Reader reader = ReaderOf(utility.Shown(control));
        ASSERT_TRUE(reader);
        EXPECT_EQ(reader.Role(), role);
        EXPECT_EQ(reader.State() & ~STATE_SYSTEM_FOCUSED, state);
        EXPECT_EQ((reader.State() & STATE_SYSTEM_FOCUSED) != 0, utility.HasFocus(control));
        EXPECT_EQ(reader.Name(), name);
        // What a list does, Windows says in its own words.
        if (action) {
            EXPECT_EQ(reader.Action(), action);
        }
        EXPECT_EQ(reader.Value(), value);
        EXPECT_EQ(reader.Description(), description);
    }
    std::size_t visible = 0;
    for (const Designed& control : Design())
        visible += control.kind != "Timer";
    EXPECT_EQ(visible, std::size(expected)) << "a control is missing in the table";

    // A reader gets from the frame to what is in it: the label, the box and the control's own window below the box.
    const Reader frame = ReaderOf(utility.Own("DFrame1"));
    LONG count = 0, fetched = 0;
    EXPECT_EQ(frame->get_accChildCount(&count), S_OK);
    EXPECT_EQ(count, 3);
    VARIANT inside[4]{};
    EXPECT_TRUE(SUCCEEDED(childrenOf_(frame.operator->(), 0L, 4L, &inside[0], &fetched)));
    EXPECT_EQ(fetched, 3);
    for (VARIANT& child : inside)
        VariantClear(&child);
}

TEST_F(ScreenReader, WhatHappens_IsToldAndCanBeDoneFromThere)
{
    Utility utility(exe_);
    ASSERT_TRUE(utility.Opened());
    const Events events(utility.Window());
    utility.Press({VK_TAB});
    EXPECT_TRUE(Events::Told(EVENT_OBJECT_FOCUS, utility.Shown("CheckAutoStart")));
    utility.Press({VK_F6});
    EXPECT_TRUE(Events::Told(EVENT_OBJECT_FOCUS, utility.Own("cmdInstall")));

    const Reader install = ReaderOf(utility.Own("cmdInstall")), start = ReaderOf(utility.Own("cmdStart"));
    EXPECT_EQ(start->accDoDefaultAction(itself), E_FAIL) << "there is no service yet";
    EXPECT_EQ(install->accDoDefaultAction(itself), S_OK);
    EXPECT_TRUE(Events::Told(EVENT_OBJECT_STATECHANGE, utility.Own("cmdInstall"))) << "pressed";
    EXPECT_TRUE(Events::Told(EVENT_OBJECT_NAMECHANGE, utility.Own("cmdInstall")));
    EXPECT_TRUE(Eventually([&] { return utility.Enabled("cmdStart"); }));
    EXPECT_TRUE(InstalledService().has_value());
    EXPECT_EQ(install.Name(), "Uninstall Service");
    EXPECT_EQ(install.Description(), "Uninstall Velmora Service");
    EXPECT_EQ(start.State(), STATE_SYSTEM_FOCUSABLE);
    EXPECT_EQ(install->accDoDefaultAction(itself), S_OK);
    EXPECT_TRUE(Eventually([] { return !InstalledService().has_value(); }));

    const Reader system = ReaderOf(utility.Shown("chkSystem"));
    ASSERT_TRUE(Eventually([&] { return utility.Enabled("chkSystem"); }));
    EXPECT_EQ(system->accDoDefaultAction(itself), S_OK);
    EXPECT_TRUE(Eventually([&] { return !utility.Checked("chkSystem"); }));
    EXPECT_EQ(system.State(), STATE_SYSTEM_FOCUSABLE);
    EXPECT_TRUE(utility.Enabled("txtAccount"));

    EXPECT_EQ(ReaderOf(utility.Own("CommandOk"))->accDoDefaultAction(itself), S_OK);
    EXPECT_TRUE(utility.Ended());
    EXPECT_EQ(utility.ExitCode(), 0u) << "readers that still hold its objects do no harm";
    BSTR name = nullptr;
    EXPECT_TRUE(FAILED(system->get_accName(itself, &name)));
}

}  // namespace e2e
