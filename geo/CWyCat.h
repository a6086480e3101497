#pragma once

#include "core/CLstMgd.h"
#include "core/VantApi.h"
#include "geo/CWyPt.h"

#include <afx.h>

/** A category of waypoints: a name, and the waypoints that it owns. A copy has its own. */
class VANT_API CWyCat : public CLstMgd<CWyPt>
{
public:
    CWyCat();
    CWyCat(const CWyCat& other);
    CWyCat& operator=(const CWyCat& other);
    ~CWyCat() override;

    CString name; ///< key of the category in its database
};
