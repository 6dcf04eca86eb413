// Event: what a control raises and its owner handles.
#pragma once

#include <functional>
#include <memory>
#include <utility>

namespace host {

/// One event of a control. `Index` is its place in the control's declared order; arguments given by reference go back to the raiser.
///
/// One owner connects one handler; connecting again replaces it. The handler may unload the form, connect another handler or
/// destroy the control and with it this object: a handler that runs is kept alive until it returns.
template <int Index, class... Args>
class Event {
public:
    static constexpr int index = Index;

    void Connect(std::function<void(Args...)> handler) { handler_ = std::make_shared<const Handler>(std::move(handler)); }

    void Raise(Args... args) const
    {
        const std::shared_ptr<const Handler> handler = handler_;
        if (handler && *handler)
            (*handler)(std::forward<Args>(args)...);
    }

private:
    using Handler = std::function<void(Args...)>;
    std::shared_ptr<const Handler> handler_;
};

}  // namespace host
