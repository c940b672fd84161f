#include "fakes/fake_files.h"

#include "common/encoding.h"
#include "rules/windows_files.h"

static std::wstring withoutTrailingBackslash(std::wstring path) {
    while (!path.empty() && path.back() == L'\\') path.pop_back();
    return path;
}

/// The name right below `directory` that leads to `path`, empty when it does not.
static std::wstring nameBelow(const std::wstring& directory, const std::wstring& path) {
    const std::wstring prefix = directory + L'\\';
    if (!path.starts_with(prefix) || path.size() == prefix.size()) return {};
    return path.substr(prefix.size(), path.find(L'\\', prefix.size()) - prefix.size());
}

std::string FakeFiles::readBytes(const std::wstring& path) {
    const auto file = texts.find(path);
    if (file == texts.end()) throw errors::fileNotFound(path);
    std::string utf8;
    appendUtf8(utf8, file->second);
    return utf8;
}

void FakeFiles::attempt(const std::wstring& path) {
    int& times = failing[path];
    if (times == 0 || wellFor-- > 0) return;
    --times;
    throw errors::fileAccess(path);
}

void FakeFiles::replace(const std::wstring& path, const WriteContent& write) {
    attempt(path);
    if (unreadable.contains(path)) throw errors::fileAccess(path);
    std::string text;
    write([&](std::string_view piece) { text += piece; });
    texts[path] = wideText(text);
}

std::uint64_t FakeFiles::sizeOf(const std::wstring& path) {
    attempt(path);
    return readBytes(path).size();
}

PathKind FakeFiles::kindOf(const std::wstring& path) {
    beforeEach(path);
    attempt(path);
    if (texts.contains(path)) return PathKind::File;
    return exists(withoutTrailingBackslash(path)) ? PathKind::Directory : PathKind::Nothing;
}

void FakeFiles::keepCopy(const std::wstring& file, const std::wstring& copy) {
    const std::string bytes = read(file);
    replace(copy, [&](const ByteSink& sink) { sink(bytes); });
}

void FakeFiles::remove(const std::wstring& file) {
    attempt(file);
    if (texts.erase(file) == 0) throw errors::fileNotFound(file);
}

std::wstring FakeFiles::resolved(std::wstring path) const {
    path = withoutTrailingBackslash(std::move(path));
    for (bool changed = true; changed;) {
        changed = false;
        for (const auto& [link, target] : links) {
            if (path == link || path.starts_with(link + L'\\')) {
                path = target + path.substr(link.size());
                changed = true;
            }
        }
    }
    return path;
}

std::map<std::wstring, bool> FakeFiles::below(const std::wstring& directory) const {
    std::map<std::wstring, bool> names;
    const auto note = [&](const std::wstring& path, bool isDirectory) {
        const std::wstring name = nameBelow(directory, path);
        if (name.empty()) return;
        names[name] |= isDirectory || path.size() > directory.size() + 1 + name.size();
    };
    for (const auto& [path, text] : texts) note(path, false);
    for (const auto& path : directories) note(path, true);
    for (const auto& [path, target] : links) note(path, true);
    return names;
}

bool FakeFiles::exists(const std::wstring& directory) const {
    return directory.size() == 2 || directories.contains(directory) || !below(directory).empty();
}

void FakeFiles::visit(const std::wstring& directory,
                      const std::function<void(const DirectoryEntry&)>& visitor) {
    beforeEach(directory);
    const std::wstring where = resolved(directory);
    {
        const std::scoped_lock lock(counting);
        ++visits[withoutTrailingBackslash(directory)];
    }
    if (unreadable.contains(where)) throw errors::permissionDenied(directory);
    if (!exists(where)) throw errors::pathNotFound(directory);

    for (const auto& [name, isDirectory] : below(where)) {
        const std::wstring path = where + L'\\' + name;
        const auto given = attributes.find(path);
        std::uint32_t bits = given == attributes.end() ? 0 : given->second;
        if (isDirectory) bits |= attribute::kDirectory;
        if (links.contains(path)) bits |= attribute::kReparsePoint;
        visitor(directoryEntry(name, bits, kMountPointTag));
    }
}

DirectoryId FakeFiles::identify(const std::wstring& directory) {
    beforeEach(directory);
    const std::wstring where = resolved(directory);
    if (!exists(where)) throw errors::pathNotFound(directory);
    return {.volume = std::hash<std::wstring>()(where), .file = {}};
}

std::wstring FakeFiles::currentDirectory(wchar_t drive) {
    const auto known = currentDirectories.find(drive);
    return known == currentDirectories.end() ? std::wstring(1, drive) + L":\\" : known->second;
}
