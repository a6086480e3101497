#include "core/CV3.h"

#include "core/detail/NumberText.h"

namespace
{

void AppendNumber(CString& text, LPCWSTR label, double value)
{
    constexpr int decimals = 2;
    wchar_t digits[vant::detail::fixedTextMax];
    const wchar_t* const end = vant::detail::WriteFixed(digits, value, decimals);
    text += label;
    text.Append(digits, static_cast<int>(end - digits));
}

} // namespace

CString CV3::Str() const
{
    CString text;
    AppendNumber(text, L"X:", x);
    AppendNumber(text, L" Y:", y);
    AppendNumber(text, L" Z:", z);
    return text;
}

void CV3::Serialize(CArchive& ar)
{
    if (ar.IsStoring())
        ar << x << y << z;
    else
        ar >> x >> y >> z;
}
