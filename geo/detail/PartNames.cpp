#include "geo/detail/PartNames.h"

#include "display/CDsp.h"

#include <algorithm>
#include <map>
#include <vector>

namespace vant::detail
{

namespace
{

struct Names {
    unsigned first; // number of a part
    CString name;   // of this one and those that follow
};

using AllNames = std::map<const CMdl*, std::vector<Names>>;

AllNames& All()
{
    // Never destroyed: databases that are static objects may go after every static object of this library.
    static auto* const all = new AllNames;
    return *all;
}

} // namespace

PartNames::PartNames(const CMdl& db, const CDsp& dsp)
    : m_db(db)
    , m_isPicking(dsp.IsPicking() != 0)
{
    Forget(db);
}

void PartNames::From(unsigned number, const CString& name)
{
    if (m_isPicking)
        All()[&m_db].push_back({number, name});
}

const CString* PartNames::Find(const CMdl& db, int part)
{
    const auto noted = All().find(&db);
    if (part < 0 || noted == All().end())
        return nullptr;
    const auto& names = noted->second;
    const auto next =
        std::upper_bound(names.begin(), names.end(), static_cast<unsigned>(part),
                         [](unsigned number, const Names& each) { return number < each.first; });
    return next == names.begin() ? nullptr : &(next - 1)->name;
}

void PartNames::Forget(const CMdl& db) noexcept
{
    All().erase(&db);
}

} // namespace vant::detail
