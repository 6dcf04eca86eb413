#include "controls/DSubclass.h"

#include "tests/controls/PlainWindow.h"

#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <vector>

namespace tests {

using controls::DSubclass;

namespace {

/// Notes `name` for each probe message.
std::unique_ptr<DSubclass> Listener(HWND window, std::string& order, char name, bool handles = false)
{
    auto subclass = std::make_unique<DSubclass>();
    subclass->WndProc.Connect([&order, name, handles](HWND, UINT message, WPARAM, LPARAM, LRESULT& result, bool& handled) {
        if (message != probe)
            return;
        order += name;
        if (handles) {
            handled = true;
            result = 99;
        }
    });
    EXPECT_TRUE(subclass->Enable(window));
    return subclass;
}

}  // namespace

TEST(SubclassHeap, Name_IsTheHandleInBase36)
{
    const std::pair<LONG_PTR, const WCHAR*> cases[] = {
        {0, TEXT("DSC0")}, {35, TEXT("DSCZ")}, {36, TEXT("DSC10")}, {0x7FFFFFFF, TEXT("DSCZIK0ZJ")}, {-1, TEXT("DSC")}};
    for (const auto& [handle, name] : cases)
        EXPECT_EQ(controls::HeapName(reinterpret_cast<HWND>(handle)), name) << handle;
}

TEST(DSubclass, DeadOrNoWindow_IsRefusedWithoutAHeap)
{
    PlainWindow window;
    const HWND dead = window.Get();
    window.Destroy();
    DSubclass subclass;
    EXPECT_FALSE(subclass.Enable(nullptr));
    EXPECT_FALSE(subclass.Enable(dead));
    EXPECT_FALSE(subclass.IsSubclassed());
    EXPECT_EQ(Published(dead), TEXT(""));
    EXPECT_FALSE(subclass.Disable());
}

TEST(DSubclass, Message_GoesThroughNewestFirstUntilHandled)
{
    const std::tuple<char, const char*, LRESULT> cases[] = {{'-', "cba", 11}, {'a', "cba", 99}, {'b', "cb", 99}, {'c', "c", 99}};
    for (const auto& [handler, heardBy, answer] : cases) {
        const PlainWindow window;
        std::string order;
        std::vector<std::unique_ptr<DSubclass>> objects;
        for (const char name : {'a', 'b', 'c'})
            objects.push_back(Listener(window.Get(), order, name, name == handler));
        EXPECT_EQ(window.Ask(), answer);
        EXPECT_EQ(order, heardBy);
    }
}

TEST(DSubclass, Pausing_LetsMessagesPassUnseen)
{
    const PlainWindow window;
    std::string order;
    const auto subclass = Listener(window.Get(), order, 'a', true);
    EXPECT_FALSE(subclass->ResumeSubclass());
    EXPECT_TRUE(subclass->PauseSubclass());
    EXPECT_FALSE(subclass->PauseSubclass());
    EXPECT_EQ(window.Ask(), 11);
    EXPECT_EQ(order, "");
    EXPECT_TRUE(subclass->ResumeSubclass());
    EXPECT_EQ(window.Ask(), 99);
    {
        const controls::SubclassPause outer(*subclass);
        EXPECT_EQ(controls::SendMessageUnsubclassed(*subclass, window.Get(), probe, 1, 0), 2);
        EXPECT_TRUE(subclass->IsPaused()) << "the inner pause ended the outer one";
    }
    EXPECT_FALSE(subclass->IsPaused());
    EXPECT_TRUE(subclass->PauseSubclass());
    EXPECT_TRUE(subclass->Disable());
    EXPECT_TRUE(subclass->Enable(window.Get()));
    EXPECT_FALSE(subclass->IsPaused()) << "a pause ends with the subclass";
}

TEST(DSubclass, WhatItsHandlerDoes_DecidesOnTheMessage)
{
    using Act = void (*)(DSubclass&, HWND target, HWND other, LRESULT & result, bool& handled);
    const struct {
        const char* name;
        Act act;
        bool heardBehind;
        LRESULT answer;
    } cases[] = {{"nothing", [](DSubclass&, HWND, HWND, LRESULT&, bool&) {}, true, 11},
                 {"a result that it does not stand by", [](DSubclass&, HWND, HWND, LRESULT& result, bool&) { result = 5; }, true, 11},
                 {"handled", [](DSubclass&, HWND, HWND, LRESULT&, bool& handled) { handled = true; }, false, 0},
                 {"pause", [](DSubclass& self, HWND, HWND, LRESULT&, bool&) { self.PauseSubclass(); }, true, 11},
                 {"off", [](DSubclass& self, HWND, HWND, LRESULT& result, bool&) { result = self.Disable() ? 5 : 6; }, false, 5},
                 {"elsewhere", [](DSubclass& self, HWND, HWND other, LRESULT&, bool&) { self.Enable(other); }, true, 11},
                 {"the default first",
                  [](DSubclass& self, HWND target, HWND, LRESULT& result, bool& handled) {
                      result = 100 + self.CallOriginalProc(target, probe, 10, 0, handled);
                  },
                  true, 111},
                 {"the default of an object that is off",
                  [](DSubclass& self, HWND target, HWND, LRESULT& result, bool& handled) {
                      self.Disable();
                      result = handled ? 6 : 5 + self.CallOriginalProc(target, probe, 10, 0, handled);
                  },
                  false, 5}};
    for (const auto& row : cases) {
        SCOPED_TRACE(row.name);
        const PlainWindow window, other;
        std::string order;
        const auto behind = Listener(window.Get(), order, 'a');
        DSubclass subclass;
        subclass.WndProc.Connect([&](HWND target, UINT message, WPARAM, LPARAM, LRESULT& result, bool& handled) {
            if (message == probe)
                row.act(subclass, target, other.Get(), result, handled);
        });
        subclass.Enable(window.Get());
        EXPECT_EQ(window.Ask(), row.answer);
        EXPECT_EQ(order, row.heardBehind ? "a" : "");
    }
}

TEST(DSubclass, EnableElsewhere_LeavesTheWindowBefore)
{
    const PlainWindow one, other;
    std::string order;
    const auto subclass = Listener(one.Get(), order, 'a');
    EXPECT_TRUE(subclass->Enable(other.Get()));
    EXPECT_EQ(subclass->hWnd(), other.Get());
    one.Ask();
    EXPECT_EQ(order, "");
    other.Ask();
    EXPECT_EQ(order, "a");
    EXPECT_EQ(Published(other.Get()), TEXT("")) << "the block stays in the first window's heap";
}

TEST(DSubclass, Destroy_TakesTheObjectOff_UnlessHandled)
{
    for (const bool handles : {false, true}) {
        PlainWindow window;
        DSubclass subclass;
        int destroys = 0;
        subclass.WndProc.Connect([&](HWND, UINT message, WPARAM, LPARAM, LRESULT&, bool& handled) {
            if (message == WM_DESTROY) {
                ++destroys;
                handled = handles;
            }
        });
        subclass.Enable(window.Get());
        window.Destroy();
        EXPECT_EQ(destroys, 1);
        EXPECT_EQ(subclass.IsSubclassed(), handles);
        EXPECT_FALSE(subclass.Disable());
        EXPECT_FALSE(subclass.IsSubclassed()) << "a window that is gone holds nobody";
    }
}

TEST(DSubclass, EndingAnythingAnywhere_LeavesNothing)
{
    struct Scene {
        PlainWindow window;
        std::unique_ptr<DSubclass> older = std::make_unique<DSubclass>(), newer = std::make_unique<DSubclass>();
        void Objects() { newer.reset(), older.reset(); }
    };
    const std::tuple<const char*, void (*)(Scene&), bool> endings[] = {
        {"newer", [](Scene& scene) { scene.newer.reset(); }, false},
        {"older", [](Scene& scene) { scene.older.reset(); }, false},
        {"older, newer", [](Scene& scene) { scene.older.reset(), scene.newer.reset(); }, false},
        {"newer, older", [](Scene& scene) { scene.Objects(); }, false},
        {"window", [](Scene& scene) { scene.window.Destroy(); }, true},
        {"window, objects", [](Scene& scene) { scene.window.Destroy(), scene.Objects(); }, true},
        {"objects, window", [](Scene& scene) { scene.Objects(), scene.window.Destroy(); }, true}};
    enum Place { Outside, InHandler, InNestedHandler, AtDestroy };
    for (const auto& [what, end, endsWindow] : endings)
        for (const Place place : {Outside, InHandler, InNestedHandler, AtDestroy}) {
            if (place == AtDestroy && endsWindow)
                continue;
            SCOPED_TRACE(std::string(what) + " at place " + std::to_string(place));
            Scene scene;
            int depth = 0;
            scene.newer->WndProc.Connect([&](HWND target, UINT message, WPARAM, LPARAM, LRESULT& result, bool& handled) {
                if (message == WM_DESTROY && place == AtDestroy)
                    end(scene);
                if (message != probe || place == Outside)
                    return;
                handled = true;
                if (++depth == 1 && place == InNestedHandler) {
                    EXPECT_EQ(SendMessageW(target, probe, 0, 0), 42);
                } else {
                    end(scene);
                }
                result = 40 + depth--;
            });
            scene.older->Enable(scene.window.Get());
            scene.newer->Enable(scene.window.Get());
            EXPECT_EQ(Published(scene.window.Get()).find_first_not_of(TEXT("0123456789ABCDEF")), base::String::npos);
            EXPECT_NE(Published(scene.window.Get()), TEXT("00000000"));
            if (place == Outside)
                end(scene);
            else if (place == AtDestroy)
                scene.window.Destroy();
            else
                EXPECT_EQ(scene.window.Ask(), 41) << "the answer comes out all the same";
            scene.Objects();
            EXPECT_EQ(Published(scene.window.Get()), TEXT("00000000"));
            EXPECT_EQ(scene.window.Ask(), IsWindow(scene.window.Get()) ? 11 : 0);
        }
}

TEST(DSubclass, ExceptionOfAHandler_NeverGetsIntoWindows)
{
    const PlainWindow window;
    DSubclass subclass;
    subclass.WndProc.Connect([](HWND, UINT message, WPARAM, LPARAM, LRESULT&, bool& handled) {
        handled = true;
        if (message == probe)
            throw 1;
    });
    subclass.Enable(window.Get());
    EXPECT_EQ(window.Ask(), 11);
    subclass.WndProc.Connect({});
}

}  // namespace tests
