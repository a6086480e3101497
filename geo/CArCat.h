#pragma once

#include "core/CLstMgd.h"
#include "core/VantApi.h"
#include "geo/CArea.h"

#include <afx.h>

/** A category of areas: a name, and the areas that it owns.
 *
 *  A copy has areas of its own, of the same kinds (CArKinds.h). Of an application's class derived from a kind
 * it has that kind, and of one derived from CArea a plain CArea: only the application could copy those. */
class VANT_API CArCat : public CLstMgd<CArea>
{
public:
    CArCat();
    CArCat(const CArCat& other);
    /** Areas of the same kind that are here already keep their addresses. */
    CArCat& operator=(const CArCat& other);
    ~CArCat() override;

    CString name; ///< key of the category in its database
};
