#include "pickers/tree_walk.h"

#include <atomic>
#include <future>
#include <random>
#include <thread>

#include "fakes/fake_files.h"
#include "fakes/fake_waiting.h"
#include "pickers/in_parallel.h"
#include "pickers/read_ahead.h"
#include "rules/windows_files.h"
#include "unit/unit_test.h"

/// What a walk comes by: each directory with the names in it, and how it ended.
using Log = Texts;

static bool isPart(std::wstring_view name) { return name.ends_with(L".SLDPRT"); }

static void note(Log& log, const std::wstring& directory, const Texts& names) {
    log.push_back(directory);
    log.insert(log.end(), names.begin(), names.end());
}

/// A thread for each job; all are waited for in the end.
struct JoiningWorkers : Workers {
    bool start(std::function<void()> job) override {
        const std::scoped_lock lock(mutex_);
        if (++started_ % refusedEach == 0 || started_ > most) return false;
        threads_.emplace_back(std::move(job));
        return true;
    }

    int refusedEach = 1 << 30;  ///< every so many starts there is no thread to be had
    int most = 1 << 30;

 private:
    std::mutex mutex_;
    int started_ = 0;
    std::vector<std::jthread> threads_;
};

struct RandomTree {
    explicit RandomTree(unsigned seed) {
        std::mt19937 random(seed);
        const auto below = [&](std::size_t limit) { return random() % limit; };
        const auto somewhere = [&] {
            const auto place = static_cast<std::ptrdiff_t>(below(files.directories.size()));
            return *std::next(files.directories.begin(), place);
        };
        files.directories.insert(L"c:\\r");
        for (int i = 0; i < 60; ++i) {
            std::wstring path = somewhere() + (below(2) ? L"\\A" : L"\\b");
            path += std::to_wstring(below(99));
            const bool isFile = below(4) == 0;
            isFile ? files.add({path + L".SLDPRT"}) : void(files.directories.insert(path));
            if (below(9) == 0) files.attributes[path] = attribute::kHidden | attribute::kSystem;
        }
        for (auto i = below(3); i > 0; --i) {
            const std::wstring link = somewhere() + L"\\lien" + std::to_wstring(i);
            files.links[link] = somewhere();
        }
        if (below(3) == 0) files.links[somewhere() + L"\\vide"] = L"c:\\absent";
        if (below(2) == 0) files.unreadable.insert(somewhere());
        failingVisit = below(2) == 0 ? static_cast<int>(below(100)) : -1;
    }

    FakeFiles files;
    int failingVisit;  ///< the visitor raises 9 there
};

/// Polls with a generous limit; whether it came.
static bool comes(const std::function<bool()>& what) {
    const auto limit = std::chrono::steady_clock::now() + std::chrono::seconds(10);
    while (!what() && std::chrono::steady_clock::now() < limit) std::this_thread::yield();
    return what();
}

struct TreeWalk : testing::Test {
    /// All workers are waited for.
    WalkEnd walk(Workers& workers) {
        return walkTree(
            {files, workers, watch}, L"c:\\r", true, isPart,
            [&](const auto& directory, const auto& names) { note(log, directory, names); });
    }

    Log log;
    FakeFiles files;
    FakeSearchWatch watch;
};

TEST(TreeWalks, MeetWhatOneThreadMeetsAndFailWhereItFails) {
    for (unsigned seed = 0; seed < 200; ++seed) {
        RandomTree tree(seed);
        const auto logWith = [&](Workers& workers) {
            Log log;
            FakeSearchWatch watch;
            int left = tree.failingVisit;
            const auto visit = [&](const std::wstring& directory, const Texts& names) {
                note(log, directory, names);
                if (left-- == 0) throw errors::subscriptOutOfRange();
            };
            const RuntimeError error = raisedError([&] {
                EXPECT_EQ(walkTree({tree.files, workers, watch}, L"c:\\r", true, isPart, visit),
                          WalkEnd::Complete);
            });
            log.push_back(std::to_wstring(error.number) + error.text);
            return log;
        };
        NoWorkers alone;
        const Log expected = logWith(alone);
        tree.files.beforeEach = [&](const std::wstring& directory) {
            for (auto i = directory.size() * (seed % 7); i > 0; --i) std::this_thread::yield();
        };
        JoiningWorkers workers;
        workers.refusedEach = seed % 3 == 0 ? 1 + static_cast<int>(seed / 3) : 1 << 30;
        ASSERT_EQ(logWith(workers), expected) << "seed " << seed;
    }
}

