#include "values/CEVal.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <string_view>

#include "core/detail/NumberText.h"
#include "core/detail/TextView.h"
#include "core/detail/ToInteger.h"
#include "values/EUnits.h"
#include "values/detail/RangeText.h"
#include "values/detail/UnitText.h"
#include "values/detail/ValueType.h"

using namespace vant::detail;

namespace
{

constexpr double noData = -32768.0;
constexpr int noUnits = -1;

/** A text under construction on the stack. */
template <std::size_t Size>
struct Draft {
    std::array<wchar_t, Size> text;
    wchar_t* end = text.data();

    CString Done() const { return {text.data(), static_cast<int>(end - text.data())}; }
};

wchar_t* WriteFloating(wchar_t* out, double value, int decimals) noexcept
{
    return decimals < 0 ? WriteGeneral(out, value) : WriteFixed(out, value, decimals);
}

CString FloatingText(double value, int decimals)
{
    Draft<fixedTextMax> draft;
    draft.end = WriteFloating(draft.end, value, decimals);
    return draft.Done();
}

CString SignedText(std::int64_t value)
{
    Draft<integerTextMax> draft;
    draft.end = WriteInt(draft.end, value);
    return draft.Done();
}

CString UnsignedText(std::uint64_t value)
{
    Draft<integerTextMax> draft;
    draft.end = WriteUnsigned(draft.end, value);
    return draft.Done();
}

CString PointerText(const void* pointer)
{
    Draft<integerTextMax> draft;
    *draft.end++ = L'0';
    *draft.end++ = L'x';
    // "%x" shows 32 bits, also of a wider pointer.
    draft.end = WriteHex(draft.end, static_cast<std::uint32_t>(reinterpret_cast<std::uintptr_t>(pointer)));
    return draft.Done();
}

/** How an integer type is checked. */
struct IntegerKind {
    int bits = 0; ///< 0 when the type is no integer
    bool isSigned = true;
};

IntegerKind IntegerKindOf(ValueType type) noexcept
{
    switch (type) {
    case ValueType::Char:
        return {8, true};
    case ValueType::Short:
        return {16, true};
    case ValueType::Int:
        return {32, true};
    case ValueType::UChar:
        return {8, false};
    case ValueType::UShort:
        return {16, false};
    case ValueType::UInt:
    case ValueType::ULong:
        return {32, false};
    default:
        return {};
    }
}

/** Whether an integer may be stored; the upper bound lies one beyond the type's own. */
bool InTypeRange(std::int64_t value, IntegerKind kind) noexcept
{
    const std::int64_t upper = std::int64_t{1} << (kind.isSigned ? kind.bits - 1 : kind.bits);
    const std::int64_t lower = kind.isSigned ? -upper : 0;
    return value >= lower && value <= upper;
}

CString TypeRangeText(IntegerKind kind)
{
    Draft<rangeTextMax> draft;
    draft.end =
        kind.isSigned ? WriteSignedRange(draft.end, kind.bits) : WriteUnsignedRange(draft.end, kind.bits);
    return draft.Done();
}

CString UserRangeText(double min, double max)
{
    Draft<rangeTextMax> draft;
    draft.end = WriteUserRange(draft.end, min, max);
    return draft.Done();
}

} // namespace

CString CEVal::GetText(int withUnits) const
{
    if (!pVal) {
        return text;
    }
    if (scale != 1.0 || units != noUnits) {
        return ScaledText(withUnits);
    }
    switch (TypeOf(type)) {
    case ValueType::Pointer:
        return PointerText(Read<void*>());
    case ValueType::Text:
        return *this;
    case ValueType::Char:
        return SignedText(Read<signed char>());
    case ValueType::Short:
        return SignedText(Read<short>());
    case ValueType::Int:
        return SignedText(Read<int>());
    case ValueType::UChar:
        return UnsignedText(Read<unsigned char>());
    case ValueType::UShort:
        return UnsignedText(Read<unsigned short>());
    case ValueType::UInt:
    case ValueType::ULong:
        return UnsignedText(Read<unsigned int>());
    case ValueType::Float:
        return FloatingText(static_cast<double>(Read<float>()), decimals);
    case ValueType::Double: {
        const double value = Read<double>();
        return value == noData ? CString(L"No Data") : FloatingText(value, decimals);
    }
    default:
        return L"Unknown data type";
    }
}

CString CEVal::ScaledText(int withUnits) const
{
    const double value = GetVal();
    if (value == noData) {
        return L"No data";
    }
    // The text that EUnits::Get() gives for the format "%lg" or "%0.Nlf", without building the format.
    const double shown = ToDisplay(units, EUnits::system, scale * value);
    Draft<feetTextMax> draft;
    if (withUnits && IsFeet(units, EUnits::system)) {
        draft.end = WriteFeet(draft.end, shown);
        return draft.Done();
    }
    constexpr std::size_t labelMax = 8;
    Draft<fixedTextMax + labelMax> labelled;
    labelled.end = WriteFloating(labelled.end, shown, decimals);
    if (withUnits) {
        const std::wstring_view label = UnitLabel(units, EUnits::system);
        labelled.end = std::copy(label.begin(), label.end(), labelled.end);
    }
    return labelled.Done();
}

void CEVal::SetText(const CString& displayed)
{
    if (!pVal) {
        text = displayed;
        return;
    }
    if (scale == 0.0) {
        scale = 1.0;
    }
    const std::wstring_view view = View(displayed);
    switch (TypeOf(type)) {
    case ValueType::Text:
        *this = displayed;
        break;
    case ValueType::Char:
    case ValueType::Short:
    case ValueType::Int: {
        int value = ScanInt(view).value;
        if (units != noUnits) {
            EUnits::D2N(units, value);
        }
        PutInteger(value);
        break;
    }
    case ValueType::UChar:
    case ValueType::UShort:
    case ValueType::UInt:
    case ValueType::ULong: {
        unsigned int value = ScanUnsigned(view).value;
        if (units != noUnits) {
            EUnits::D2N(units, value);
        }
        PutInteger(value);
        break;
    }
    case ValueType::Float:
    case ValueType::Double: {
        double value = ScanDouble(view).value;
        if (units != noUnits) {
            EUnits::D2N(units, value);
        }
        SetVal(value / scale);
        break;
    }
    default:
        break;
    }
}

int CEVal::IsValidText(const CString& displayed, CString& message) const
{
    const ValueType code = TypeOf(type);
    if (code == ValueType::Text) {
        return 1;
    }
    const IntegerKind kind = IntegerKindOf(code);
    if (kind.bits == 0 && code != ValueType::Float && code != ValueType::Double) {
        return 0;
    }

    const std::wstring_view view = View(displayed);
    const auto number = ScanDouble(view);
    if (!number || number.used != view.size()) {
        message = kind.bits == 0  ? L"Not Valid Floating Point Number"
                  : kind.isSigned ? L"Not Valid Integer"
                                  : L"Not Valid Unsigned Integer";
        return 0;
    }
    double tested = number.value;
    if (units != noUnits) {
        EUnits::D2N(units, tested);
    }
    if (kind.bits != 0) {
        const std::int64_t whole = ToInt64(tested);
        if (!InTypeRange(whole, kind)) {
            message = TypeRangeText(kind);
            return 0;
        }
        tested = static_cast<double>(whole);
    }
    if (rangeSet && (tested < rangeMin || tested > rangeMax)) {
        message = UserRangeText(rangeMin, rangeMax);
        return 0;
    }
    return 1;
}
