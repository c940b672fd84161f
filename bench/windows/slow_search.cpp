// The search of a slow file server, read ahead, and one directory after another.

#include <windows.h>

#include <algorithm>

#include "rows.h"
#include "sample_tree.h"
#include "selection/document_search.h"
#include "stage.h"
#include "win32/files/win_files.h"
#include "win32/window/waiting.h"

namespace {

/// Each directory answers after three milliseconds.
struct SlowFiles : WinFiles {
    void visit(const std::wstring& directory,
               const std::function<void(const DirectoryEntry&)>& visitor) override {
        Sleep(3);
        WinFiles::visit(directory, visitor);
    }
};

}  // namespace

Row searchOfSlowServer(const Setting& setting) {
    const int documents = std::min(800, setting.sizes.back());
    const std::wstring tree = documentTree(setting.directory, documents).wstring();
    SlowFiles files;
    Judge judge(doubleClickLimits(), [] { return Moment{GetTickCount64()}; });
    WinSearchWatch watch(judge);
    const NoEvents window;
    const auto search = [&](Workers& workers) {
        const Searching searching(watch, window, SearchKind::Documents);
        FoundDocuments found;
        found.restart(true);
        DocumentSearch({files, workers, watch}, found,
                       DocumentKinds(L"*.SLDPRT ; *.SLDASM ; *.SLDDRW"), [](int) {})
            .run(tree, true);
        require(found.count() == documents, "all documents found");
    };
    NoWorkers alone;
    PoolWorkers pool;
    const Rounds few{
        .least = std::min(3, setting.rounds.least), .most = 3, .enoughMilliseconds = 0};
    const Comparison compared = compare(few, {[&] { search(alone); }}, {[&] { search(pool); }});
    return {.work = std::to_string(documents * 5 / 2) +
                    " directories that answer after 3 ms, read ahead",
            .floor = "one after the other",
            .ratios = {{0, compared.ratio}},
            .goal = "<= 0.20",
            .judged = compared.ratio,
            .limit = 0.20,
            .note = "floor " + milliseconds(compared.floorMilliseconds)};
}
