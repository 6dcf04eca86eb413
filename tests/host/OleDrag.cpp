// OLE drag and drop below the controls: the data that is handed over, and what a drop target tells its control.
#include "host/OleDrag.h"

#include "host/OleDragSource.h"
#include "host/OleDragTarget.h"
#include "tests/host/Probe.h"

#include <shlobj.h>

#include <cstring>
#include <stdexcept>

namespace tests {

using base::String;
using host::Bytes;
using host::DataObject;

namespace {

/// Hears what a control would hear.
struct Listener final : host::OleDragEvents {
    std::vector<std::string> lines;
    std::optional<std::int32_t> choice;  // without one the effect stays as it came
    std::function<void()> then;
    std::function<void(DataObject&, std::int16_t)> whenDataIsWanted;

    void Note(const char* what, DataObject& data, std::int32_t& effect, std::int16_t button, std::int16_t shift, float x, float y)
    {
        const DataObject::Value value = data.GetData(CF_TEXT);
        const String* const text = std::get_if<String>(&value);
        lines.push_back(std::string(what) + " " + (text != nullptr ? Narrow(*text) : "-") + " " + std::to_string(effect) + " " +
                        std::to_string(button) + std::to_string(shift) + " " + std::to_string(static_cast<int>(x)) + "," +
                        std::to_string(static_cast<int>(y)));
        effect = choice.value_or(effect);
        if (then)
            then();
    }
    void UserControl_OLEDragOver(DataObject& data, std::int32_t& effect, std::int16_t& button, std::int16_t& shift, float& x, float& y,
                                 std::int16_t& state) override
    {
        Note(state == 0 ? "enter" : state == 1 ? "leave" : "over", data, effect, button, shift, x, y);
    }
    void UserControl_OLEDragDrop(DataObject& data, std::int32_t& effect, std::int16_t& button, std::int16_t& shift, float& x,
                                 float& y) override
    {
        Note("drop", data, effect, button, shift, x, y);
    }
    void UserControl_OLESetData(DataObject& data, std::int16_t& dataFormat) override { whenDataIsWanted(data, dataFormat); }
};

}  // namespace

class OleDrag : public HostTest {
protected:
    using Paths = std::vector<String>;

    host::ComPointer<host::OleDragData> Dragged(const WCHAR* text = TEXT("text"))
    {
        auto data = host::MakeCom<host::OleDragData>(link);
        data->Data().SetData(String(text));
        return data;
    }

