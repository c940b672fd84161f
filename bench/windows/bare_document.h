#pragma once

#include <windows.h>

#include <oleauto.h>
#include <string>

#include "bare_calls.h"

/// The eight calls of a document, made bare. Member numbers are looked up once for each kind of
/// object.
class BareDocument {
 public:
    explicit BareDocument(const std::wstring& path) : path_(path), application_(runningSession()) {
        close_ = application_.numberOf(L"closedoc");
        open_ = application_.numberOf(L"OpenDoc6");
        activate_ = application_.numberOf(L"ActivateDoc2");
        visible_ = application_.numberOf(L"Visible");
        const BareObject document(open());
        rebuild_ = document.numberOf(L"ForceRebuild3");
        title_ = document.numberOf(L"GetTitle");
        zoom_ = document.numberOf(L"ViewZoomtofit2");
        save_ = document.numberOf(L"save2");
    }

    void eightCalls() {
        const BareObject opened(open());
        const BareObject document(activate());
        application_.invoke(visible_, {flag(true)}, DISPATCH_PROPERTYPUT);
        document.invoke(rebuild_, {flag(false)});
        document.invoke(title_, {});
        document.invoke(zoom_, {});
        document.invoke(save_, {flag(true)});
        application_.invoke(close_, {text(path_)});
    }

 private:
    IDispatch* open() {
        BSTR name = SysAllocString(path_.c_str());
        SHORT type = 1;
        LONG errors = 0;
        LONG warnings = 0;
        IDispatch* document =
            application_.invoke(open_, {reference(&name), reference(&type), number(1), text(L""),
                                        reference(&errors), reference(&warnings)});
        SysFreeString(name);
        return document;
    }

    IDispatch* activate() {
        BSTR name = SysAllocString(path_.c_str());
        LONG errors = 0;
        IDispatch* document =
            application_.invoke(activate_, {reference(&name), flag(true), reference(&errors)});
        SysFreeString(name);
        return document;
    }

    std::wstring path_;
    BareObject application_;
    DISPID close_, open_, activate_, visible_, rebuild_, title_, zoom_, save_;
};
