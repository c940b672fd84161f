#include "selection/document_import.h"

#include <algorithm>
#include <memory>
#include <optional>
#include <set>
#include <utility>

#include "common/runtime_error.h"
#include "common/text.h"
#include "pickers/in_parallel.h"
#include "pickers/paths.h"
#include "pickers/tree_walk.h"
#include "ports/files.h"
#include "selection/document_search.h"
#include "selection/imported_file.h"

namespace {

constexpr std::size_t kCapacity = FoundDocuments::kCapacity;
constexpr wchar_t kAllKinds[] = L"SLDPRT SLDASM SLDDRW";

Presence presenceOf(Files& files, const std::wstring& path) {
    try {
        switch (files.kindOf(path)) {
            case PathKind::File:
                return Presence::There;
            case PathKind::Directory:
                return Presence::Directory;
            default:
                return Presence::NotFound;
        }
    } catch (const RuntimeError&) {
        // Windows doesn't say what a share is (the GetFileAttributes function).
        return parentPath(path) == path ? Presence::Directory : Presence::OutOfReach;
    }
}

/// Shared with the jobs that look: one that hangs may answer after the import has been given up.
struct Looks {
    std::vector<std::wstring> paths;
    std::vector<Presence> answers = std::vector<Presence>(paths.size(), Presence::OutOfReach);

    bool allAnswered() const {
        return std::ranges::find(answers, Presence::OutOfReach) == answers.end();
    }
};

/// Looks what each path leads to; null when the watch ends that.
std::shared_ptr<Looks> lookFor(const SearchServices& services, std::vector<std::wstring> paths) {
    auto looks = std::make_shared<Looks>(Looks{std::move(paths)});
    const auto ask = [&files = services.files, looks](std::size_t number) {
        Presence& answer = looks->answers[number];
        if (answer == Presence::OutOfReach) answer = presenceOf(files, looks->paths[number]);
    };
    // A second time for those out of reach: a server may be away for a moment.
    for (int times = 0; times < 2 && !looks->allAnswered(); ++times) {
        if (!inParallel(services, looks->paths.size(), ask)) return nullptr;
    }
    return looks;
}

}  // namespace

template <class Action>
DocumentImport::End DocumentImport::unlessRefused(const Action& action) {
    try {
        return action() ? End::Complete : End::Interrupted;
    } catch (const ImportProblem& problem) {
        problem_ = problem.text;
    } catch (const RuntimeError& error) {
        problem_ = error.text;
    }
    return End::Refused;
}

DocumentImport::End DocumentImport::gatherFile(const std::wstring& file) {
    return unlessRefused([&] { return takeFile(file); });
}

DocumentImport::End DocumentImport::gatherDropped(const std::vector<std::wstring>& paths,
                                                  const Progress& progress) {
    bool searches = false;
    const End end = unlessRefused([&] {
        const auto looks = lookFor(services_, paths);
        if (!looks) return false;
        for (std::size_t i = 0; i < paths.size(); ++i) {
            searches |= looks->answers[i] == Presence::Directory;
            if (!takeDropped(paths[i], looks->answers[i], progress)) return false;
        }
        return true;
    });
    if (end == End::Interrupted && searches) {
        std::erase_if(lines_, [&](const Line& line) {
            return named_[line.document].presence != Presence::There;
        });
        settle();
        // The list is incomplete anyway, so it takes what it can hold.
        if (documents_.size() > kCapacity) documents_.resize(kCapacity);
    }
    return end;
}

bool DocumentImport::takeDropped(const std::wstring& path, Presence presence,
                                 const Progress& progress) {
    ownServers_.push_back(serverOf(path));
    if (presence == Presence::Directory) return takeDirectory(path, progress);
    if (mayNameDocuments(path)) return takeFile(path);
    if (DocumentKinds(kAllKinds).accepts(path)) {
        add(place_++, path, path, presence);
    } else {
        leaveOut(place_++, path, presence == Presence::There ? Presence::NoDocument : presence);
    }
    return true;
}

bool DocumentImport::takeDirectory(const std::wstring& directory, const Progress& progress) {
    const WalkEnd end = walkTree(
        services_, reportedPath(directory), true,
        [kinds = DocumentKinds(kAllKinds)](std::wstring_view name) { return kinds.accepts(name); },
        [&](const std::wstring& path, const std::vector<std::wstring>& names) {
            for (const std::wstring& name : names) {
                add(place_++, name, childPath(path, name), Presence::There);
            }
            progress(static_cast<int>(lines_.size()));
        });
    return end == WalkEnd::Complete;
}

