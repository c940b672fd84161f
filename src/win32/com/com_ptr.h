#pragma once

#include <utility>

/// A counted reference to a COM object.
template <class Interface>
class ComPtr {
 public:
    ComPtr() = default;
    /// Adds a reference of its own to an object.
    explicit ComPtr(Interface* object) : object_(object) {
        if (object_) object_->AddRef();
    }
    ComPtr(const ComPtr& other) : ComPtr(other.object_) {}
    ComPtr(ComPtr&& other) noexcept : object_(std::exchange(other.object_, nullptr)) {}
    ComPtr& operator=(ComPtr other) noexcept {
        std::swap(object_, other.object_);
        return *this;
    }
    ~ComPtr() {
        if (object_) object_->Release();
    }

    Interface* get() const { return object_; }
    Interface* operator->() const { return object_; }
    explicit operator bool() const { return object_ != nullptr; }

    /// Where a function puts the reference that it returns. The one held before is released.
    Interface** put() {
        *this = ComPtr();
        return &object_;
    }
    void** putVoid() { return reinterpret_cast<void**>(put()); }

 private:
    Interface* object_ = nullptr;
};
