#pragma once

class Judge;

/// The pointer over the program's windows becomes now what the program is busy with.
void showPointer(const Judge& judge);
