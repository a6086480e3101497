#pragma once

#include <afx.h>

class CDsp;
class CMdl;

namespace vant::detail
{

/** What the parts are called that a database has drawn for a pick, by their numbers. A pick may hit thousands
 * of them, and asks for each: going through the lists every time would take the square of their number. UI
 * thread only. */
class PartNames
{
public:
    /** The database is drawn: what was noted at an earlier drawing is forgotten. */
    PartNames(const CMdl& db, const CDsp& dsp);

    /** From this number on the parts have this name, until the next one. Numbers ascend. Nothing is noted
     * unless the drawing is for a pick. */
    void From(unsigned number, const CString& name);

    /** The name of a part. @return null where nothing was noted: the last drawing was for no pick, or an
     * application's own */
    static const CString* Find(const CMdl& db, int part);

    /** The database goes. */
    static void Forget(const CMdl& db) noexcept;

private:
    const CMdl& m_db;
    const bool m_isPicking;
};

} // namespace vant::detail
