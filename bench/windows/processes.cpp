// Figures of whole processes: start, size, memory.

#include <windows.h>

#include <cstdint>
#include <psapi.h>

#include "driver/app_driver.h"
#include "driver/settings.h"
#include "driver/text.h"
#include "driver/trial_cad.h"
#include "driver/winapi.h"
#include "resume/existing_list_ids.h"
#include "rows.h"
#include "sample_tree.h"
#include "tracking/tracking_ids.h"
#include "worklist/list_display.h"
#include "worklist/list_file.h"

namespace {

using driver::Process;
using driver::Sandbox;
namespace fs = std::filesystem;

fs::path floorProgram() { return Sandbox::builtPrograms() / "bench-floor.exe"; }

bool showsWindow(const Process& process) {
    for (HWND window : driver::topLevelWindows(process.id())) {
        if (IsWindowVisible(window)) return true;
    }
    return false;
}

void waitForWindow(const Process& process) {
    while (!showsWindow(process)) {
        require(process.running(), "a program that shows a window");
        Sleep(1);
    }
}

/// The time until the first window is shown. The program is ended afterwards.
double startTime(const fs::path& program) {
    std::unique_ptr<Process> process;
    return timed({[&] {
        process =
            std::make_unique<Process>(program, std::vector<std::wstring>(), program.parent_path());
        waitForWindow(*process);
    }});
}

double privateBytes(DWORD processId) {
    HANDLE process = OpenProcess(PROCESS_QUERY_INFORMATION | PROCESS_VM_READ, FALSE, processId);
    PROCESS_MEMORY_COUNTERS memory{};
    require(K32GetProcessMemoryInfo(process, &memory, sizeof memory), "memory counters");
    CloseHandle(process);
    return static_cast<double>(memory.PagefileUsage);
}

double floorMemory(const fs::path& lines) {
    const Process process(floorProgram(), {lines.wstring()}, lines.parent_path());
    waitForWindow(process);
    return privateBytes(process.id());
}

/// A list file whose first line is a document that exists, and its lines as the window shows them.
void writeList(const Sandbox& sandbox, int count, const fs::path& linesFile) {
    std::vector<std::wstring> paths = samplePaths(count);
    paths.front() = driver::wide(sandbox.addDocument("piece.SLDPRT"));
    std::string text;
    std::wstring lines;
    for (const std::wstring& path : paths) {
        appendFreshLine(text, path);
        lines += displayLine(0, label::kToDo, path, 0) + L"\n";
    }
    sandbox.writeList(text);
    driver::writeFileBytes(
        linesFile, {reinterpret_cast<const char*>(lines.data()), lines.size() * sizeof(wchar_t)});
}

double programMemory(const Sandbox& sandbox) {
    driver::AppDriver app(sandbox);
    app.start();
    app.click(IDC_FORM2_CMDOK);
    app.waitForText(IDC_FORM3_TXTETAT,
                    driver::utf8((sandbox.documents() / "piece.SLDPRT").wstring()));
    DWORD id = 0;
    GetWindowThreadProcessId(app.window("Tarnwick - suivi du travail -"), &id);
    return privateBytes(id);
}

std::string kilobytes(double bytes) {
    return std::to_string(static_cast<std::int64_t>(bytes) / 1024) + " KB";
}

}  // namespace

Row start(const Setting& setting) {
    const Sandbox sandbox;
    const driver::Settings settings;
    driver::TrialCad trial(sandbox);
    trial.start({"--hidden"});
    const Comparison compared = compareTimes(
        setting.rounds, [] { return startTime(floorProgram()); },
        [&] { return startTime(sandbox.program()); });
    return {.work = "start to the first window shown",
            .floor = "bare dialog, list and 12 buttons",
            .ratios = {{0, compared.ratio}},
            .goal = "<= 1.30",
            .judged = compared.ratio,
            .limit = 1.30,
            .note = "floor " + milliseconds(compared.floorMilliseconds)};
}

Row programSize(const Setting&) {
    const auto floor = static_cast<double>(fs::file_size(floorProgram()));
    const auto size = static_cast<double>(fs::file_size(Sandbox::builtPrograms() / "tarnwick.exe"));
    return {.work = "size of tarnwick.exe",
            .floor = "bare dialog, list and 12 buttons",
            .ratios = {{0, size / floor}},
            .goal = "<= 640 KB",
            .judged = size,
            .limit = 640 * 1024,
            .note = kilobytes(size) + ", floor " + kilobytes(floor)};
}

Row memoryInUse(const Setting& setting) {
    Row row{.work = "private memory with a pass loaded",
            .floor = "bare dialog, the same list",
            .ratios = {},
            .goal = "<= 1.30",
            .limit = 1.30};
    const Sandbox sandbox;
    const driver::Settings settings;
    driver::TrialCad trial(sandbox);
    trial.start({"--hidden"});
    const fs::path lines = sandbox.directory() / "lines.txt";
    const Rounds few{.least = 1, .most = 1, .enoughMilliseconds = 0};
    for (const int size : setting.sizes) {
        writeList(sandbox, size, lines);
        const Comparison compared = compareTimes(
            few, [&] { return floorMemory(lines); }, [&] { return programMemory(sandbox); });
        row.ratios[size] = row.judged = compared.ratio;
        row.note = "floor " + kilobytes(compared.floorMilliseconds) + ", " +
                   kilobytes(compared.subjectMilliseconds);
    }
    return row;
}
