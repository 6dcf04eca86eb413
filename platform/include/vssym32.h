// Older name of the parts and states of visual styles.
#pragma once

#include "vsstyle.h"
