#pragma once

#include <windows.h>

#include <cstdint>
#include <oleauto.h>
#include <string>

/// An error that ends a call: its HRESULT and, where one argument is to blame, which one.
struct CallError {
    HRESULT code;
    UINT argument = 0;  ///< counted as IDispatch does: the last one sent is 0
};

/// One call as received: its arguments in the order the caller wrote them, and its answer.
class Call {
 public:
    explicit Call(const DISPPARAMS& parameters) : parameters_(parameters) {}
    ~Call() { VariantClear(&answer_); }
    Call(const Call&) = delete;
    Call& operator=(const Call&) = delete;

    UINT count() const { return parameters_.cArgs; }
    VARIANT& argument(UINT index) const;

    /// The value of an argument, sent by value or by reference; throws CallError for another type.
    std::wstring text(UINT index) const;
    std::int32_t integer(UINT index) const;
    bool boolean(UINT index) const;

    /// Writes to an argument sent by reference; ignores one sent by value.
    void giveBack(UINT index, std::int32_t value) const;

    void answer(const std::wstring& text);
    void answer(std::int32_t number);
    void answer(bool yes);
    void answer(IDispatch* object);  ///< null: an empty object

    /// Says how a call that returned turned out: in French for the window and, when it had no
    /// effect, for the journal.
    void tell(std::wstring news, const wchar_t* outcome = L"");
    const std::wstring& news() const { return news_; }
    const wchar_t* outcome() const { return outcome_; }

    /// Hands the answer over to the caller's VARIANT, if there is one.
    void deliver(VARIANT* result);

 private:
    VARIANT converted(UINT index, VARTYPE type) const;

    const DISPPARAMS& parameters_;
    VARIANT answer_{};
    std::wstring news_;
    const wchar_t* outcome_ = L"";
};
