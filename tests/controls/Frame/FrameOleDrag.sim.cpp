// Drags over a frame and from it, with the user's hand on the mouse.
#include "controls/Frame/Frame.h"
#include "platform/sim/Dragging.h"
#include "tests/controls/FormFixture.h"

#include <algorithm>
#include <stdexcept>

namespace tests {

using base::String;
using host::DataObject;
using platform::Dragging;

class FrameOleDragging : public FormFixture {
protected:
    void SetUp() override
    {
        Open(R"(Frame From { Width = 1500 Height = 1500 }
            Frame To { Left = 1500 Width = 1500 Height = 1500 OLEDropMode = 1
                CommandButton Child { Left = 150 Top = 150 Width = 300 Height = 300 TabIndex = 1 }
            })");
        POINT corner{};
        MapWindowPoints(form->hWnd(), nullptr, &corner, 1);
        inFrom = {corner.x + 50, corner.y + 50};
        inTo = {corner.x + 150, corner.y + 60};
        onChild = {corner.x + 115, corner.y + 15};
        outside = {corner.x + 500, corner.y + 300};

        From().OLEStartDrag.Connect([this](DataObject& data, std::int32_t& allowed) {
            Note("OLEStartDrag " + std::to_string(allowed));
            data.SetData(String(TEXT("text")));
            allowed = DROPEFFECT_COPY | DROPEFFECT_MOVE;
        });
        From().OLEGiveFeedback.Connect([this](std::int32_t& effect, bool& defaultCursors) {
            Note("OLEGiveFeedback " + std::to_string(effect));
            defaultCursors = effect != 0;
        });
        From().OLESetData.Connect([this](DataObject& data, std::int16_t& format) {
            Note("OLESetData " + std::to_string(format));
            data.SetData(String(TEXT("late")), format);
        });
        From().OLECompleteDrag.Connect([this](std::int32_t& effect) { Note("OLECompleteDrag " + std::to_string(effect)); });
        To().OLEDragOver.Connect(
            [this](DataObject&, std::int32_t& effect, std::int16_t& button, std::int16_t&, float& x, float& y, std::int16_t& state) {
                Note("OLEDragOver " + std::to_string(state) + " " + std::to_string(button) + " " + std::to_string(static_cast<int>(x)) +
                     "," + std::to_string(static_cast<int>(y)));
                effect = DROPEFFECT_MOVE;
            });
        To().OLEDragDrop.Connect([this](DataObject& data, std::int32_t& effect, std::int16_t&, std::int16_t&, float&, float&) {
            std::string line = "OLEDragDrop " + std::to_string(effect);
            const DataObject::Value value = data.GetData(CF_TEXT);
            if (const String* const text = std::get_if<String>(&value))
                line += " " + Narrow(*text);
            for (const String& file : data.Files())
                line += " " + Narrow(file);
            Note(line);
            effect = DROPEFFECT_MOVE;
        });
    }
    controls::Frame& From() { return Get<controls::Frame>("From"); }
    controls::Frame& To() { return Get<controls::Frame>("To"); }
    static Dragging& User() { return platform::SimPc::Current().Get<Dragging>(); }

