#pragma once

#include <string>

struct ListHolder;
struct Platform;
struct ProgramFiles;

/// Takes hold of the list file for as long as the program runs. Ends the program when this user's
/// own has it already, which then is in front. Tells the user when others can't be told. Raises 70
/// when someone else has the list open, and 70 or 76 when its directory can't be opened.
void takeHoldOfList(Platform& platform, const ProgramFiles& files);

/// To be called now and then: takes the hold again when it was lost, and tells the user when
/// someone else has the list meanwhile.
void keepHoldOfList(Platform& platform, const ProgramFiles& files);

/// "par Zoé sur PC-12".
std::wstring holderText(const ListHolder& holder);
