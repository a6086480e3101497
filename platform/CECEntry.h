#pragma once

#include <afx.h>

/** One entry of a console: what one call of a logger left behind. Receivers of the alarm broadcast get a
 *  pointer to one. It belongs to the console, which keeps its memory as long as it exists, but may
 *  change its fields from any thread under a lock of its own (CConsole::entryLock): copy what is needed, with
 *  CConsole::GetEntry(). */
class CECEntry
{
public:
    unsigned int kind = 0; ///< kind bits, tested against the console's filter mask
    unsigned int id = 0;   ///< message id; 0 for lines that have none
    int state = 0;         ///< state of an entry with an id, level of a line
    __time64_t time = 0;   ///< of the last update, seconds since 1970, UTC
    CString displayTime;   ///< the same as local "%H:%M:%S"
    CString text;          ///< the line as it is shown and logged
    int repeats = 0;       ///< number of updates of an entry with an id, modulo 1000

    /** Entries are ordered by id alone. */
    bool operator<(const CECEntry& other) const noexcept { return id < other.id; }
};
