#include "worklist/beside_list.h"

#include "common/text.h"

std::wstring besideList(std::wstring_view listFile, std::wstring_view ending) {
    constexpr std::wstring_view kExtension = L".lst";
    const std::size_t stem = listFile.size() - std::min(kExtension.size(), listFile.size());
    if (equalIgnoringCase(listFile.substr(stem), kExtension)) listFile = listFile.substr(0, stem);
    std::wstring path(listFile);
    return path += ending;
}
