#pragma once

#include <memory>

#include "platform/window.h"

struct Module1;
struct Platform;

/// The About window: name, version and date of the program. Enter, Escape or its frame close it.
class AboutWindow : public EventSink {
 public:
    AboutWindow(const Module1& module, Platform& platform);

    void raise(int controlId, Event event) override;

    void show() { window_->show(); }
    void close();
    bool isOpen() const { return open_; }

 private:
    std::unique_ptr<Window> window_;
    bool open_ = true;
};
