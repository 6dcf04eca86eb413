// Form: the controls on it, from the form text and back.
#include "host/Form.h"

#include <algorithm>

namespace host {

namespace {

constexpr const WCHAR* captionKey = TEXT("Caption");
constexpr const WCHAR* clientWidthKey = TEXT("ClientWidth");
constexpr const WCHAR* clientHeightKey = TEXT("ClientHeight");
constexpr const WCHAR* keyPreviewKey = TEXT("KeyPreview");
constexpr const WCHAR* rightToLeftKey = TEXT("RightToLeft");
constexpr const WCHAR* scaleModeKey = TEXT("ScaleMode");
constexpr const WCHAR* fontKey = TEXT("Font");

std::string Narrow(const base::String& text)
{
    return {text.begin(), text.end()};
}

}  // namespace

bool Form::Build(const FormNode& root, const ControlFactory& factory)
{
    if (root.kind != TEXT("Form")) {
        loadError_ = "the text does not begin with a form";
        return false;
    }
    name_ = root.name;
    ReadProperties(PropertyBag(root.properties));
    if (!MakeWindow())
        return false;
    return std::ranges::all_of(root.children, [&](const FormNode& child) { return Place(child, *this, factory); });
}

void Form::ReadProperties(const PropertyBag& bag)
{
    caption_ = bag.Read<base::String>(captionKey, {});
    clientWidth_ = bag.Read<std::int32_t>(clientWidthKey, 0);
    clientHeight_ = bag.Read<std::int32_t>(clientHeightKey, 0);
    keyPreview_ = bag.Read<bool>(keyPreviewKey, false);
    rightToLeft_ = bag.Read<bool>(rightToLeftKey, false);
    scaleMode_ = bag.Read<std::int32_t>(scaleModeKey, 1) == 3 ? ScaleMode::Pixels : ScaleMode::Twips;
    font_ = bag.Read<std::shared_ptr<host::Font>>(fontKey, std::make_shared<host::Font>());
}

bool Form::Place(const FormNode& node, Container& container, const ControlFactory& factory)
{
    Control* const control = Site(node.kind, node.name, container, factory);
    if (!control) {
        loadError_ = "unknown kind of control: " + Narrow(node.kind);
        return false;
    }
    const PropertyBag bag(node.properties);
    control->GetExtender().ReadProperties(bag);
    control->LoadStored(bag);
    auto* const inner = dynamic_cast<Container*>(control);
    if (!inner && !node.children.empty()) {
        loadError_ = Narrow(node.name) + " can't contain controls";
        return false;
    }
    return std::ranges::all_of(node.children, [&](const FormNode& child) { return Place(child, *inner, factory); });
}

Control* Form::Site(base::StringView kind, base::StringView name, Container& container, const ControlFactory& factory)
{
    std::unique_ptr<Control> made = factory.Make(kind);
    if (!made)
        return nullptr;
    Control* const control = controls_.emplace_back(std::move(made)).get();
    control->extender_.emplace(*control, *this, container, base::String(name));
    container.contained_.push_back(control);
    return control;
}

Control* Form::Add(base::StringView kind, base::StringView name, float left, float top, float width, float height,
                   const ControlFactory& factory, Container* container)
{
    if (!IsLoaded())
        return nullptr;
    const int tabIndex = static_cast<int>(controls_.size());
    Control* const control = Site(kind, name, container ? *container : *this, factory);
    if (!control)
        return nullptr;
    control->GetExtender().TabIndex(tabIndex);
    control->GetExtender().Move(left, top, width, height);
    control->LoadNew();
    if (isShown_ && control->GetExtender().Visible())
        control->Shown();
    return control;
}

void Form::MoveTo(Control& control, Container& from, Container& to)
{
    std::erase(from.contained_, &control);
    to.contained_.push_back(&control);
}

std::vector<Control*> Form::Controls() const
{
    std::vector<Control*> all;
    all.reserve(controls_.size());
    for (const auto& control : controls_)
        all.push_back(control.get());
    return all;
}

Control* Form::Find(base::StringView name) const
{
    const auto found = std::ranges::find_if(controls_, [=](const auto& control) { return control->GetExtender().Name() == name; });
    return found == controls_.end() ? nullptr : found->get();
}

Control* Form::ControlOf(HWND window) const
{
    if (!window)
        return nullptr;
    const auto found =
        std::ranges::find_if(controls_, [=](const auto& control) { return control->OwnHandle() == window || control->hWnd() == window; });
    return found == controls_.end() ? nullptr : found->get();
}

std::string Form::Write() const
{
    PropertyBag bag;
    bag.Write(captionKey, caption_, {});
    bag.Write(clientWidthKey, std::int32_t{clientWidth_});
    bag.Write(clientHeightKey, std::int32_t{clientHeight_});
    bag.Write(keyPreviewKey, keyPreview_, false);
    bag.Write(rightToLeftKey, rightToLeft_, false);
    bag.Write(scaleModeKey, static_cast<std::int32_t>(scaleMode_), static_cast<std::int32_t>(ScaleMode::Twips));
    bag.Write(fontKey, font_, std::make_shared<host::Font>());
    FormNode root{TEXT("Form"), name_, bag.Properties(), {}};
    for (Control* const control : ContainedControls())
        root.children.push_back(Describe(*control));
    return WriteForm(root);
}

FormNode Form::Describe(Control& control) const
{
    PropertyBag kept, own;
    control.GetExtender().WriteProperties(kept, control.HasPlace());
    control.Store(own);
    FormNode node{base::String(control.Kind()), control.GetExtender().Name(), kept.Properties(), {}};
    std::ranges::remove_copy_if(own.Properties(), std::back_inserter(node.properties), Extender::OwnsKey, &Property::key);
    if (const auto* const container = dynamic_cast<Container*>(&control))
        for (Control* const inner : container->ContainedControls())
            node.children.push_back(Describe(*inner));
    return node;
}

}  // namespace host
