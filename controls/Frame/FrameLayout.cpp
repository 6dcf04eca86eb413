// FrameLayout: the caption stands 9 pixels from the left, its background from (7, 0) to (9 + its width, its height), both included.
#include "controls/Frame/FrameLayout.h"

#include "host/AccessKey.h"

namespace controls {

using base::String;
using base::StringView;

FrameCaption AnalyseFrameCaption(StringView caption)
{
    FrameCaption result;
    result.accessKey = host::AccessKeyOf(caption);
    for (std::size_t place = 0; place < caption.size(); ++place) {
        if (caption[place] != TEXT('&')) {
            result.measured += caption[place];
        } else if (caption.substr(place, 2) == TEXT("&&")) {
            // A literal ampersand is measured as wide as an A.
            result.measured += TEXT('A');
            ++place;
        }
    }
    if (caption.empty())
        result.measured = TEXT(" ");
    return result;
}

FrameGeometry LayOutFrame(int width, int height, SIZE text)
{
    return {{0, text.cy / 2, width, height - 1}, {9, 0, 9 + text.cx, text.cy}, {7, 0, text.cx + 10, text.cy + 1}};
}

}  // namespace controls
