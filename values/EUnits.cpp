#include "values/EUnits.h"

#include <array>
#include <string>

#include "core/detail/TextView.h"
#include "core/detail/ToInteger.h"
#include "values/detail/UnitText.h"

using vant::detail::LowBits;
using vant::detail::RoundToInt64;
using vant::detail::ToCString;

int EUnits::system = vant::detail::metric;

CString EUnits::Get(int kind)
{
    return ToCString(vant::detail::UnitLabel(kind, system));
}

CString EUnits::Get(int kind, double value, const CString& format, int withUnits)
{
    const double shown = vant::detail::ToDisplay(kind, system, value);
    if (withUnits && vant::detail::IsFeet(kind, system)) {
        std::array<wchar_t, vant::detail::feetTextMax> text;
        return {text.data(), static_cast<int>(vant::detail::WriteFeet(text.data(), shown) - text.data())};
    }
    std::wstring text;
    vant::detail::AppendFormatted(text, vant::detail::View(format), shown);
    if (withUnits) {
        text += vant::detail::UnitLabel(kind, system);
    }
    return ToCString(text);
}

void EUnits::N2D(int kind, double& v)
{
    v = vant::detail::ToDisplay(kind, system, v);
}

void EUnits::N2D(int kind, int& v)
{
    v = LowBits<int>(RoundToInt64(vant::detail::ToDisplay(kind, system, v)));
}

void EUnits::N2D(int kind, unsigned int& v)
{
    v = LowBits<unsigned int>(RoundToInt64(vant::detail::ToDisplay(kind, system, v)));
}

void EUnits::D2N(int kind, double& v)
{
    v = vant::detail::ToNative(kind, system, v);
}

void EUnits::D2N(int kind, int& v)
{
    v = LowBits<int>(RoundToInt64(vant::detail::ToNative(kind, system, v)));
}

void EUnits::D2N(int kind, unsigned int& v)
{
    v = LowBits<unsigned int>(RoundToInt64(vant::detail::ToNative(kind, system, v)));
}
