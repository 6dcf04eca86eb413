// ControlFactory: makes a control from the kind that a form file names.
#pragma once

#include "base/String.h"
#include "host/Control.h"

#include <functional>
#include <map>
#include <memory>

namespace host {

class ControlFactory {
public:
    using Maker = std::function<std::unique_ptr<Control>()>;

    /// Knows the stock kinds: Label, ComboBox, Timer.
    ControlFactory();

    void Register(base::StringView kind, Maker maker);
    template <class T>
    void Register(base::StringView kind)
    {
        Register(kind, [] { return std::make_unique<T>(); });
    }
    /// Null for a kind that nobody registered.
    [[nodiscard]] std::unique_ptr<Control> Make(base::StringView kind) const;

private:
    std::map<base::String, Maker, std::less<>> makers_;
};

}  // namespace host