TEST_F(TreeWalk, EndsWhenItIsToldAlthoughAServerDoesNotAnswer) {
    files.add({L"c:\\r\\a\\1.SLDPRT", L"c:\\r\\b\\2.SLDPRT", L"c:\\r\\mort\\3.SLDPRT",
               L"c:\\r\\z\\4.SLDPRT"});
    for (const bool asLink : {false, true}) {
        files.links.clear();
        if (asLink) files.links[L"c:\\r\\mort"] = L"c:\\r\\z";
        // A std::latch of GCC for Windows may miss its end for good.
        std::promise<void> answer;
        const auto answered = answer.get_future().share();
        std::atomic<bool> asked = false;
        files.beforeEach = [&](const std::wstring& directory) {
            if (directory != L"c:\\r\\mort") return;
            asked = true;
            answered.wait();
        };
        watch.goesOn = [&] { return !asked; };
        log.clear();
        JoiningWorkers hanging;
        EXPECT_EQ(walk(hanging), WalkEnd::Interrupted);
        answer.set_value();
        // As far as it came; the workers may have asked before the walk had come that far.
        Log all = {L"c:\\r", L"c:\\r\\a", L"1.SLDPRT", L"c:\\r\\b", L"2.SLDPRT"};
        all.resize(std::min(log.size(), all.size()));
        EXPECT_EQ(log, all);
    }
}

TEST_F(TreeWalk, ReadsWhatItWaitsForThoughAllThatReadAheadHang) {
    files.links[L"c:\\r\\lien"] = L"c:\\vif";
    files.add({L"c:\\vif\\1.SLDPRT"});
    for (int i = 0; i < 20; ++i) files.directories.insert(L"c:\\r\\mort" + std::to_wstring(i));
    std::promise<void> answer;
    const auto answered = answer.get_future().share();
    std::atomic<int> hanging = 0;
    files.beforeEach = [&](const std::wstring& directory) {
        if (directory.find(L"mort") != std::wstring::npos) {
            ++hanging;
            answered.wait();
        } else if (directory.ends_with(L"lien")) {
            comes([&] { return hanging >= 8; });
        }
    };
    const auto limit = std::chrono::steady_clock::now() + std::chrono::seconds(10);
    watch.goesOn = [&] { return log.size() < 3 && std::chrono::steady_clock::now() < limit; };
    JoiningWorkers workers;
    EXPECT_EQ(walk(workers), WalkEnd::Interrupted);
    answer.set_value();
    EXPECT_EQ(log, (Log{L"c:\\r", L"c:\\r\\lien", L"1.SLDPRT"}));
}

TEST_F(TreeWalk, LetsOthersReadWhileItIdentifiesALinkItself) {
    files.links[L"c:\\r\\lien"] = L"c:\\vif";
    files.add({L"c:\\vif\\1.SLDPRT", L"c:\\r\\z1\\2.SLDPRT", L"c:\\r\\z2\\3.SLDPRT"});
    std::atomic<bool> identifying = false;
    std::atomic<bool> bothRead = false;
    bool wentOn = false;
    files.beforeEach = [&](const std::wstring& directory) {
        if (directory.ends_with(L"z1")) comes([&] { return identifying.load(); });
        if (directory.ends_with(L"z2")) bothRead = true;
        if (!directory.ends_with(L"lien") || identifying.exchange(true)) return;
        wentOn = comes([&] { return bothRead.load(); });
    };
    JoiningWorkers workers;
    workers.most = 1;
    EXPECT_EQ(walk(workers), WalkEnd::Complete);
    EXPECT_TRUE(wentOn);
}

