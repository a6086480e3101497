#include "display/CDspMInf.h"

void CDspMInf::AddHit(std::unique_ptr<CDspMHit> hit)
{
    if (!hit)
        return;
    CVantPtr* before = hits.GetTailPos();
    while (before && hits.GetAt(before)->depth > hit->depth)
        hits.GetPrev(before);
    if (before)
        hits.InsertAfter(before, hit.get());
    else
        hits.AddHead(hit.get());
    hit.release();
    ++count;
}

void CDspMInf::ClearHits()
{
    while (!hits.IsEmpty())
        delete hits.RemoveHead();
    count = 0;
}
