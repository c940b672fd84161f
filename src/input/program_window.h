#pragma once

#include <memory>
#include <span>

#include "common/runtime_error.h"
#include "ports/window.h"

/// What all windows of the program share: each is made from its template, and its events go to the
/// handlers that its table names.
template <class Self>
class ProgramWindow : public EventSink {
 public:
    void raise(int controlId, Event event) final {
        const auto* binding = findBinding(bindings_, controlId, event);
        if (binding) explained([&] { (static_cast<Self&>(*this).*binding->handler)(); });
    }

    bool takesSecondPress(int controlId, Event event) const final {
        const auto* binding = findBinding(bindings_, controlId, event);
        return !binding || binding->presses == Presses::All;
    }

    DuringSearch duringSearch(int controlId, Event event) const final {
        const auto* binding = findBinding(bindings_, controlId, event);
        return binding ? binding->duringSearch : DuringSearch::Drop;
    }

    Window& window() { return *window_; }

 protected:
    ProgramWindow(WindowFactory& windows, const WindowTemplate& windowTemplate,
                  std::span<const Binding<Self>> bindings)
        : window_(windows.create(windowTemplate, *this)), bindings_(bindings) {}

    /// Does something; the window adds its lines to the text of a failure.
    template <class Action>
    void explained(const Action& action) {
        try {
            action();
        } catch (RuntimeError& error) {
            explain(error);
            throw;
        }
    }

    std::unique_ptr<Window> window_;

 private:
    virtual void explain(RuntimeError&) const {}

    std::span<const Binding<Self>> bindings_;
};