    Listener listener;
    std::shared_ptr<host::OleDragLink> link = std::make_shared<host::OleDragLink>(host::OleDragLink{&listener, false});
};

TEST_F(OleDrag, Source_GoesOnWhileAnyButtonIsHeld)
{
    const auto source = host::MakeCom<host::OleDragSource>(link);
    for (const DWORD button : {MK_LBUTTON, MK_RBUTTON, MK_MBUTTON}) {
        EXPECT_EQ(source->QueryContinueDrag(FALSE, button), S_OK) << button;
        EXPECT_EQ(source->QueryContinueDrag(TRUE, button), DRAGDROP_S_CANCEL) << button;
    }
    EXPECT_EQ(source->QueryContinueDrag(FALSE, MK_SHIFT), DRAGDROP_S_DROP);
    link->control = nullptr;
    EXPECT_EQ(source->QueryContinueDrag(FALSE, MK_LBUTTON), DRAGDROP_S_CANCEL);
}

TEST_F(OleDrag, Files_ComeOutOfADropRecordOfEitherWidth)
{
    const Paths paths = {TEXT("C:\\b"), TEXT("\u00E9")};
    // The head: where the list begins, no point, a wide list.
    const Bytes wide = {20, 0, 0,   0, 0,   0, 0,    0, 0,   0, 0, 0, 0,    0, 0, 0, 1, 0,
                        0,  0, 'C', 0, ':', 0, '\\', 0, 'b', 0, 0, 0, 0xE9, 0, 0, 0, 0, 0};
    EXPECT_EQ(host::EncodeFiles(paths), wide);
    EXPECT_EQ(host::DecodeFiles(wide), paths);
    EXPECT_EQ(host::DecodeFiles({wide.begin(), wide.end() - 4}), paths) << "a list without its end ends with the block";

    DROPFILES head{};
    head.pFiles = sizeof head + 3;
    Bytes narrow(sizeof head + 3);
    std::memcpy(narrow.data(), &head, sizeof head);
    for (const char c : std::string("C:\\x\0C:\\y\0\0rest", 15))
        narrow.push_back(static_cast<std::uint8_t>(c));
    EXPECT_EQ(host::DecodeFiles(narrow), (Paths{TEXT("C:\\x"), TEXT("C:\\y")}));

    for (const DWORD place : {0U, 5U, 10000U}) {
        std::memcpy(narrow.data(), &place, sizeof place);
        EXPECT_EQ(host::DecodeFiles(narrow), Paths{}) << place;
    }
    EXPECT_EQ(host::DecodeFiles(Bytes(7)), Paths{});
}

TEST_F(OleDrag, Data_PassesThroughCom)
{
    const auto dragged = Dragged(TEXT("caf\u00E9"));
    const Paths paths = {TEXT("C:\\one.txt")};
    const std::int16_t own = static_cast<std::int16_t>(0xC123);
    EXPECT_TRUE(dragged->Data().Files(paths));
    EXPECT_TRUE(dragged->Data().SetData(Bytes{1, 2, 0, 3}, own));
    EXPECT_FALSE(dragged->Data().SetData(Bytes{1}, CF_TEXT)) << "bytes are no text";
    EXPECT_FALSE(dragged->Data().SetData(Bytes{1}, CF_HDROP)) << "nor a list of files";
    EXPECT_FALSE(dragged->Data().SetData(String(TEXT("C:\\x")), CF_HDROP)) << "text is no list of files";

    DataObject received(*dragged.Get());
    for (const std::int16_t format : {CF_TEXT, CF_UNICODETEXT}) {
        EXPECT_TRUE(received.GetFormat(format));
        EXPECT_EQ(received.GetData(format), DataObject::Value(String(TEXT("caf\u00E9"))));
    }
    EXPECT_EQ(received.Files(), paths);
    Bytes bytes = std::get<Bytes>(received.GetData(own));
    bytes.resize(4);
    EXPECT_EQ(bytes, (Bytes{1, 2, 0, 3}));
    EXPECT_FALSE(received.GetFormat(CF_BITMAP));
    EXPECT_EQ(received.GetData(CF_BITMAP), DataObject::Value());
    EXPECT_FALSE(received.SetData(String(TEXT("other")))) << "received data can only be read";

    // An old program asks for the text in the system's code page, and for what there is.
    FORMATETC narrow = host::InMemory(CF_TEXT);
    STGMEDIUM medium{};
    ASSERT_EQ(dragged->GetData(&narrow, &medium), S_OK);
    EXPECT_STREQ(static_cast<const char*>(GlobalLock(medium.hGlobal)), "caf\xE9");
    GlobalUnlock(medium.hGlobal);
    ReleaseStgMedium(&medium);
    narrow.tymed = TYMED_GDI;
    EXPECT_EQ(dragged->QueryGetData(&narrow), DV_E_TYMED);
    IEnumFORMATETC* list = nullptr;
    ASSERT_EQ(dragged->EnumFormatEtc(DATADIR_GET, &list), S_OK);
    std::vector<int> formats;
    for (FORMATETC format{}; list->Next(1, &format, nullptr) == S_OK;)
        formats.push_back(format.cfFormat);
    list->Release();
    EXPECT_EQ(formats, (std::vector<int>{CF_UNICODETEXT, CF_TEXT, CF_HDROP, 0xC123}));

    dragged->Data().Clear();
    EXPECT_FALSE(received.GetFormat(CF_TEXT));
}

TEST_F(OleDrag, PromisedData_IsAskedForWhenATargetWantsIt)
{
    const auto dragged = Dragged();
    DataObject received(*dragged.Get());
    std::vector<int> wanted;
    listener.whenDataIsWanted = [&](DataObject& data, std::int16_t format) {
        wanted.push_back(format);
        if (format == CF_HDROP)
            data.Files({TEXT("C:\\late")});
        else
            data.SetData(String(TEXT("late")), format);
    };
    dragged->Data().SetData({}, CF_TEXT);
    dragged->Data().SetData({}, CF_HDROP);
    EXPECT_TRUE(received.GetFormat(CF_UNICODETEXT));
    EXPECT_EQ(wanted, std::vector<int>{});
    EXPECT_EQ(received.GetData(CF_UNICODETEXT), DataObject::Value(String(TEXT("late"))));
    EXPECT_EQ(received.GetData(CF_TEXT), DataObject::Value(String(TEXT("late"))));
    EXPECT_EQ(received.Files(), Paths{TEXT("C:\\late")});
    EXPECT_EQ(wanted, (std::vector<int>{CF_TEXT, CF_HDROP})) << "once each, and by the name that it was offered under";

    dragged->Data().SetData({}, CF_TEXT);
    listener.whenDataIsWanted = [](DataObject& data, std::int16_t) { data.Clear(), throw std::runtime_error("handler"); };
    EXPECT_EQ(received.GetData(CF_TEXT), DataObject::Value()) << "taken back in the handler";
    link->control = nullptr;
    EXPECT_EQ(received.GetData(CF_TEXT), DataObject::Value()) << "the control is gone";
}

TEST_F(OleDrag, Target_TellsItsControlWhereAndWhat)
{
    form->Load("Form F { ClientWidth = 4500 ClientHeight = 3000 }", factory);
    const auto target = host::MakeCom<host::OleDragTarget>(link, form->hWnd());
    const auto data = Dragged();
    POINT corner{};
    MapWindowPoints(form->hWnd(), nullptr, &corner, 1);
    const POINTL at{corner.x + 5, corner.y - 6};
    DWORD effect = DROPEFFECT_COPY | DROPEFFECT_MOVE;
    EXPECT_EQ(target->DragOver(MK_LBUTTON, at, &effect), S_OK);
    EXPECT_EQ(effect, DROPEFFECT_NONE) << "nothing has entered";
    effect = DROPEFFECT_COPY | DROPEFFECT_MOVE;
    target->DragEnter(data.Get(), MK_LBUTTON | MK_SHIFT, at, &effect);
    effect = DROPEFFECT_COPY | DROPEFFECT_MOVE;
    target->DragOver(MK_RBUTTON | MK_CONTROL | MK_ALT, at, &effect);
    target->DragLeave();
    target->DragLeave();
    target->DragEnter(data.Get(), MK_MBUTTON, at, &effect);
    effect = DROPEFFECT_MOVE;
    target->Drop(data.Get(), 0, at, &effect);
    target->DragLeave();
    EXPECT_EQ(listener.lines, (Lines{"enter text 3 11 5,-6", "over text 3 26 5,-6", "leave text 0 26 5,-6", "enter text 1 40 5,-6",
                                     "drop text 2 40 5,-6"}));
}

TEST_F(OleDrag, TargetsEffect_IsOneOfTheSourcesOrNoneAfterAFailure)
{
    const auto target = host::MakeCom<host::OleDragTarget>(link, nullptr);
    const auto data = Dragged();
    constexpr auto scroll = static_cast<std::int32_t>(DROPEFFECT_SCROLL);
    const std::tuple<DWORD, std::optional<std::int32_t>, DWORD> cases[] = {
        {7, {}, 1}, {6, {}, 4}, {2, {}, 2}, {3, 2, 2}, {1, 2, 0}, {3, 0, 0}, {3, scroll | 2, DROPEFFECT_SCROLL | 2}, {1, scroll, 0}};
    for (const auto& [allowed, chosen, expected] : cases) {
        listener.choice = chosen;
        DWORD over = allowed, dropped = allowed;
        EXPECT_EQ(target->DragEnter(data.Get(), 0, {}, &over), S_OK);
        EXPECT_EQ(target->Drop(data.Get(), 0, {}, &dropped), S_OK);
        EXPECT_EQ(over, expected) << allowed;
        EXPECT_EQ(dropped, expected) << allowed;
    }
    listener.then = [] { throw std::runtime_error("handler"); };
    DWORD effect = DROPEFFECT_COPY;
    EXPECT_EQ(target->DragEnter(data.Get(), 0, {}, &effect), E_UNEXPECTED);
    EXPECT_EQ(effect, DROPEFFECT_NONE);
    EXPECT_EQ(target->DragLeave(), E_UNEXPECTED);
}

}  // namespace tests
