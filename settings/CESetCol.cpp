#include "settings/CESetCol.h"

#include "settings/CESet.h"
#include "settings/detail/ByName.h"

#include <memory>

CESetCol::CESetCol(const CESetCol& other)
    : CLstMgd<CESetObj>(other)
    , m_name(other.m_name)
    , m_set(other.m_set)
{
    Adopt();
}

CESetCol& CESetCol::operator=(const CESetCol& other)
{
    CLstMgd<CESetObj>::operator=(other);
    m_name = other.m_name;
    Adopt();
    return *this;
}

int CESetCol::IsStoring() const noexcept
{
    return m_set != nullptr ? m_set->IsStoring() : 0;
}

CESetObj* CESetCol::AddObj(CString name, CString type)
{
    auto object = std::make_unique<CESetObj>(name, type, this);
    AddTail(object.get());
    return object.release();
}

CESetObj* CESetCol::GetObj(CString name) const
{
    return vant::detail::FirstByName(*this, name);
}

void CESetCol::Adopt() noexcept
{
    for (CVantPtr* pos = GetHeadPos(); pos != nullptr;) {
        if (CESetObj* const object = GetNext(pos))
            object->m_col = this;
    }
}
