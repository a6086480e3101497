#pragma once

#include "core/VantApi.h"

#include <afx.h>
#include <cstddef>

/** A named value of a settings object; the value is text. */
class VANT_API CESetItm
{
public:
    /** Without name and value. */
    CESetItm() = default;
    /** With name and value, which are copied. */
    CESetItm(const CString& name, const CString& value)
        : m_name(name)
        , m_value(value)
    {
    }

    /** Items come from a pool of their own: a tree holds very many of them. @{ */
    static void* operator new(std::size_t size);
    static void operator delete(void* memory, std::size_t size) noexcept;
    /** @} */
    /** At a place that is there already, as usual. @{ */
    static void* operator new(std::size_t, void* where) noexcept { return where; }
    static void operator delete(void*, void*) noexcept {}
    /** @} */

    CString m_name;  /**< must not hold blanks, or a saved item is not found again */
    CString m_value; /**< the text of the value */
};
