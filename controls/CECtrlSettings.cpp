// CECtrl: persistence of its value.
#include "controls/CECtrl.h"

#include "controls/detail/BoundNumber.h"
#include "settings/CESetObj.h"
#include "values/detail/ValueType.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <cstdint>
#include <string>
#include <system_error>

using vant::detail::TypeOf;
using vant::detail::ValueType;

namespace
{

/** The integer that is the whole of a text. @return whether there is one, of 64 bits */
bool ScanWhole(const CString& text, std::int64_t& number)
{
    std::string narrow;
    for (int i = 0; i < text.GetLength(); ++i)
        narrow += text[i] < 0x80 ? static_cast<char>(text[i]) : '?';
    const char* const end = narrow.data() + narrow.size();
    const auto [stop, error] = std::from_chars(narrow.data(), end, number);
    return error == std::errc() && stop == end;
}

bool IsAllowed(const CEVal& value, double number)
{
    const auto [low, high] = std::minmax(value.rangeMin, value.rangeMax);
    return !value.rangeSet || (number >= low && number <= high);
}

void ExchangeInteger(CESetObj& obj, const CString& item, CEVal& value)
{
    const std::int64_t before = vant::detail::IntegerOf(value);
    CString text(std::to_wstring(before).c_str());
    obj.Item(item, text);
    std::int64_t number = 0;
    if (obj.IsLoading() && ScanWhole(text, number) && number != before &&
        vant::detail::AsHeld(value, number) == number && IsAllowed(value, static_cast<double>(number)))
        vant::detail::PutInteger(value, number);
}

void ExchangeFloating(CESetObj& obj, const CString& item, CEVal& value)
{
    const double before = value.GetVal();
    double number = before;
    obj.Item(item, number);
    const bool fits = std::fabs(number) <= vant::detail::LimitsOf(value).most;
    if (obj.IsLoading() && number != before && fits && IsAllowed(value, number))
        value.SetVal(number);
}

void ExchangeText(CESetObj& obj, const CString& item, CEVal& value)
{
    const CString before = value;
    CString text = before;
    obj.Item(item, text);
    if (obj.IsLoading() && text != before)
        value = text;
}

} // namespace

void CECtrl::Settings(CESetObj& obj)
{
    if (aux1.IsEmpty())
        return;
    CString item = aux1;
    item.Replace(L' ', L'_');
    if (vant::detail::IsInteger(*this))
        ExchangeInteger(obj, item, *this);
    else if (vant::detail::IsNumber(*this))
        ExchangeFloating(obj, item, *this);
    else if (pVal && TypeOf(type) == ValueType::Text)
        ExchangeText(obj, item, *this);
    if (obj.IsLoading())
        Update(1);
}
