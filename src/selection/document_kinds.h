#pragma once

#include <string>
#include <string_view>

/// Which CAD documents are looked for, from the type text that the user chose or typed.
class DocumentKinds {
 public:
    /// Takes the kinds that the text names anywhere, in any case: sldasm, sldprt, slddrw.
    explicit DocumentKinds(std::wstring_view typeText);

    /// The file pattern, always assemblies, parts, drawings in that order; empty for no kind.
    const std::wstring& pattern() const { return pattern_; }

    /// Whether a file of this name is looked for: by what follows its last dot, in any case.
    bool accepts(std::wstring_view fileName) const;

 private:
    std::wstring pattern_;
    bool assemblies_ = false;
    bool parts_ = false;
    bool drawings_ = false;
};
