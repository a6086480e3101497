// A library that comes and goes while the program runs, with a class of its own.
#include <afx.h>

namespace
{

class CGuest : public CObject
{
    DECLARE_DYNCREATE(CGuest)
};

IMPLEMENT_DYNCREATE(CGuest, CObject)

} // namespace
