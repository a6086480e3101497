#include "controls/detail/TabText.h"

namespace vant::detail
{

namespace
{

bool Separates(wchar_t character) noexcept
{
    return character == L'\t' || character == L'\r' || character == L'\n' || character == L'\0';
}

} // namespace

void TabText::AddCell(std::wstring_view text)
{
    if (m_begun)
        m_text += L'\t';
    m_begun = true;
    bool inRun = false;
    for (const wchar_t character : text) {
        const bool separates = Separates(character);
        if (!separates)
            m_text += character;
        else if (!inRun)
            m_text += L' ';
        inRun = separates;
    }
}

void TabText::EndRow()
{
    m_text += L"\r\n";
    m_begun = false;
}

} // namespace vant::detail
