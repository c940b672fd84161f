#pragma once

#include <utility>

/// A counted reference to a COM object.
template <class Interface>
class ComPtr {
 public:
    ComPtr() = default;
    /// One reference more to an object that someone else holds, too.
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

    /// Where a function puts the reference that it gives. The one held before is given up.
    Interface** put() {
        *this = ComPtr();
        return &object_;
    }
    void** putVoid() { return reinterpret_cast<void**>(put()); }

 private:
    Interface* object_ = nullptr;
};
