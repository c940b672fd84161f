#pragma once

#include <windows.h>

#include <oleauto.h>
#include <string>

/// A call that ends in an error: its HRESULT and, where one argument is to blame, which.
struct CallError {
    HRESULT code;
    UINT argument = 0;  ///< as IDispatch counts them: the last argument sent is 0
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

    /// The argument's value, by value or by reference; throws CallError on another type.
    std::wstring text(UINT index) const;
    long integer(UINT index) const;
    bool boolean(UINT index) const;

    /// Writes to a by-reference argument; one sent by value is left alone.
    void giveBack(UINT index, long value) const;

    void answer(const std::wstring& text);
    void answer(long number);
    void answer(bool yes);
    void answer(IDispatch* object);  ///< null: an empty object

    /// What came of a call that did return: in French for the window and, when it brought nothing
    /// about, for the journal.
    void tell(std::wstring news, const wchar_t* outcome = L"");
    const std::wstring& news() const { return news_; }
    const wchar_t* outcome() const { return outcome_; }

    /// Hands the answer over to the caller's variant, if there is one.
    void deliver(VARIANT* result);

 private:
    VARIANT converted(UINT index, VARTYPE type) const;

    const DISPPARAMS& parameters_;
    VARIANT answer_{};
    std::wstring news_;
    const wchar_t* outcome_ = L"";
};
