// Live: one window with every style of the button in its states and with the other controls, one with what can be changed of them.
#include "tools/gallery/Live.h"

#include "controls/CommandButton/CommandButton.h"
#include "controls/CommandButton/CommandButtonStyles.h"
#include "controls/RegisterControls.h"
#include "controls/ThemeState.h"
#include "host/ComboBox.h"
#include "host/Form.h"
#include "host/MessageLoop.h"

#include <functional>
#include <memory>
#include <string>
#include <vector>

namespace gallery {

namespace {

using controls::CommandButton;

constexpr int twips = 15;  // a pixel at 96 dots per inch

/// "Kind Name { Left = ... Top = ... Width = ... Height = ... " in pixels, with its properties and the closing brace.
std::string Place(const std::string& kind, const std::string& name, const RECT& place, const std::string& properties)
{
    const auto at = [](const char* key, LONG pixels) { return std::string(key) + " = " + std::to_string(pixels * twips) + " "; };
    return kind + " " + name + " { " + at("Left", place.left) + at("Top", place.top) + at("Width", place.right) +
           at("Height", place.bottom) + properties + " }\n";
}

std::string FormText(const std::string& name, const std::string& caption, SIZE size, const std::string& contents)
{
    return "Form " + name + " { Caption = \"" + caption + "\" ClientWidth = " + std::to_string(size.cx * twips) +
           " ClientHeight = " + std::to_string(size.cy * twips) + " Font = Font(\"Tahoma\", 8.25)\n" + contents + "}";
}

/// Three buttons a style, to play with, switched on and disabled, and three in colours of their own.
std::string ButtonsText()
{
    std::string contents;
    int tabIndex = 0;
    for (int style = 0; style < 19; ++style) {
        const std::string number = std::to_string(style);
        const LONG top = 8 + style * 32;
        contents += Place("Label", "L" + number, {8, top + 6, 120, 18},
                          "Caption = \"" + number + "  " + controls::ButtonStyleOf(style).name + "\"");
        LONG left = 132;
        for (const std::string colors :
             {"", " USeCustomColors = 1 BackColor = 0x00C08040 BackColorDisabled = 0x00C0A080 HighlightColor = 0x0040C0FF"}) {
            const std::pair<const char*, const char*> columns[] = {
                {"Live", ""}, {"On", " ButtonType = 1 Value = 1"}, {"Disabled", " Enabled = False"}};
            for (const auto& [caption, properties] : columns) {
                const std::string index = std::to_string(++tabIndex);
                contents += Place("CommandButton", "Button" + index, {left, top, 90, 28},
                                  std::string("Caption = \"") + caption + "\" TabIndex = " + index + " Style = " + number +
                                      " MaskColorEnabled = 1 MaskColor = 0x00FF00FF" + properties + colors);
                left += 94;
            }
        }
    }
    return contents;
}

/// A row of frames, one of check boxes and one of text boxes.
std::string OthersText(LONG top)
{
    struct Kind {
        const char* name;
        SIZE size;
        LONG pace;
        std::vector<const char*> each;
    };
    const Kind kinds[] = {
        {"Frame",
         {108, 46},
         54,
         {"Caption = \"A &frame\"", "Caption = \"Disabled\" Enabled = 0", "Caption = \"Classic\" UseClassicTheme = 1",
          "Caption = \"Round\" UseClassicTheme = 1 BorderRound = 12", "Caption = \"Own\" UseClassicTheme = 1 BorderColorDark = 0x00804000",
          "Caption = \"No border\" BorderStyle = 0"}},
        {"CheckBox",
         {108, 20},
         24,
         {"Caption = \"&Clear\"", "Caption = \"&Ticked\" Value = 1", "Caption = \"&Grey\" Value = 2",
          "Caption = \"Disabled\" Value = 1 Enabled = 0", "Caption = \"Classic\" UseClassicTheme = 1 Value = 1",
          "Caption = \"Right\" Alignment = 1"}},
        {"TextBox",
         {108, 36},
         40,
         {"Text = \"text\"", "Text = \"text\" Enabled = 0", "Text = \"secret\" UseSystemPasswordChar = 1",
          "Text = \"classic\" UseClassicTheme = 1", "Text = \"several lines of text\" MultiLine = 1",
          "Text = \"12\" AllowOnlyNumbers = 1"}},
    };
    std::string contents;
    int tabIndex = 200;
    for (const Kind& kind : kinds) {
        LONG left = 8;
        for (const char* const properties : kind.each) {
            const std::string index = std::to_string(++tabIndex);
            contents +=
                Place(kind.name, "Other" + index, {left, top, kind.size.cx, kind.size.cy}, "TabIndex = " + index + " " + properties);
            left += kind.size.cx + 8;
        }
        top += kind.pace;
    }
    return contents;
}

std::string FacesText()
{
    const LONG top = 8 + 19 * 32;
    return FormText("Faces", "The controls", {704, top + 54 + 24 + 40}, ButtonsText() + OthersText(top));
}

std::shared_ptr<host::Picture> SamplePicture(int which)
{
    if (which == 2)
        return std::make_shared<host::Picture>(
            host::IconHandle(static_cast<HICON>(LoadImageW(GetModuleHandleW(nullptr), TEXT("AAA"), IMAGE_ICON, 16, 16, LR_DEFAULTCOLOR))));
    if (which == 0)
        return nullptr;
    constexpr int side = 16;
    BITMAPINFO info{};
    info.bmiHeader = {sizeof info.bmiHeader, side, -side, 1, 32, BI_RGB, 0, 0, 0, 0, 0};
    void* bits = nullptr;
    base::BitmapHandle bitmap(CreateDIBSection(nullptr, &info, DIB_RGB_COLORS, &bits, nullptr, 0));
    if (!bitmap)
        return nullptr;
    // A disc that grows redder to the right, in the mask's colour all round.
    for (int y = 0; y < side; ++y) {
        for (int x = 0; x < side; ++x) {
            const int dx = 2 * x - side + 1, dy = 2 * y - side + 1;
            const bool inside = dx * dx + dy * dy <= side * side;
            static_cast<std::uint32_t*>(bits)[y * side + x] = inside ? static_cast<std::uint32_t>(x * 16) << 16 | 0x4080 : 0xFF00FF;
        }
    }
    return std::make_shared<host::Picture>(std::move(bitmap));
}

/// What can be chosen, and what the choice does to each button.
struct Choice {
    const char* name;
    std::vector<const char*> items;
    int first;
    void (*apply)(CommandButton&, int);
};

const Choice choices[] = {
    {"Gradient",
     {"0", "Diagonal", "Horizontal", "Mirrored", "Vertical", "Mirrored, vertical", "6", "7"},
     1,
     [](CommandButton& b, int n) { b.GradientDirection(n); }},
    {"Contour", {"None", "Flat", "3D"}, 2, [](CommandButton& b, int n) { b.ContourStyle(n); }},
    {"Contour colour",
     {"Black", "Blue", "Green"},
     0,
     [](CommandButton& b, int n) {
         b.ContourColor(n == 0 ? 0 : n == 1 ? 0x800000 : 0x008000);
     }},
    {"Round corners", {"0", "5", "9", "20"}, 1, [](CommandButton& b, int n) { b.RoundedValue(n == 0   ? 0
                                                                                             : n == 1 ? 5
                                                                                             : n == 2 ? 9
                                                                                                      : 20); }},
    {"Caption", {"Centre", "Left", "Right", "Top", "Bottom"}, 0, [](CommandButton& b, int n) { b.CaptionAlign(n); }},
    {"Caption effect", {"None", "Raised", "Sunken", "Shadow"}, 0, [](CommandButton& b, int n) { b.CaptionFx(n); }},
    {"Picture", {"None", "Bitmap", "Icon"}, 0, [](CommandButton& b, int n) { b.Picture(SamplePicture(n)); }},
    {"Picture place", {"Centre", "Left", "Right", "Top", "Bottom"}, 1, [](CommandButton& b, int n) { b.PictureAlign(n); }},
    {"Disabled picture", {"Unchanged", "Faded", "Grey"}, 0, [](CommandButton& b, int n) { b.PictureDisabledStyle(n); }},
    {"Focus", {"Hidden", "Shown"}, 0, [](CommandButton& b, int n) { b.ShowFocus(n == 1); }},
    {"Reading order", {"Left to right", "Right to left"}, 0, [](CommandButton& b, int n) { b.RightToLeft(n == 1); }},
    {"Themed corners", {"Cut away", "Kept"}, 0, [](CommandButton& b, int n) { b.RoundedBordersByTheme(n == 0); }},
};
constexpr int choiceCount = static_cast<int>(std::size(choices));

std::string PanelText()
{
    std::string contents;
    const auto row = [&](int index, const std::string& caption, const std::string& name, const std::vector<const char*>& items) {
        std::string list;
        for (const char* const item : items)
            list += (list.empty() ? "\"" : ", \"") + std::string(item) + "\"";
        const LONG top = 10 + index * 28;
        contents += Place("Label", "L" + name, {10, top + 4, 100, 18}, "Caption = \"" + caption + "\"");
        contents += Place("ComboBox", name, {116, top, 150, 21}, "TabIndex = " + std::to_string(index) + " List = [" + list + "]");
    };
    for (int index = 0; index < choiceCount; ++index)
        row(index, choices[index].name, "C" + std::to_string(index), choices[index].items);
    row(choiceCount, "Visual styles", "Themes", {"Off", "On"});
    row(choiceCount + 1, "Mode", "Mode", {"Run", "Design"});
    return FormText("Panel", "Properties", {276, 10 + (choiceCount + 2) * 28}, contents);
}

/// The window with the controls. It is made anew for a change of mode.
class Faces final : public host::Form {
public:
    template <class Change>
    void Each(Change change)
    {
        for (host::Control* const control : Controls())
            if (auto* const button = dynamic_cast<CommandButton*>(control))
                change(*button);
    }
};

class Panel final : public host::Form {
public:
    Panel() { controls::RegisterControls(factory_); }

