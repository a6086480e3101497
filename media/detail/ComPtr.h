#pragma once

#include <utility>

namespace vant::detail
{

/** Holds one reference of a COM object, and gives it back. */
template <class T>
class ComPtr
{
public:
    ComPtr() = default;
    ~ComPtr() { Reset(); }
    ComPtr(ComPtr&& other) noexcept
        : m_object(std::exchange(other.m_object, nullptr))
    {
    }
    ComPtr& operator=(ComPtr&& other) noexcept
    {
        std::swap(m_object, other.m_object);
        return *this;
    }

    void Reset()
    {
        if (m_object)
            std::exchange(m_object, nullptr)->Release();
    }
    /** Where a function puts an object that it creates. */
    T** Out()
    {
        Reset();
        return &m_object;
    }
    /** The same, for functions that do not know the type. */
    void** OutAny() { return reinterpret_cast<void**>(Out()); }

    T* Get() const noexcept { return m_object; }
    T* operator->() const noexcept { return m_object; }
    explicit operator bool() const noexcept { return m_object != nullptr; }

private:
    T* m_object = nullptr;
};

} // namespace vant::detail
