#include "settings/CESet.h"

#include "settings/detail/ByName.h"

#include <memory>

CESet::CESet(const CESet& other)
    : CLstMgd<CESetCol>(other)
    , m_storing(other.m_storing)
{
    Adopt();
}

CESet& CESet::operator=(const CESet& other)
{
    CLstMgd<CESetCol>::operator=(other);
    m_storing = other.m_storing;
    Adopt();
    return *this;
}

CESetCol* CESet::AddCol(CString name)
{
    auto collection = std::make_unique<CESetCol>(name, this);
    AddTail(collection.get());
    return collection.release();
}

CESetCol* CESet::GetCol(CString name) const
{
    return vant::detail::FirstByName(*this, name);
}

void CESet::Adopt() noexcept
{
    for (CVantPtr* pos = GetHeadPos(); pos != nullptr;) {
        if (CESetCol* const collection = GetNext(pos))
            collection->m_set = this;
    }
}

/** Moves the collections of another tree to the end of this one. */
void CESet::TakeAll(CESet& other)
{
    for (CVantPtr* pos = other.GetHeadPos(); pos != nullptr; pos = pos->next) {
        AddTail(other.GetAt(pos));
        other.SetAt(pos, nullptr);
    }
    Adopt();
}
