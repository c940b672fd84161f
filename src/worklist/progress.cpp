#include "worklist/progress.h"

#include "worklist/work_list.h"

PassProgress passProgress(const WorkList& list) {
    PassProgress progress{0, list.lineCount()};
    bool inProgress = false;
    for (int i = 0; i <= list.last; ++i) {
        const std::string_view code = list.lines[i].code;
        inProgress = inProgress || code == state::kInProgress;
        if (code == state::kDone || code == state::kSeen) ++progress.done;
    }
    return inProgress ? progress : PassProgress{};
}
