// Retrieval: which message a thread gets next.
#pragma once

#include "platform/src/message/MessageQueues.h"

namespace platform {

/// What a caller of GetMessage or PeekMessage wants to see.
struct MessageFilter {
    HWND window = nullptr;  // NULL: every window and the thread; (HWND)-1: only the thread
    UINT first = 0;
    UINT last = 0;

    [[nodiscard]] bool Takes(UINT message) const { return (first == 0 && last == 0) || (message >= first && message <= last); }
    [[nodiscard]] bool Takes(HWND receiver) const;
};

/// The next message of a thread in Windows' order: posted, quit, input, paint, timer. False when there is none.
bool Retrieve(ThreadQueue& queue, MSG& message, const MessageFilter& filter, bool remove);

/// QS_ bits of what waits for a thread now.
[[nodiscard]] UINT WaitingTypes(const ThreadQueue& queue);

}  // namespace platform
