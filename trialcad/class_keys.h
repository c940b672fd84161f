#pragma once

#include <windows.h>

#include <guiddef.h>

/// The class of SldWorks.Application. When none is registered, registers one of our own, for the
/// machine or else for the user; false when neither is allowed.
bool provideClassId(CLSID& classId);

/// Removes our own class, also when a killed session has left it behind. A real installation's
/// class stays.
void removeOwnClassId();
