#include "pickers/pickers.h"

#include <algorithm>
#include <string>
#include <utility>

#include "common/text.h"
#include "pickers/paths.h"
#include "ports/controls.h"
#include "ports/files.h"
#include "ports/search.h"

namespace {

std::vector<std::wstring> lineage(const std::wstring& directory) {
    std::vector<std::wstring> paths{directory};
    for (std::wstring above = parentPath(directory); above != paths.front();
         above = parentPath(above)) {
        paths.insert(paths.begin(), above);
    }
    return paths;
}

std::wstring lastName(const std::wstring& directory) {
    if (parentPath(directory) == directory) return directory;
    return directory.substr(directory.find_last_of(L'\\') + 1);
}

std::wstring indented(std::size_t level, const std::wstring& name) {
    return std::wstring(2 * level, L' ') + name;
}

}  // namespace

void DrivePicker::fill() {
    letters_ = files_.drives();
    std::vector<std::wstring> lines;
    for (const wchar_t letter : letters_) lines.push_back(std::wstring(1, letter) + L":");
    box_.setLines(lines);
}

void DrivePicker::setDrive(std::wstring_view path) {
    const bool named = path.size() >= 2 && path[1] == L':';
    const auto found = std::ranges::find_if(letters_, [&](wchar_t letter) {
        return named && upperCase({&letter, 1}) == upperCase(path.substr(0, 1));
    });
    box_.selectLine(found == letters_.end() ? -1 : static_cast<int>(found - letters_.begin()));
}

wchar_t DrivePicker::drive() const {
    const int line = box_.selectedLine();
    return line < 0 || line >= static_cast<int>(letters_.size())
               ? L'\0'
               : letters_[static_cast<std::size_t>(line)];
}

Opening DirectoryPicker::open(const std::wstring& path) {
    std::wstring wanted = reportedPath(path);
    const Searching opening(services_.watch, window_, SearchKind::Opening);
    const SearchSign sign(label_);
    auto subdirectories = readSubdirectories(services_, wanted);
    if (!subdirectories) return Opening::GivenUp;
    const bool another = wanted != path_;
    show(std::move(wanted), std::move(*subdirectories));
    return another ? Opening::Another : Opening::Same;
}

void DirectoryPicker::openOr(const std::wstring& path, const std::wstring& refuge) {
    if (open(path) == Opening::GivenUp) show(reportedPath(refuge), {});
}

Opening DirectoryPicker::openSelected() {
    for (int i = 0; i < list_.count(); ++i) {
        if (list_.selected(i)) return open(pathOf(static_cast<std::size_t>(i)));
    }
    return Opening::Same;
}

std::wstring DirectoryPicker::pathOf(std::size_t line) const {
    const std::size_t above = ancestors_.size();
    return line < above ? ancestors_[line]
                        : childPath(path_, subdirectories_.at(line - above).name);
}

void DirectoryPicker::show(std::wstring path, std::vector<Subdirectory> subdirectories) {
    path_ = std::move(path);
    subdirectories_ = std::move(subdirectories);
    ancestors_ = lineage(path_);
    const std::size_t above = ancestors_.size();
    list_.setLines(static_cast<int>(above + subdirectories_.size()), [&](int line) {
        const auto i = static_cast<std::size_t>(line);
        return i < above ? indented(i, lastName(ancestors_[i]))
                         : indented(above, subdirectories_[i - above].name);
    });
    list_.select(static_cast<int>(above) - 1, true);
}
