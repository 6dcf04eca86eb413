// Faces: times each style of the button beside one themed drawing and one filling of the same size.
#pragma once

namespace bench {

/// Prints the tables.
void TimeFaces();

}  // namespace bench