bool DocumentImport::takeFile(const std::wstring& file) {
    const auto found = std::make_shared<FileLines>();
    const auto read = [&files = services_.files, found, file](std::size_t) {
        *found = linesOf(files, file);
    };
    if (!inParallel(services_, 1, read)) return false;
    if (found->problem) throw *found->problem;
    ownServers_.push_back(serverOf(file));
    reserve(found->lines.size());
    for (FileLines::Line& line : found->lines) {
        const int place = place_ + line.place;
        if (line.path) {
            add(place, std::move(line.text), std::move(*line.path), Presence::Unknown);
        } else {
            const auto why = line.namesDocument ? Presence::NotFound : Presence::NoDocument;
            leaveOut(place, line.text, why);
        }
    }
    remains_.leftOut += std::max(0, found->nameless - FileLines::kTold);
    place_ += found->count;
    return true;
}

void DocumentImport::reserve(std::size_t more) {
    lines_.reserve(lines_.size() + more);
    named_.reserve(named_.size() + more);
    numbers_.reserve(numbers_.size() + more);
}

void DocumentImport::add(int place, std::wstring text, std::wstring path, Presence presence) {
    if (lines_.size() == FileLines::kMost) throw tooManyDocuments();
    const auto [known, isNew] = numbers_.try_emplace(upperCase(path), named_.size());
    if (isNew) named_.push_back({std::move(path), presence});
    // What was found below a directory exists, even if a line named it before.
    if (presence == Presence::There) named_[known->second].presence = presence;
    lines_.push_back({place, std::move(text), known->second});
}

void DocumentImport::leaveOut(int place, const std::wstring& text, Presence why) {
    auto& first = remains_.first;
    ++remains_.leftOut;
    const auto isAfter = [&](const ImportRemains::Line& line) { return line.place > place; };
    const auto where = std::ranges::find_if(first, isAfter);
    if (where == first.end() && std::ssize(first) == FileLines::kTold) return;
    first.insert(where, {place, text, why});
    if (std::ssize(first) > FileLines::kTold) first.pop_back();
}

std::vector<std::wstring> DocumentImport::foreignServers() const {
    std::set<std::wstring> servers;
    for (const Document& document : named_) {
        const bool isOnServer = document.path.starts_with(L'\\');
        if (isOnServer && document.presence == Presence::Unknown) {
            servers.insert(serverOf(document.path));
        }
    }
    for (const std::wstring& own : ownServers_) servers.erase(own);
    if (servers.empty()) return {};
    for (const std::wstring& share : services_.files.sharesOfDrives()) {
        servers.erase(serverOf(share));
    }
    return {servers.begin(), servers.end()};
}

void DocumentImport::leaveOutServers(const std::vector<std::wstring>& servers) {
    for (Document& document : named_) {
        if (document.presence != Presence::Unknown) continue;
        const bool isTheirs = std::ranges::find(servers, serverOf(document.path)) != servers.end();
        if (isTheirs) document.presence = Presence::Refused;
    }
}

DocumentImport::End DocumentImport::look() {
    return unlessRefused([&] {
        if (!lookAtUnknown()) return false;
        settle();
        if (documents_.size() > kCapacity) throw tooManyDocuments();
        return true;
    });
}

bool DocumentImport::lookAtUnknown() {
    std::vector<Document*> documents;
    std::vector<std::wstring> paths;
    for (Document& document : named_) {
        if (document.presence != Presence::Unknown) continue;
        documents.push_back(&document);
        paths.push_back(std::move(document.path));
    }
    const auto looks = lookFor(services_, std::move(paths));
    if (!looks) return false;
    for (std::size_t i = 0; i < documents.size(); ++i) {
        documents[i]->path = std::move(looks->paths[i]);
        documents[i]->presence = looks->answers[i];
    }
    return true;
}

void DocumentImport::settle() {
    documents_.reserve(lines_.size());
    for (const Line& line : lines_) {
        Document& document = named_[line.document];
        if (document.presence != Presence::There) {
            leaveOut(line.place, line.text, document.presence);
        } else if (!std::exchange(document.listed, true)) {
            documents_.push_back(std::move(document.path));
        } else {
            ++remains_.repeated;
        }
    }
}
