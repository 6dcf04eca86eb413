#include "controls/DroppedFiles.h"

namespace controls {

using base::String;

std::vector<String> TakeDroppedFiles(HDROP drop)
{
    std::vector<String> paths;
    const UINT count = DragQueryFileW(drop, 0xFFFFFFFF, nullptr, 0);
    for (UINT index = 0; index < count; ++index) {
        WCHAR path[519]{};
        const UINT length = DragQueryFileW(drop, index, path, 519);
        paths.push_back(base::Trim({path, length}));
    }
    DragFinish(drop);
    return paths;
}

}  // namespace controls
