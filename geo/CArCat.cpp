#include "geo/CArCat.h"

#include "geo/CArKinds.h"

#include <memory>
#include <typeinfo>

namespace
{

template <class Kind>
std::unique_ptr<CArea> CopyIf(const CArea& area)
{
    const auto* const ofKind = dynamic_cast<const Kind*>(&area);
    return ofKind ? std::make_unique<Kind>(*ofKind) : nullptr;
}

template <class... Kinds>
std::unique_ptr<CArea> CopyAsOneOf(const CArea& area)
{
    std::unique_ptr<CArea> copy;
    ((copy = CopyIf<Kinds>(area)) || ...);
    return copy;
}

std::unique_ptr<CArea> Copy(const CArea& area)
{
    return CopyAsOneOf<CArNRect, CArARect, CArCircle, CArFree, CArRt, CArTram, CArWy, CArea>(area);
}

/** Whether what assigning an area leaves is what a copy would be. */
bool IsKindOf(const CArea& area, const CArea& copy)
{
    return typeid(area) == typeid(copy);
}

} // namespace

CArCat::CArCat() = default;
CArCat::~CArCat() = default;

CArCat::CArCat(const CArCat& other)
    : CArCat()
{
    *this = other;
}

CArCat& CArCat::operator=(const CArCat& other)
{
    if (this == &other)
        return *this;
    name = other.name;
    CVantPtr* pos = GetHeadPos();
    for (CVantPtr* from = other.GetHeadPos(); from;) {
        const CArea* const area = other.GetNext(from);
        if (!area)
            continue;
        std::unique_ptr<CArea> copy = Copy(*area);
        if (!pos) {
            AddTail(copy.release());
            continue;
        }
        CArea* const here = GetAt(pos);
        if (here && IsKindOf(*here, *copy)) {
            *here = *copy;
        } else {
            SetAt(pos, copy.release());
            delete here;
        }
        pos = pos->next;
    }
    while (pos) {
        CVantPtr* const surplus = pos;
        pos = pos->next;
        RemoveAt(surplus);
    }
    return *this;
}
