// Mutex: one named or nameless mutex, and a handle to it.
#pragma once

#include "platform/src/core/KernelObject.h"

#include <memory>

namespace platform {

class Mutex {
public:
    DWORD owner = 0;  // thread id, 0 none
    unsigned depth = 0;
};

class MutexHandle : public KernelObject {
public:
    explicit MutexHandle(std::shared_ptr<Mutex> object) : KernelObject(MUTEX_ALL_ACCESS), mutex(std::move(object)) {}
    [[nodiscard]] bool Waitable() const override { return true; }
    [[nodiscard]] bool Signalled() const override;
    void WaitEnded() override;

    const std::shared_ptr<Mutex> mutex;
};

}  // namespace platform
