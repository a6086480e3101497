#pragma once

#include "settings/CESet.h"

/** One of the two trees that the saver writes in turn; they differ in every line, and in size. */
inline CESet SaverTree(int which)
{
    CESet set(1);
    CESetObj& obj = *set.AddCol(L"Saver")->AddObj(L"Object", L"CSaved");
    const CString text(which == 0 ? L'a' : L'b', 20 + 10 * which);
    for (int i = 0; i < 2'000; ++i)
        obj.Add(L"Item", L"%s %d", text.GetString(), i);
    return set;
}
