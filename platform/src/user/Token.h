// Token: a handle to the access token of the program.
#pragma once

#include "platform/src/core/KernelObject.h"

#include <winnt.h>

#include <memory>
#include <optional>

namespace platform {

/// There is one token, the user's; thread tokens carry how far they may be used.
class Token : public KernelObject {
public:
    Token(DWORD access, std::optional<SECURITY_IMPERSONATION_LEVEL> impersonation, bool restricted = false)
        : KernelObject(access), impersonation_(impersonation), restricted_(restricted)
    {
    }
    [[nodiscard]] std::optional<SECURITY_IMPERSONATION_LEVEL> Impersonation() const { return impersonation_; }
    /// Whether the group of the administrators grants it nothing.
    [[nodiscard]] bool Restricted() const { return restricted_; }

private:
    std::optional<SECURITY_IMPERSONATION_LEVEL> impersonation_;
    bool restricted_;
};

/// The token behind a handle that grants all of `access`. Empty with the last error set: 6 no such handle, 5 not granted.
[[nodiscard]] std::shared_ptr<Token> FindToken(HANDLE handle, DWORD access);

}  // namespace platform
