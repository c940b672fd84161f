#pragma once

#include <functional>
#include <utility>

#include "input/event_gate.h"
#include "input/judge.h"
#include "ports/machine.h"
#include "rules/late_binding.h"
#include "rules/patience.h"
#include "win32/files/win_files.h"
#include "win32/files/win_written_files.h"
#include "win32/process/win_list_holds.h"
#include "win32/process/win_machine.h"
#include "win32/window/dialog_window.h"
#include "win32/window/message_deed.h"
#include "win32/window/message_loop.h"
#include "win32/window/questions.h"
#include "win32/window/waiting.h"

/// Where events come in. It is made first, so that whatever fails afterwards becomes a box.
struct Entrance {
    Judge judge{doubleClickLimits(), [] { return Moment{GetTickCount64()}; }};
    WinGateKeeper keeper{judge};
    WinMessageBoxes boxes{judge};
    EventGate gate{keeper, boxes, judge};
};

/// All that the program needs of Windows, put together. The CAD application and the desktop are
/// passed in, since the bench has its own.
struct Machine {
    Machine(Entrance& entrance, ObjectServers& servers, Desktop& desktop,
            std::function<void()> showHelp = {})
        : waiting(entrance.judge),
          patience(waiting, entrance.boxes, entrance.judge),
          automation(servers, patience),
          fileDialogs(entrance.judge),
          windows(entrance.gate, std::move(showHelp)),
          sieve(entrance.judge),
          searchWatch(entrance.judge),
          platform{automation,
                   settings,
                   files,
                   records,
                   listHolds,
                   clock,
                   entrance.boxes,
                   fileDialogs,
                   desktop,
                   power,
                   windows,
                   {files, workers, searchWatch},
                   programDirectory(),
                   namedFiles()} {}

    WinBusyWaiting waiting;
    Patience patience;
    Automation automation;
    RegistrySettings settings;
    // Never deleted: readers that wait for a server which does not answer outlive the rest.
    WinFiles& files = *new WinFiles;
    PoolWorkers workers;
    WinRecordFiles records;
    WinListHolds listHolds{files};
    WinClock clock;
    WinFileDialogs fileDialogs;
    WinPower power;
    DialogFactory windows;
    InputSieve sieve;
    WinSearchWatch searchWatch;
    Platform platform;
};
