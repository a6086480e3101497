#include "display/CRgbf.h"

#include <afx.h>

void CRgbf::Serialize(CArchive& ar)
{
    if (ar.IsLoading())
        ar >> red >> green >> blue >> alpha;
    else
        ar << red << green << blue << alpha;
}
