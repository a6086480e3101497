#pragma once

#include "vafx/CObject.h"

#include <cstddef>
#include <memory>
#include <unordered_map>
#include <vector>

namespace vafx::detail
{

enum class HandleKind { Window, DeviceContext, GdiObject };
constexpr std::size_t handleKinds = 3;

/** @name The owners of handles, one table for the process: any thread may ask, whatever module it runs in. */
///@{
void SetPermanent(HandleKind kind, HANDLE handle, CObject* object);
/** Takes the entry out if it is @p object's. */
void RemovePermanent(HandleKind kind, HANDLE handle, const CObject* object) noexcept;
CObject* FindPermanent(HandleKind kind, HANDLE handle) noexcept;
///@}

/** Objects made for handles that have no owner, one table for each thread. They are kept in the order of
 * their making, so that a nested loop can free its own and leave those that its callers may still hold. */
class TemporaryMap
{
public:
    TemporaryMap() = default;
    ~TemporaryMap() { FreeDownTo(0); }
    TemporaryMap(const TemporaryMap&) = delete;
    TemporaryMap& operator=(const TemporaryMap&) = delete;

    CObject* Find(HandleKind kind, HANDLE handle) const noexcept;
    /** Becomes the handle's object; an older one stays until it is freed. */
    void Add(HandleKind kind, HANDLE handle, std::unique_ptr<CObject> object);
    std::size_t Count() const noexcept { return m_order.size(); }
    void FreeDownTo(std::size_t count) noexcept;

private:
    struct Entry {
        HandleKind kind;
        HANDLE handle;
        std::unique_ptr<CObject> object;
    };
    std::vector<Entry> m_order;
    std::unordered_map<HANDLE, CObject*> m_current[handleKinds];
};

/** The owner of @p handle if it is a T, else a temporary T.
 *  @param tie Stores the handle in a new object. */
template <class T, class Handle, class Tie>
T* ObjectOf(TemporaryMap& temporary, HandleKind kind, Handle handle, Tie tie)
{
    if (handle == nullptr)
        return nullptr;
    if (CObject* owner = FindPermanent(kind, handle); owner != nullptr && owner->IsKindOf(RUNTIME_CLASS(T)))
        return static_cast<T*>(owner);
    if (CObject* known = temporary.Find(kind, handle); known != nullptr && known->IsKindOf(RUNTIME_CLASS(T)))
        return static_cast<T*>(known);

    auto made = std::make_unique<T>();
    T* object = made.get();
    temporary.Add(kind, handle, std::move(made));
    tie(*object);
    return object;
}

} // namespace vafx::detail