TEST(InParallel, DoesEachJobOnceAndTellsOfTheFirstThatFails) {
    FakeFiles files;
    FakeSearchWatch watch;
    for (const int most : {0, 3, 100}) {
        JoiningWorkers workers;
        workers.most = most;
        std::vector<int> times(500);
        EXPECT_TRUE(inParallel({files, workers, watch}, times.size(),
                               [&](std::size_t number) { ++times[number]; }));
        EXPECT_EQ(times, std::vector<int>(500, 1));
        const auto fail = [](std::size_t number) {
            if (number == 7) throw errors::fileNotFound(L"x");
        };
        EXPECT_EQ(raised([&] { (void)inParallel({files, workers, watch}, 500, fail); }), 53);
    }
}

/// Reads a directory: these are in it, those that end with an arrow as links.
static void read(ReadingPlan& plan, TreeDirectory& directory, const Texts& names) {
    auto& below = directory.contents.subdirectories;
    for (const std::wstring& name : names) below.push_back({name, name.ends_with(L'>')});
    plan.finish(directory);
}

static TreeDirectory& next(ReadingPlan& plan, TreeDirectory* awaited = nullptr) {
    EXPECT_TRUE(plan.hasNext(awaited));
    return *plan.next(awaited);
}

TEST(ReadingPlan, ReadsFirstWhatTheWalkMeetsFirst) {
    ReadingPlan plan(L"c:\\r", true);
    read(plan, next(plan), {L"a", L"b", L"c>", L"d"});
    TreeDirectory& a = next(plan);
    TreeDirectory& b = next(plan);
    EXPECT_EQ(b.path, L"c:\\r\\b");
    read(plan, b, {L"b1", L"b2"});
    EXPECT_EQ(next(plan).path, L"c:\\r\\b\\b1");
    read(plan, a, {L"a1"});
    EXPECT_EQ(next(plan).path, L"c:\\r\\a\\a1");
    EXPECT_EQ(next(plan).path, L"c:\\r\\b\\b2");
    EXPECT_EQ(next(plan).path, L"c:\\r\\d");
    EXPECT_EQ(plan.next(nullptr), nullptr);
    // Links are read when the walk wants them.
    EXPECT_EQ(next(plan, &plan.subdirectory(plan.root(), 2)).path, L"c:\\r\\c>");
}

TEST(ReadingPlan, ThatIsFullLetsTheWalkCatchUpButReadsWhatItMeetsBefore) {
    for (const bool catchesUp : {true, false}) {
        ReadingPlan plan(L"c:\\r", true);
        read(plan, next(plan), Texts(3000, L"d"));
        plan.meet(plan.root());
        TreeDirectory& slow = next(plan);
        for (std::size_t i = 0; i < ReadingPlan::kMostWaiting; ++i) read(plan, next(plan), {});
        EXPECT_EQ(plan.next(nullptr), nullptr);
        read(plan, slow, catchesUp ? Texts() : Texts{L"a", L"b"});
        for (std::size_t i = 0; catchesUp && i <= ReadingPlan::kMostWaiting / 2; ++i) {
            EXPECT_EQ(plan.next(nullptr), nullptr);
            plan.meet(plan.subdirectory(plan.root(), i));
        }
        if (catchesUp) {
            EXPECT_EQ(next(plan).index, ReadingPlan::kMostWaiting + 1);
            continue;
        }
        plan.meet(slow);
        TreeDirectory& a = next(plan, &plan.subdirectory(slow, 0));
        EXPECT_EQ(a.path, L"c:\\r\\d\\a");
        EXPECT_EQ(next(plan).path, L"c:\\r\\d\\b");
        EXPECT_EQ(plan.next(&a), nullptr);
    }
}
