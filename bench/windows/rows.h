#pragma once

#include "report.h"

// The figures, one function each.

/// A tree searched and shown, against one pass of FindFirstFileEx over it.
Row rebuildOfTree(const Setting& setting);
/// The same for one directory, whose bare names are compared.
Row rebuildOfDirectory(const Setting& setting);
/// A tree whose directories answer late, read ahead, against one after another.
Row searchOfSlowServer(const Setting& setting);
/// The documents that a file names, looked for and listed, against reading the file and asking for
/// each; and looked for where each answers late, against one after another.
Row importOfList(const Setting& setting);
Row importFromSlowServer(const Setting& setting);
/// The work list's lines put into its list box, against LB_ADDSTRING with drawing off.
Row listFill(const Setting& setting);
/// How soon the window answers while it searches; the time from Escape to the box.
Row answerWhileSearching(const Setting& setting);
Row stopOfSearch(const Setting& setting);
/// From one document to the next without the CAD calls, against one repaint of the list and its
/// scroll bars, which Wine draws slowly.
Row nextDocument(const Setting& setting);
/// A filter that matches nothing, against a search in texts folded before.
Row filter(const Setting& setting);
/// All lines drawn at another depth; all lines chosen.
Row depthOfLines(const Setting& setting);
Row choiceOfLines(const Setting& setting);
/// A document's eight CAD calls, against Invoke with member numbers known.
Row cadCalls(const Setting& setting);
/// A pass that goes on alone, against the same calls made bare; the time from Escape to the box.
Row documentsAlone(const Setting& setting);
Row stopOfAlone(const Setting& setting);
/// What the program holds of the system near the end of such a pass, against near its beginning.
/// Raises when handles, GDI objects or windows have become more.
Row heldAlone(const Setting& setting);
/// From the process's creation to its first window, against a bare dialog.
Row start(const Setting& setting);
/// The list file saved, against one write, flush and replace.
Row listFileSave(const Setting& setting);
/// The list file loaded into the table, against reading its bytes.
Row listFileLoad(const Setting& setting);
/// A mark put on disk beside the list, against one append and flush.
Row markKept(const Setting& setting);
/// The size of tarnwick.exe, against a bare dialog.
Row programSize(const Setting& setting);
/// Private memory with a pass loaded, against a bare dialog with the same list.
Row memoryInUse(const Setting& setting);
