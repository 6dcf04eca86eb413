#include "app/helpers/Caches.h"

namespace helpers {

Caches& ProcessCaches()
{
    static Caches caches;
    return caches;
}

void ForgetCaches()
{
    ProcessCaches() = Caches();
}

}  // namespace helpers
