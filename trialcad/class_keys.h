#pragma once

#include <windows.h>

#include <guiddef.h>

/// The class that SldWorks.Application stands for. When none is registered, registers one of our
/// own, for the machine or else for the user; false when neither is allowed.
bool provideClassId(CLSID& classId);

/// Removes the class of our own, also one left behind by a session that was killed; a real
/// installation's class stays.
void removeOwnClassId();
