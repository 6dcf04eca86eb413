// FrameLayout: how a frame's caption is measured and where caption and border stand. Pure geometry in pixels.
#pragma once

#include "base/String.h"

#include <windows.h>

namespace controls {

struct FrameCaption {
    base::String measured;   // what the caption is as wide as: without its marks, a blank when there is no caption
    base::String accessKey;  // one character, or empty
};

[[nodiscard]] FrameCaption AnalyseFrameCaption(base::StringView caption);

struct FrameGeometry {
    RECT border;       // the top edge runs through the middle of the caption
    RECT caption;      // where the caption is drawn
    RECT captionBack;  // what is cleared behind it
};

/// For a frame of `width` by `height` pixels and a caption as large as `text`.
[[nodiscard]] FrameGeometry LayOutFrame(int width, int height, SIZE text);

}  // namespace controls
