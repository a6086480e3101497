#pragma once

#include <clocale>
#include <string>

namespace vant::test
{

/** The C library's locale, German for as long as the object lives: its numbers have a decimal comma. */
class GermanLocale
{
public:
    GermanLocale()
        : m_before(std::setlocale(LC_ALL, nullptr))
        , m_active(std::setlocale(LC_ALL, "German_Germany.1252") != nullptr)
    {
    }
    ~GermanLocale() { std::setlocale(LC_ALL, m_before.c_str()); }
    GermanLocale(const GermanLocale&) = delete;
    GermanLocale& operator=(const GermanLocale&) = delete;

    /** False on a system without that locale. */
    bool IsActive() const noexcept { return m_active; }

private:
    const std::string m_before;
    const bool m_active;
};

} // namespace vant::test
