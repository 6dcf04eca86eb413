#include "host/Label.h"

#include "base/Handles.h"
#include "host/AccessibleFacts.h"
#include "host/AccessKey.h"

#include <algorithm>

#include <oleacc.h>

namespace host {

namespace {

constexpr const WCHAR* captionKey = TEXT("Caption");

}  // namespace

StockControl::SystemWindow Label::Describe() const
{
    // In the manner of an edit control: a last line that is only partly visible is left out.
    return {TEXT("Static"), SS_LEFT | SS_EDITCONTROL, caption_};
}

RECT Label::WindowRect(RECT place) const
{
    const base::ScreenDc screen(GetDC(nullptr));
    TEXTMETRICW font{};
    if (screen) {
        const HGDIOBJ former = SelectObject(screen.Get(), Font()->Handle());
        GetTextMetricsW(screen.Get(), &font);
        SelectObject(screen.Get(), former);
    }
    place.bottom = std::max(place.bottom, place.top + font.tmHeight);
    return place;
}

void Label::Caption(base::StringView caption)
{
    caption_ = caption;
    if (hWnd())
        SetWindowTextW(hWnd(), caption_.c_str());
}

base::String Label::AccessKey() const
{
    return AccessKeyOf(caption_);
}

AccessibleFacts Label::Accessibility()
{
    return {.role = ROLE_SYSTEM_STATICTEXT, .state = STATE_SYSTEM_READONLY, .caption = caption_};
}

void Label::ReadProperties(const PropertyBag& bag)
{
    caption_ = bag.Read<base::String>(captionKey, {});
}

void Label::WriteProperties(PropertyBag& bag)
{
    bag.Write(captionKey, caption_, {});
}

}  // namespace host