    POINT inFrom{}, inTo{}, onChild{}, outside{};
};

TEST_F(FrameOleDragging, OwnDrag_RunsFromStartToComplete)
{
    // It begins as it does for a user: in the handler of the mouse button.
    From().MouseDown.Connect([this](std::int16_t&, std::int16_t&, float&, float&) { From().OLEDrag(); });
    From().MouseUp.Connect([this](std::int16_t&, std::int16_t&, float&, float&) { Note("MouseUp"); });
    User().Plan({{inFrom}, {onChild}, {inTo}, {inTo, 0}});
    SendMessageW(From().hWnd(), WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(50, 50));
    EXPECT_EQ(Take(), (Lines{"OLEStartDrag 0", "OLEGiveFeedback 0", "OLEDragOver 0 1 15,15", "OLEGiveFeedback 2", "OLEDragOver 2 1 50,60",
                             "OLEGiveFeedback 2", "OLEDragDrop 3 text", "OLECompleteDrag 2"}));
    EXPECT_EQ(GetCapture(), nullptr);
    EXPECT_LE(GetKeyState(VK_LBUTTON) & 0x80, 0) << "the drag has taken the release for itself";
    const std::vector<std::pair<DWORD, HRESULT>> feedback = {
        {0, S_OK}, {2, DRAGDROP_S_USEDEFAULTCURSORS}, {2, DRAGDROP_S_USEDEFAULTCURSORS}};
    EXPECT_EQ(User().Feedback(), feedback);
    // A text that is only promised is asked for at the drop.
    From().OLEGiveFeedback.Connect(nullptr);
    From().OLEStartDrag.Connect([](DataObject& data, std::int32_t& allowed) {
        data.SetData({}, CF_TEXT);
        allowed = DROPEFFECT_COPY | DROPEFFECT_MOVE;
    });
    User().Plan({{inTo}, {inTo, 0}});
    From().OLEDrag();
    EXPECT_EQ(Take(), (Lines{"OLEDragOver 0 1 50,60", "OLESetData 1", "OLEDragDrop 3 late", "OLECompleteDrag 2"}));
}

TEST_F(FrameOleDragging, Drag_EndsWithoutADrop)
{
    Dragging::Step escape{inTo};
    escape.escape = true;
    const std::tuple<const char*, Dragging::Steps, Lines> cases[] = {
        {"Esc", {{inTo}, escape}, {"OLEDragOver 0 1 50,60", "OLEDragOver 1 1 50,60"}},
        {"let go outside", {{inTo}, {outside}, {outside, 0}}, {"OLEDragOver 0 1 50,60", "OLEDragOver 1 1 50,60"}},
        {"a click", {{inFrom, 0}}, {}}};
    From().OLEGiveFeedback.Connect(nullptr);
    for (const auto& [how, steps, target] : cases) {
        User().Plan(steps);
        From().OLEDrag();
        Lines expected = target;
        expected.insert(expected.begin(), "OLEStartDrag 0");
        expected.push_back("OLECompleteDrag 0");
        EXPECT_EQ(Take(), expected) << how;
    }
    From().OLEStartDrag.Connect([this](DataObject&, std::int32_t&) { From().OLEDrag(); });
    From().OLEDrag();
    EXPECT_EQ(Take(), Lines{"OLECompleteDrag 0"}) << "no effect is allowed, and a drag does not begin in another";
    From().OLEStartDrag.Connect([](DataObject&, std::int32_t&) { throw std::runtime_error("handler"); });
    EXPECT_THROW(From().OLEDrag(), std::runtime_error);
    EXPECT_THROW(From().OLEDrag(), std::runtime_error) << "one that failed does not block the next";
}

TEST_F(FrameOleDragging, AnotherProgramsDrag_IsReadAndAnswered)
{
    const Dragging::Steps drop = {{inTo}, {inTo, 0}};
    const std::pair<Dragging::Foreign, const char*> cases[] = {
        {{u"wide", "narrow", {}}, "wide"}, {{u"", "narrow", {}}, "narrow"}, {{u"", "", {u"C:\\a", u"C:\\b c"}}, "C:\\a C:\\b c"}};
    for (const auto& [data, read] : cases) {
        EXPECT_EQ(User().DragIn(data, DROPEFFECT_COPY | DROPEFFECT_MOVE, drop), DROPEFFECT_MOVE);
        EXPECT_EQ(Take().back(), std::string("OLEDragDrop 3 ") + read);
    }
    EXPECT_EQ(User().DragIn({u"wide", "", {}}, DROPEFFECT_COPY, drop), DROPEFFECT_NONE) << "it may not be moved";
    EXPECT_EQ(User().DragIn({u"wide", "", {}}, DROPEFFECT_COPY, {{inFrom}, {inFrom, 0}}), DROPEFFECT_NONE);
    To().OLEDragOver.Connect(nullptr);
    To().OLEDragDrop.Connect(nullptr);
    EXPECT_EQ(User().DragIn({u"wide", "", {}}, DROPEFFECT_COPY | DROPEFFECT_MOVE, drop), DROPEFFECT_COPY) << "nobody chose";
}

TEST_F(FrameOleDragging, ControlsMayGoInTheMidstOfIt)
{
    From().OLEGiveFeedback.Connect(nullptr);
    const std::function<void()> ends[] = {[this] { form->Unload(); }, [this] { DestroyWindow(form->hWnd()); }, [this] { form.reset(); },
                                          [this] { To().OLEDropMode(0); }};
    for (const auto& end : ends) {
        for (const char* const moment : {"start", "between", "over", "drop"}) {
            int times = 0;
            const auto at = [&](const char* which) {
                if (std::string(moment) == which && ++times == 1)
                    end();
            };
            From().OLEStartDrag.Connect([&](DataObject& data, std::int32_t& allowed) {
                data.SetData({});
                allowed = DROPEFFECT_COPY;
                at("start");
            });
            To().OLEDragOver.Connect(
                [&](DataObject&, std::int32_t&, std::int16_t&, std::int16_t&, float&, float&, std::int16_t&) { at("over"); });
            To().OLEDragDrop.Connect([&](DataObject& data, std::int32_t&, std::int16_t&, std::int16_t&, float&, float&) {
                at("drop");
                (void)data.GetData(CF_TEXT);
            });
            Dragging::Step between{inTo};
            between.meanwhile = [&] { at("between"); };
            User().Plan({{inTo}, between, {inTo}, {inTo, 0}});
            From().OLEDrag();
            EXPECT_EQ(times, 1) << moment;
            EXPECT_EQ(GetCapture(), nullptr) << moment;
            User().Plan({});
            SetUp();
        }
    }
}

TEST_F(FrameOleDragging, AnySingleFailingCall_LeavesNothingBehind)
{
    platform::Faults& faults = platform::SimPc::Current().GetFaults();
    std::uint64_t call = 1;
    for (bool struck = true; struck; ++call) {
        To().OLEDropMode(0);
        faults.FailNth(call);
        To().OLEDropMode(1);
        User().Plan({{inTo}, {inTo, 0}});
        From().OLEDrag();
        User().DragIn({u"", "", {u"C:\\a"}}, DROPEFFECT_MOVE, {{inTo}, {inTo, 0}});
        struck = !faults.Struck().empty();
        faults.FailNth(0);
        const Lines lines = Take();
        if (!struck) {
            EXPECT_EQ(std::ranges::count(lines, "OLEDragDrop 3 text"), 1);
            EXPECT_EQ(lines.back(), "OLEDragDrop 2 C:\\a") << "the next drag is whole again";
        }
    }
    EXPECT_GT(call, 7U);
}

}  // namespace tests
