#include "detail/HandleMaps.h"

#include "detail/SlimLock.h"
#include "vafx/CDC.h"
#include "vafx/CGdiObject.h"
#include "vafx/CWnd.h"

#include <array>

namespace vafx::detail
{
namespace
{

struct PermanentMap {
    SRWLOCK lock = SRWLOCK_INIT;
    std::unordered_map<HANDLE, CObject*> objects;
};

// Never destroyed: static objects of programs outlive the static objects of this module.
PermanentMap& Permanent(HandleKind kind)
{
    static auto& maps = *new std::array<PermanentMap, handleKinds>;
    return maps[static_cast<std::size_t>(kind)];
}

// A temporary object does not own what it names; its destructor must find nothing to free.
void Untie(HandleKind kind, CObject& object) noexcept
{
    switch (kind) {
    case HandleKind::Window:
        static_cast<CWnd&>(object).m_hWnd = nullptr;
        break;
    case HandleKind::DeviceContext:
        static_cast<CDC&>(object).m_hDC = nullptr;
        static_cast<CDC&>(object).m_hAttribDC = nullptr;
        break;
    case HandleKind::GdiObject:
        static_cast<CGdiObject&>(object).m_hObject = nullptr;
        break;
    }
}

} // namespace

void SetPermanent(HandleKind kind, HANDLE handle, CObject* object)
{
    PermanentMap& map = Permanent(kind);
    const ExclusiveLock lock(map.lock);
    map.objects[handle] = object;
}

void RemovePermanent(HandleKind kind, HANDLE handle, const CObject* object) noexcept
{
    PermanentMap& map = Permanent(kind);
    const ExclusiveLock lock(map.lock);
    const auto found = map.objects.find(handle);
    if (found != map.objects.end() && found->second == object)
        map.objects.erase(found);
}

CObject* FindPermanent(HandleKind kind, HANDLE handle) noexcept
{
    PermanentMap& map = Permanent(kind);
    const SharedLock lock(map.lock);
    const auto found = map.objects.find(handle);
    return found == map.objects.end() ? nullptr : found->second;
}

CObject* TemporaryMap::Find(HandleKind kind, HANDLE handle) const noexcept
{
    const auto& current = m_current[static_cast<std::size_t>(kind)];
    const auto found = current.find(handle);
    return found == current.end() ? nullptr : found->second;
}

void TemporaryMap::Add(HandleKind kind, HANDLE handle, std::unique_ptr<CObject> object)
{
    CObject* const entered = object.get();
    m_order.push_back({kind, handle, std::move(object)});
    m_current[static_cast<std::size_t>(kind)][handle] = entered;
}

void TemporaryMap::FreeDownTo(std::size_t count) noexcept
{
    while (m_order.size() > count) {
        Entry entry = std::move(m_order.back());
        m_order.pop_back();
        auto& current = m_current[static_cast<std::size_t>(entry.kind)];
        const auto found = current.find(entry.handle);
        if (found != current.end() && found->second == entry.object.get())
            current.erase(found);
        Untie(entry.kind, *entry.object);
    }
}

} // namespace vafx::detail
