#pragma once

#include <windows.h>

#include "input/notifications.h"

ControlClass classOf(HWND control);
