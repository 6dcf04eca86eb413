// Mutex: one named or nameless mutex, a handle to it, and the names that are known.
#pragma once

#include "platform/src/core/KernelObject.h"

#include <map>
#include <memory>
#include <string>
#include <string_view>

namespace platform {

class Mutex {
public:
    DWORD owner = 0;  // thread id, 0 none
    unsigned depth = 0;
};

class Mutexes : public Area {
public:
    using Area::Area;
    /// The mutex of that name, made when there is none; `existed` tells.
    [[nodiscard]] std::shared_ptr<Mutex> Open(std::u16string_view name, bool& existed);

private:
    std::map<std::u16string, std::weak_ptr<Mutex>> named_;
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