    bool Open()
    {
        if (!Load(PanelText(), factory_))
            return false;
        for (int index = 0; index < choiceCount; ++index)
            Connect("C" + std::to_string(index), choices[index].first, [this, index](int) { Apply(index); });
        Connect("Themes", 1, [this](int on) {
            controls::ThemeState::OfProcess().AskVersionWith([on] { return static_cast<DWORD>(on == 1 ? 6 : 5); });
            // What Windows sends to every window.
            EnumChildWindows(
                faces_->hWnd(), [](HWND window, LPARAM) { return SendMessageW(window, WM_THEMECHANGED, 0, 0), TRUE; }, 0);
        });
        Connect("Mode", 0, [this](int mode) { ShowFaces(mode == 0); });
        ShowFaces(true);
        Show();
        Move(*this, {4, 4});
        RECT place{};
        GetWindowRect(hWnd(), &place);
        Move(*faces_, {place.right + 8, 4});
        return true;
    }

private:
    void Connect(const std::string& name, int first, std::function<void(int)> chosen)
    {
        auto* const box = Find<host::ComboBox>(base::String(name.begin(), name.end()));
        box->ListIndex(first);
        boxes_.push_back(box);
        box->Click.Connect([box, chosen] { chosen(box->ListIndex()); });
    }
    void Apply(int index)
    {
        faces_->Each([&](CommandButton& button) { choices[index].apply(button, boxes_[static_cast<std::size_t>(index)]->ListIndex()); });
    }
    static void Move(const Form& form, POINT corner)
    {
        SetWindowPos(form.hWnd(), nullptr, corner.x, corner.y, 0, 0, SWP_NOSIZE | SWP_NOZORDER | SWP_NOACTIVATE);
    }
    void ShowFaces(bool userMode)
    {
        RECT place{};
        if (faces_) {
            GetWindowRect(faces_->hWnd(), &place);
            faces_->Unload();
        }
        auto faces = std::make_unique<Faces>();
        faces->UserMode(userMode);
        if (!faces->Load(FacesText(), factory_))
            return;
        faces_ = std::move(faces);
        for (int index = 0; index < choiceCount; ++index)
            Apply(index);
        faces_->Show();
        Move(*faces_, {place.left, place.top});
    }
    void Form_Unload() override
    {
        if (faces_)
            faces_->Unload();
    }

    host::ControlFactory factory_;
    std::unique_ptr<Faces> faces_;
    std::vector<host::ComboBox*> boxes_;
};

}  // namespace

int ShowLive()
{
    controls::ThemeState::OfProcess().AskVersionWith([] { return DWORD{6}; });
    Panel panel;
    return panel.Open() ? host::MessageLoop::Run() : 1;
}

}  // namespace gallery
