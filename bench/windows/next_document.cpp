// From one document of the pass to the next, drawing included, with a CAD application that
// answers at once.

#include "ports/files.h"
#include "rows.h"
#include "sample_tree.h"
#include "stage.h"
#include "tracking/tracking_ids.h"
#include "tracking/tracking_window.h"
#include "worklist/list_file.h"

namespace {

/// A list half of which is done.
std::string halfDone(int count) {
    std::string text;
    for (const std::wstring& path : samplePaths(count)) appendFreshLine(text, path);
    std::size_t line = 0;
    for (int i = 0; i < count / 2; ++i) {
        text[line] = '1';
        line = text.find('\n', line) + 1;
    }
    return text;
}

Comparison compareNext(const Setting& setting, int count) {
    Stage stage({}, (setting.directory / "next.lst").wstring());
    stage.platform.files.replace(stage.files.list,
                                 [&](const ByteSink& file) { file(halfDone(count)); });
    TrackingWindow form(stage.platform, stage.places, stage.cad, stage.files);
    form.Form_Load(TrackingWindow::Origin::Launched);
    form.window().show();
    HWND list = controlOf(IDC_FORM3_LIST1);
    HWND window = GetAncestor(list, GA_ROOT);
    drawNow(window);

    const auto floor = [&] {
        RedrawWindow(list, nullptr, nullptr,
                     RDW_FRAME | RDW_INVALIDATE | RDW_ERASE | RDW_UPDATENOW);
    };
    const auto subject = [&] {
        form.CmdSuivQuitter_Click();
        drawNow(window);
    };
    const Comparison result = compare(setting.rounds, {floor}, {subject});
    require(form.pass().list().lines[count / 2].code == LineState::Seen, "documents passed");
    return result;
}

}  // namespace

Row nextDocument(const Setting& setting) {
    Row row{.work = "next document, without the CAD calls",
            .floor = "one repaint of the list with its scroll bars",
            .ratios = {},
            .goal = "<= 2.00",
            .limit = 2};
    for (const int size : setting.sizes) {
        const Comparison compared = compareNext(setting, size);
        row.ratios[size] = row.judged = compared.ratio;
        row.note = "floor " + milliseconds(compared.floorMilliseconds);
    }
    return row;
}
