// Form: its life, its window and its properties. The controls are in FormControls.cpp, the messages in FormMessages.cpp.
#include "host/Form.h"

namespace host {

namespace {

/// The forms that are loaded, in the order of loading.
std::vector<Form*>& LoadedForms()
{
    static std::vector<Form*> forms;
    return forms;
}

constexpr DWORD windowStyle = WS_OVERLAPPED | WS_CAPTION | WS_SYSMENU | WS_MINIMIZEBOX | WS_CLIPCHILDREN;

}  // namespace

Form::~Form()
{
    Unload();
    // Also for a form whose loading ended with an exception.
    TearDown();
}

bool Form::Load(std::string_view formText, const ControlFactory& factory)
{
    if (state_ != State::Made)
        return false;
    ScreenResolution::Forget();
    Form_Initialize();
    const ParsedForm parsed = ParseForm(formText);
    if (!parsed.Ok())
        loadError_ = "line " + std::to_string(parsed.line) + ": " + parsed.message;
    else if (!Build(parsed.root, factory) && loadError_.empty())
        loadError_ = "no window";
    if (!loadError_.empty()) {
        TearDown();
        state_ = State::Unloaded;
        return false;
    }
    isChanged_ = false;
    state_ = State::Loaded;
    LoadedForms().push_back(this);
    Form_Load();
    return true;
}

bool Form::MakeWindow()
{
    const SIZE content{TwipsToPixelsX(static_cast<float>(clientWidth_)), TwipsToPixelsY(static_cast<float>(clientHeight_))};
    RECT area{};
    SystemParametersInfoW(SPI_GETWORKAREA, 0, &area, 0);
    WindowShape shape;
    shape.style = windowStyle;
    shape.place = scroll_.Fit(content, area, shape.style);
    shape.text = caption_;
    RegisterClasses();
    if (!Make(shape))
        return false;
    scroll_.Show(hWnd());
    return true;
}

void Form::Show()
{
    if (!IsLoaded() || std::exchange(isShown_, true))
        return;
    for (Control* const control : Controls())
        if (IsLoaded() && control->GetExtender().Visible())
            control->Shown();
    if (IsLoaded())
        ShowWindow(hWnd(), SW_SHOWNORMAL);
}

void Form::Unload()
{
    if (!IsLoaded())
        return;
    state_ = State::Unloading;
    /// Also when the form's own handler ends with an exception.
    struct Ending {
        Form& form;
        ~Ending()
        {
            form.TearDown();
            form.state_ = State::Unloaded;
            std::erase(LoadedForms(), &form);
            if (LoadedForms().empty())
                PostQuitMessage(0);
        }
    } const ending{*this};
    Form_Unload();
}

/// Inner controls stand behind their containers in the list and go first.
void Form::TearDown()
{
    active_ = nullptr;
    passedOnFrom_ = nullptr;
    for (auto control = controls_.rbegin(); control != controls_.rend(); ++control)
        (*control)->Unload();
    Destroy();
}

Form* Form::First()
{
    return LoadedForms().empty() ? nullptr : LoadedForms().front();
}

Form* Form::Of(HWND window)
{
    for (Form* const form : LoadedForms())
        if (window && (form->hWnd() == window || IsChild(form->hWnd(), window)))
            return form;
    return nullptr;
}

void Form::Caption(base::StringView caption)
{
    caption_ = caption;
    if (hWnd())
        SetWindowTextW(hWnd(), caption_.c_str());
}

void Form::Font(std::shared_ptr<host::Font> font)
{
    font_ = font ? std::move(font) : std::make_shared<host::Font>();
    Ambient(TEXT("Font"));
}

void Form::BackColor(OleColor color)
{
    backColor_ = color;
    if (hWnd())
        InvalidateRect(hWnd(), nullptr, TRUE);
    Ambient(TEXT("BackColor"));
}

void Form::ForeColor(OleColor color)
{
    foreColor_ = color;
    Ambient(TEXT("ForeColor"));
}

void Form::Ambient(base::StringView name)
{
    if (IsLoaded())
        for (Control* const control : Controls())
            control->AmbientChanged(name);
}

void Form::Publish(base::StringView name, Routine routine)
{
    routines_.insert_or_assign(base::String(name), std::move(routine));
}

const Form::Routine* Form::RoutineByName(base::StringView name) const
{
    const auto found = routines_.find(name);
    return found == routines_.end() ? nullptr : &found->second;
}

void Form::OnPropertyChanged(Control& control, base::StringView name)
{
    isChanged_ = true;
    PropertyChanged.Raise(control, name);
}

}  // namespace host
