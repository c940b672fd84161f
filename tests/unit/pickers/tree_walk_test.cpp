#include "pickers/tree_walk.h"

#include <atomic>
#include <gtest/gtest.h>
#include <latch>
#include <random>

#include "common/runtime_error.h"
#include "fakes/fake_files.h"
#include "fakes/fake_patience.h"
#include "fakes/joining_workers.h"
#include "pickers/open_directories.h"

namespace {

/// What a walk comes by: each directory with the names in it, and how it ended.
using Log = std::vector<std::wstring>;

bool isPart(std::wstring_view name) { return name.ends_with(L".SLDPRT"); }

void note(Log& log, const std::wstring& directory, const std::vector<std::wstring>& names) {
    log.push_back(directory);
    log.insert(log.end(), names.begin(), names.end());
}

template <class Walk>
Log logOf(const Walk& walk) {
    Log log;
    try {
        walk(log);
    } catch (const RuntimeError& error) {
        log.push_back(std::to_wstring(error.number) + error.text);
    }
    return log;
}

/// The walk as it is meant, one directory after the other.
class PlainWalk {
 public:
    PlainWalk(Files& files, const DirectoryVisitor& visit)
        : files_(files), visit_(visit), open_(files) {}

    void run(const std::wstring& directory) {
        const DirectoryContents contents = listContents(files_, directory, isPart);
        visit_(directory, contents.files);
        open_.enter(directory);
        for (const Subdirectory& below : contents.subdirectories) {
            const std::wstring path = childPath(directory, below.name);
            if (!below.isLink || !open_.leadsBack(path)) run(path);
        }
        open_.leave();
    }

 private:
    Files& files_;
    const DirectoryVisitor& visit_;
    OpenDirectories open_;
};

/// Passes everything on to other files, some of it late.
struct PassedOn : Files {
    explicit PassedOn(Files& theFiles) : files(theFiles) {}

    Files& files;
    std::function<void(const std::wstring& directory)> before = [](const std::wstring&) {};

    std::string readBytes(const std::wstring& path) override { return files.readBytes(path); }
    void replace(const std::wstring& path, const WriteContent& write) override {
        files.replace(path, write);
    }
    PathKind kindOf(const std::wstring& path) override { return files.kindOf(path); }
    void keepCopy(const std::wstring& file, const std::wstring& copy) override {
        files.keepCopy(file, copy);
    }
    void remove(const std::wstring& file) override { files.remove(file); }
    void visit(const std::wstring& directory,
               const std::function<void(const DirectoryEntry&)>& visitor) override {
        before(directory);
        files.visit(directory, visitor);
    }
    DirectoryId identify(const std::wstring& directory) override {
        before(directory);
        return files.identify(directory);
    }
    std::vector<wchar_t> drives() override { return files.drives(); }
    std::wstring currentDirectory(wchar_t drive) override { return files.currentDirectory(drive); }
};

class RandomTree {
 public:
    explicit RandomTree(unsigned seed) : random_(seed) {
        files.directories.insert(L"c:\\r");
        for (int i = 0; i < 60; ++i) addSomething();
        for (int i = below(3); i > 0; --i)
            files.links[somewhere() + L"\\lien" + decimal(i)] = somewhere();
        if (below(3) == 0) files.links[somewhere() + L"\\vide"] = L"c:\\absent";
        if (below(2) == 0) files.unreadable.insert(somewhere());
        failingVisit = below(2) == 0 ? below(100) : -1;
    }

    FakeFiles files;
    int failingVisit;  ///< the visitor raises 9 there

 private:
    static std::wstring decimal(int number) { return std::to_wstring(number); }
    int below(int limit) { return static_cast<int>(random_() % static_cast<unsigned>(limit)); }
    std::wstring somewhere() {
        return *std::next(files.directories.begin(),
                          below(static_cast<int>(files.directories.size())));
    }
    void addSomething() {
        const std::wstring path =
            somewhere() + L'\\' + (below(2) ? L"A" : L"b") + decimal(below(99));
        if (below(4) == 0) {
            files.add(path + L".SLDPRT");
        } else {
            files.directories.insert(path);
            if (below(9) == 0) files.attributes[path] = attribute::kHidden | attribute::kSystem;
        }
    }

