#include "selection/document_import.h"

#include <algorithm>
#include <chrono>
#include <memory>
#include <optional>
#include <set>
#include <thread>
#include <utility>

#include "common/letter_case.h"
#include "common/numbers.h"
#include "common/runtime_error.h"
#include "common/utf8.h"
#include "pickers/in_parallel.h"
#include "pickers/paths.h"
#include "pickers/tree_walk.h"
#include "ports/files.h"
#include "selection/document_lines.h"
#include "selection/document_search.h"

namespace {

constexpr std::size_t kTold = 5;
/// Lists are far smaller.
constexpr std::uint64_t kLargestFile = 16U << 20;
/// More lines than that name more documents than a list can hold, whichever of them are there.
constexpr std::size_t kMostLines = 100'000;

constexpr wchar_t kAllKinds[] = L"SLDPRT SLDASM SLDDRW";

/// Why a file can't be imported.
struct ImportProblem {
    std::wstring text;
};

ImportProblem tooManyDocuments() {
    return {L"Il y a plus de " + decimal(FoundDocuments::kCapacity) +
            L" documents : une liste n'en contient pas plus."};
}

bool endsWith(const std::wstring& path, const wchar_t* ending) {
    return upperCase(path).ends_with(ending);
}

bool isListFile(const std::wstring& path) { return endsWith(path, L".LST"); }

bool namesDocuments(const std::wstring& path) {
    return isListFile(path) || endsWith(path, L".CSV") || endsWith(path, L".TXT");
}

/// What a file says, in UTF-8.
struct FileText {
    std::string utf8;
    std::wstring problem;
};

FileText textOf(Files& files, const std::wstring& file) {
    if (files.sizeOf(file) > kLargestFile) return {"", L"Il est trop grand : 16 Mo au plus."};
    FileText text{files.read(file), L""};
    if (text.utf8.find('\0') != std::string::npos) {
        text.problem =
            L"Ce n'est pas un texte. D'un tableur, enregistrez la feuille au format CSV.";
    }
    return text;
}

/// Another program may hold a file for a moment: a scanner, or the one that has just written it.
FileText textAfterAMoment(Files& files, const std::wstring& file) {
    constexpr std::chrono::milliseconds kMoment(300);
    for (int attempts = 3;; --attempts) {
        try {
            return textOf(files, file);
        } catch (const RuntimeError& error) {
            const bool mayPass = error.number == 70 || error.number == 75;
            if (!mayPass || attempts == 1) throw;
            std::this_thread::sleep_for(kMoment);
        }
    }
}

Presence presenceOf(Files& files, const std::wstring& path) {
    try {
        switch (files.kindOf(path)) {
            case PathKind::File:
                return Presence::There;
            case PathKind::Directory:
                return Presence::NoDocument;
            default:
                return Presence::NotFound;
        }
    } catch (const RuntimeError&) {
        return Presence::OutOfReach;
    }
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
    const End end = unlessRefused([&] {
        return std::ranges::all_of(
            paths, [&](const std::wstring& path) { return takeDropped(path, progress); });
    });
    if (end == End::Interrupted) {
        std::erase_if(lines_, [&](const Line& line) {
            return named_[line.document].presence != Presence::There;
        });
        settle();
    }
    return end;
}

bool DocumentImport::takeDropped(const std::wstring& path, const Progress& progress) {
    ownServers_.push_back(serverOf(path));
    if (DocumentKinds(kAllKinds).accepts(path)) {
        add(path, path, Presence::Unknown);
        return true;
    }
    const auto kind = std::make_shared<PathKind>();
    const auto ask = [&files = services_.files, kind, path](std::size_t) {
        *kind = files.kindOf(path);
    };
    if (!inParallel(services_, 1, ask)) return false;
    if (*kind == PathKind::Directory) return takeDirectory(path, progress);
    if (namesDocuments(path)) return takeFile(path);
    leaveOut(place_++, path, Presence::NoDocument);
    return true;
}

bool DocumentImport::takeDirectory(const std::wstring& directory, const Progress& progress) {
    const WalkEnd end = walkTree(
        services_, reportedPath(directory), true,
        [kinds = DocumentKinds(kAllKinds)](std::wstring_view name) { return kinds.accepts(name); },
        [&](const std::wstring& path, const std::vector<std::wstring>& names) {
            for (const std::wstring& name : names) {
                add(name, childPath(path, name), Presence::There);
            }
            progress(static_cast<int>(lines_.size()));
        });
    return end == WalkEnd::Complete;
}

bool DocumentImport::takeFile(const std::wstring& file) {
    const auto text = std::make_shared<FileText>();
    const auto read = [&files = services_.files, text, file](std::size_t) {
        *text = textAfterAMoment(files, file);
    };
    if (!inParallel(services_, 1, read)) return false;
    if (!text->problem.empty()) throw ImportProblem{text->problem};
    ownServers_.push_back(serverOf(file));
    takeLines(text->utf8, file);
    return true;
}

void DocumentImport::takeLines(const std::string& utf8, const std::wstring& file) {
    const std::wstring directory = parentPath(file);
    const auto readLines = isListFile(file) ? readListLines : readTable;
    readLines(utf8, [&](const DocumentLine& line) {
        constexpr std::size_t kShown = 200;
        const std::wstring text = wideText(line.text);
        const auto path = line.namesDocument ? resolvedPath(directory, text) : std::nullopt;
        if (path) return add(text, *path, Presence::Unknown);
        leaveOut(place_++, text.substr(0, kShown),
                 line.namesDocument ? Presence::NotFound : Presence::NoDocument);
    });
}

void DocumentImport::add(const std::wstring& text, const std::wstring& path, Presence presence) {
    if (lines_.size() == kMostLines) throw tooManyDocuments();
    const auto [known, isNew] = numbers_.try_emplace(upperCase(path), named_.size());
    if (isNew) named_.push_back({path, presence});
    // What was found below a directory is there, whoever named it before.
    Document& document = named_[known->second];
    if (presence == Presence::There) document.presence = presence;
    lines_.push_back({place_++, text, known->second});
}

void DocumentImport::leaveOut(int place, const std::wstring& text, Presence why) {
    auto& first = remains_.first;
    ++remains_.leftOut;
    const auto isAfter = [&](const ImportRemains::Line& line) { return line.place > place; };
    first.insert(std::ranges::find_if(first, isAfter), {place, text, why});
    if (first.size() > kTold) first.pop_back();
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
        // Twice at what couldn't be told: a server may be away for a moment.
        for (const Presence still : {Presence::Unknown, Presence::OutOfReach}) {
            if (!lookAtThose(still)) return false;
        }
        settle();
        if (std::ssize(documents_) > FoundDocuments::kCapacity) throw tooManyDocuments();
        return true;
    });
}

bool DocumentImport::lookAtThose(Presence still) {
    struct Looks {
        std::vector<std::wstring> paths;
        std::vector<Presence> answers;
    };
    const auto looks = std::make_shared<Looks>();
    std::vector<Document*> documents;
    for (Document& document : named_) {
        if (document.presence != still) continue;
        documents.push_back(&document);
        looks->paths.push_back(document.path);
    }
    looks->answers.resize(documents.size());
    const auto ask = [&files = services_.files, looks](std::size_t number) {
        looks->answers[number] = presenceOf(files, looks->paths[number]);
    };
    if (!inParallel(services_, documents.size(), ask)) return false;
    for (std::size_t i = 0; i < documents.size(); ++i) documents[i]->presence = looks->answers[i];
    return true;
}

void DocumentImport::settle() {
    for (const Line& line : lines_) {
        Document& document = named_[line.document];
        if (document.presence != Presence::There) {
            leaveOut(line.place, line.text, document.presence);
        } else if (!std::exchange(document.listed, true)) {
            documents_.push_back(document.path);
        } else {
            ++remains_.repeated;
        }
    }
}
