#include "values/CEVal.h"

#include <algorithm>
#include <cstdint>

#include "core/detail/ToInteger.h"
#include "values/detail/ValueLock.h"
#include "values/detail/ValueType.h"

using vant::detail::LowBits;
using vant::detail::RoundToInt64;
using vant::detail::ToInt64;
using vant::detail::TypeOf;
using vant::detail::ValueLock;
using vant::detail::ValueType;

namespace
{

std::size_t WidthOf(ValueType type) noexcept
{
    switch (type) {
    case ValueType::Char:
    case ValueType::UChar:
        return sizeof(char);
    case ValueType::Short:
    case ValueType::UShort:
        return sizeof(short);
    case ValueType::Int:
    case ValueType::UInt:
    case ValueType::ULong:
    case ValueType::Float:
        return sizeof(int);
    default:
        return sizeof(__int64);
    }
}

} // namespace

void CEVal::Bind(void* address, int newType)
{
    type = newType;
    InitVal(address);
}

void CEVal::Init(CString& v)
{
    InitVal(&v);
    type = static_cast<int>(ValueType::Text);
}

void CEVal::Init(const wchar_t* fixedText)
{
    type = static_cast<int>(ValueType::Text);
    text = fixedText;
    pVal = nullptr;
}

void CEVal::InitVal(void* address)
{
    if (const ValueLock access{pMutex}) {
        pVal = address;
    }
}

bool CEVal::ReadLocked(void* to, std::size_t size) const
{
    const ValueLock access{pMutex};
    if (!access || !pVal) {
        return false;
    }
    std::memcpy(to, pVal, size);
    return true;
}

void CEVal::WriteLocked(const void* from, std::size_t size)
{
    const ValueLock access{pMutex};
    if (access && pVal) {
        std::memcpy(pVal, from, size);
    }
}

CString CEVal::operator=(const CString& v)
{
    const ValueLock access{pMutex};
    if (access && pVal && TypeOf(type) == ValueType::Text) {
        *static_cast<CString*>(pVal) = v;
    }
    return v;
}

CEVal::operator CString() const
{
    const ValueLock access{pMutex};
    if (!access || !pVal || TypeOf(type) != ValueType::Text) {
        return {};
    }
    return *static_cast<const CString*>(pVal);
}

void CEVal::SetRange(double min, double max)
{
    rangeSet = 1;
    rangeMin = min;
    rangeMax = max;
}

void CEVal::SetCallback(CObject* target, CbNone fn)
{
    pCbObj = target;
    pCbNone = fn;
}

void CEVal::SetCallback(CObject* target, CbInt fn)
{
    pCbObj = target;
    pCbInt = fn;
}

void CEVal::SetCallback(CObject* target, CbDouble fn)
{
    pCbObj = target;
    pCbDouble = fn;
}

void CEVal::SetCallback(CObject* target, CbPtr fn)
{
    pCbObj = target;
    pCbPtr = fn;
}

void CEVal::SetMutex(CMutex* mutex)
{
    pMutex = mutex;
}

double CEVal::GetVal() const
{
    switch (TypeOf(type)) {
    case ValueType::Pointer:
        return static_cast<double>(Read<__int64>());
    case ValueType::Char:
        return Read<signed char>();
    case ValueType::Short:
        return Read<short>();
    case ValueType::Int:
        return Read<int>();
    case ValueType::UChar:
        return Read<unsigned char>();
    case ValueType::UShort:
        return Read<unsigned short>();
    case ValueType::UInt:
    case ValueType::ULong:
        return Read<unsigned int>();
    case ValueType::Float:
        return static_cast<double>(Read<float>());
    case ValueType::Double:
        return Read<double>();
    default:
        return 0.0;
    }
}

void CEVal::PutInteger(__int64 v)
{
    switch (WidthOf(TypeOf(type))) {
    case sizeof(char):
        Write(LowBits<unsigned char>(v));
        break;
    case sizeof(short):
        Write(LowBits<unsigned short>(v));
        break;
    default:
        Write(LowBits<unsigned int>(v));
        break;
    }
}

void CEVal::SetVal(double v)
{
    const ValueType to = TypeOf(type);
    if (to == ValueType::Float)
        Write(static_cast<float>(v));
    else if (to == ValueType::Double)
        Write(v);
    else if (IsIntegerType(to) && to != ValueType::Int64) // which only its operator writes, deliberately
        PutInteger(RoundToInt64(v));
}

double CEVal::AdjustVal(double delta)
{
    const double old = GetVal();
    SetVal(old + delta);
    return old - GetVal();
}

void* CEVal::PointerArgument() const
{
    const ValueType code = TypeOf(type);
    if (code == ValueType::Pointer) {
        return Read<void*>();
    }
    // No byte behind a narrow variable is looked at: it counts as 0.
    unsigned int low = 0;
    const std::size_t size = std::min(WidthOf(code), sizeof low);
    if (pMutex) {
        ReadLocked(&low, size);
    } else if (pVal) {
        std::memcpy(&low, pVal, size);
    }
    return reinterpret_cast<void*>(static_cast<std::uintptr_t>(low));
}

void CEVal::Execute()
{
    if (!pCbObj) {
        return;
    }
    // Looked at anew each time: a callback may take the others, or the target, out.
    if (pCbNone) {
        (pCbObj->*pCbNone)();
    }
    if (pCbObj && pCbInt) {
        (pCbObj->*pCbInt)(LowBits<int>(ToInt64(GetVal())));
    }
    if (pCbObj && pCbDouble) {
        (pCbObj->*pCbDouble)(GetVal());
    }
    if (pCbObj && pCbPtr) {
        (pCbObj->*pCbPtr)(PointerArgument());
    }
}
