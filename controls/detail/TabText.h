#pragma once

#include <string>
#include <string_view>

namespace vant::detail
{

/** Rows of cells as text for other programs: a tab between two cells, a line break behind each row. In a cell
 * a run of tabs, line breaks and NULs becomes one blank, so that the text has the shape of the table. */
class TabText
{
public:
    void AddCell(std::wstring_view text);
    void EndRow();
    const std::wstring& Text() const noexcept { return m_text; }

private:
    std::wstring m_text;
    bool m_begun = false; // the row has a cell already
};

} // namespace vant::detail