    std::mt19937 random_;
};

class TreeWalk : public testing::Test {
 protected:
    /// All workers are waited for.
    WalkEnd walk(Files& walked, Log& log, bool deep = true) {
        JoiningWorkers workers;
        return walkTree(
            {walked, workers, patience}, L"c:\\r", deep, isPart,
            [&](const auto& directory, const auto& names) { note(log, directory, names); });
    }

    FakeFiles files;
    FakePatience patience;
};

}  // namespace

TEST(TreeWalks, MeetWhatAPlainWalkMeetsAndFailWhereItFails) {
    for (unsigned seed = 0; seed < 200; ++seed) {
        RandomTree tree(seed);
        const auto visitor = [&](Log& log) {
            return [&, left = tree.failingVisit](const std::wstring& directory,
                                                 const std::vector<std::wstring>& names) mutable {
                note(log, directory, names);
                if (left-- == 0) throw errors::subscriptOutOfRange();
            };
        };
        const Log plain = logOf([&](Log& log) {
            const DirectoryVisitor visit = visitor(log);
            PlainWalk(tree.files, visit).run(L"c:\\r");
        });
        PassedOn late(tree.files);
        late.before = [&](const std::wstring& directory) {
            std::this_thread::sleep_for(std::chrono::microseconds(directory.size() * (seed % 7)));
        };
        const Log ahead = logOf([&](Log& log) {
            FakePatience patience;
            JoiningWorkers workers;
            workers.refusedEach = seed % 3 == 0 ? 1 + static_cast<int>(seed / 3) : 1 << 30;
            EXPECT_EQ(walkTree({late, workers, patience}, L"c:\\r", true, isPart, visitor(log)),
                      WalkEnd::Complete);
        });
        ASSERT_EQ(ahead, plain) << "seed " << seed;
    }
}

TEST_F(TreeWalk, ReadsOneDirectoryAlone) {
    files.add(L"c:\\r\\a.SLDPRT");
    files.add(L"c:\\r\\sous\\b.SLDPRT");
    Log log;
    EXPECT_EQ(walk(files, log, false), WalkEnd::Complete);
    EXPECT_EQ(log, (Log{L"c:\\r", L"a.SLDPRT"}));
    EXPECT_EQ(files.visits, (std::map<std::wstring, int>{{L"c:\\r", 1}}));
}

TEST_F(TreeWalk, EndsWhenItIsToldAlthoughAServerDoesNotAnswer) {
    for (const wchar_t* name :
         {L"a\\1.SLDPRT", L"b\\2.SLDPRT", L"mort\\3.SLDPRT", L"z\\4.SLDPRT"}) {
        files.add(std::wstring(L"c:\\r\\") + name);
    }
    for (const bool asLink : {false, true}) {
        files.links.clear();
        if (asLink) files.links[L"c:\\r\\mort"] = L"c:\\r\\z";
        std::latch answer(1);
        std::atomic<bool> asked = false;
        PassedOn server(files);
        server.before = [&](const std::wstring& directory) {
            if (directory != L"c:\\r\\mort") return;
            asked = true;
            answer.wait();
        };
        patience.goesOn = [&] { return !asked; };
        Log log;
        JoiningWorkers hanging;
        const auto visitor = [&](const auto& directory, const auto& names) {
            note(log, directory, names);
        };
        EXPECT_EQ(walkTree({server, hanging, patience}, L"c:\\r", true, isPart, visitor),
                  WalkEnd::Interrupted);
        answer.count_down();
        // As far as it came; the workers may have asked before the walk had come that far.
        const Log all = {L"c:\\r", L"c:\\r\\a", L"1.SLDPRT", L"c:\\r\\b", L"2.SLDPRT"};
        ASSERT_LE(log.size(), all.size());
        EXPECT_TRUE(std::equal(log.begin(), log.end(), all.begin()));
    }
}

TEST_F(TreeWalk, LetsThroughWhatThePatienceRaises) {
    files.add(L"c:\\r\\a.SLDPRT");
    patience.goesOn = []() -> bool { throw ProgramEnd{}; };
    PassedOn late(files);
    late.before = [](const std::wstring&) {
        std::this_thread::sleep_for(std::chrono::milliseconds(1));
    };
    Log log;
    EXPECT_THROW(walk(late, log), ProgramEnd);
}
