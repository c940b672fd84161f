#pragma once

#include <windows.h>

#include "platform/notifications.h"

ControlClass classOf(HWND control);
