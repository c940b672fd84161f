#include "win32/window/control_class.h"

ControlClass classOf(HWND control) {
    wchar_t name[20] = {};
    GetClassNameW(control, name, ARRAYSIZE(name));
    return controlClass(name);
}
