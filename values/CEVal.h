#pragma once

#include <cstring>

#include <afx.h>
#include <afxmt.h>

#include "core/VantApi.h"

/** The typed value that every control carries: bound to a variable of the application, which it reads and
 * writes in place, turns into display text and back, validates, and guards with a mutex.
 *
 *  | type | bound variable | | type | bound variable |
 *  |------|----------------|-|------|----------------|
 *  | 0 | pointer | | 6 | unsigned short |
 *  | 1 | CString, or a fixed text kept in `text` | | 7 | unsigned int |
 *  | 2 | char (signed) | | 8 | float |
 *  | 3 | short | | 9 | double |
 *  | 4 | int | | 10 | unsigned long |
 *  | 5 | unsigned char | | 11 | 64-bit integer |
 *
 *  Only the low byte of the type is looked at. The bound variable must outlive the binding and is never
 * freed. Copies share the variable, the mutex and the callbacks.
 *
 *  With a mutex set, every single read or write of the variable takes it, without a time limit, and releases
 * it again; an operation made of several (SetText(), AdjustVal()) takes it several times. A lock that fails
 * turns a write into nothing and a read into 0 or an empty text. The same holds while nothing is bound.
 *
 *  -32768.0 marks missing data in a double. Texts always have a decimal point, whatever the locale. */
class VANT_API CEVal
{
public:
    /** @name Callbacks
     *  Each is a member of the target's class, cast to a member of CObject:
     *  `static_cast<CEVal::CbInt>(&CDepthWnd::OnDepth)` @{ */
    using CbNone = void (CObject::*)();
    using CbInt = void (CObject::*)(int);
    using CbDouble = void (CObject::*)(double);
    using CbPtr = void (CObject::*)(void*);
    /** @} */

    CEVal() = default;
    CEVal(const CEVal& other) = default;
    CEVal& operator=(const CEVal& other) = default;

    /** @name Binding
     *  Each sets the type, and binds the variable under the lock; when the lock fails the old binding stays
     * although the type is the new one. @{ */
    void Init(void** v) { Bind(v, 0); }
    void Init(CString& v);
    void Init(char& v) { Bind(&v, 2); }
    void Init(short& v) { Bind(&v, 3); }
    void Init(int& v) { Bind(&v, 4); }
    void Init(unsigned char& v) { Bind(&v, 5); }
    void Init(unsigned short& v) { Bind(&v, 6); }
    void Init(unsigned int& v) { Bind(&v, 7); }
    void Init(float& v) { Bind(&v, 8); }
    void Init(double& v) { Bind(&v, 9); }
    void Init(unsigned long& v) { Bind(&v, 10); }
    void Init(__int64& v) { Bind(&v, 11); }
    /** A fixed text, copied and bound to no variable. */
    void Init(const wchar_t* fixedText);
    /** Binds another variable of the same type, under the lock. */
    void InitVal(void* address);
    /** @} */

    /** @name Writing
     *  Each writes as many bytes as the operand has, whatever the type says: the operand must not be wider
     * than the bound variable. Returns the value given. The text is only written to a variable of type 1. @{
     */
    __int64 operator=(__int64 v) { return Write(v); }
    CString operator=(const CString& v);
    char operator=(char v) { return Write(v); }
    unsigned char operator=(unsigned char v) { return Write(v); }
    short operator=(short v) { return Write(v); }
    unsigned short operator=(unsigned short v) { return Write(v); }
    int operator=(int v) { return Write(v); }
    unsigned int operator=(unsigned int v) { return Write(v); }
    unsigned long operator=(unsigned long v) { return Write(v); }
    float operator=(float v) { return Write(v); }
    double operator=(double v) { return Write(v); }
    /** @} */

    /** @name Reading
     *  Each reads as many bytes as the result has, whatever the type says: the result must not be wider than
     * the bound variable. The text is only read from a variable of type 1. @{ */
    operator void*() const { return Read<void*>(); }
    operator __int64() const { return Read<__int64>(); }
    operator CString() const;
    operator char() const { return Read<char>(); }
    operator unsigned char() const { return Read<unsigned char>(); }
    operator short() const { return Read<short>(); }
    operator unsigned short() const { return Read<unsigned short>(); }
    operator int() const { return Read<int>(); }
    operator unsigned int() const { return Read<unsigned int>(); }
    operator unsigned long() const { return Read<unsigned long>(); }
    operator float() const { return Read<float>(); }
    operator double() const { return Read<double>(); }
    /** @} */

    /** Sets the user range that IsValidText() checks; both bounds are inside. Nothing checks that min <= max.
     */
    void SetRange(double min, double max);

    /** @name Registering a callback
     *  Each keeps its own member, but there is one target for all four: registering with another object
     * redirects the earlier ones too. Deliberate. The target must outlive its registration. @{ */
    void SetCallback(CObject* target, CbNone fn);
    void SetCallback(CObject* target, CbInt fn);
    void SetCallback(CObject* target, CbDouble fn);
    void SetCallback(CObject* target, CbPtr fn);
    /** @} */

    /** Guards the variable with a mutex of the application from now on; null ends that. Not owned. */
    void SetMutex(CMutex* mutex);

    /** Whether SetText() may store a text: 1, or 0 with the reason in `message`. A number is valid when
     * nothing, not even a blank, follows it. The upper bound of an integer's type is one too large (128
     * passes for a char) and the bounds named in the message are not the real ones: both deliberate. For
     * types 0 and 11 the answer is 0 and `message` stays as it was. Numbers are decimal: "inf",
     * "nan" and "0x10" are none. */
    int IsValidText(const CString& displayed, CString& message) const;

    /** The display text; with `withUnits` non-zero the unit label behind it, and lengths in feet and inches.
     * A double without data shows "No Data", or "No data" when a scale or unit applies: both spellings are
     * deliberate. */
    CString GetText(int withUnits) const;

    /** Stores display text, unchecked: what does not parse stores 0, what is too large keeps its low bits.
     * With units the number is converted to native units first. `scale` divides floating values only,
     * although GetText() multiplies every type by it: deliberate. A `scale` of 0 becomes 1. */
    void SetText(const CString& displayed);

    /** The value as a number; 0.0 for types 1 and 11 (a 64-bit integer is read by its operator only:
     * deliberate). A pointer gives its address. */
    double GetVal() const;

    /** Writes a number to a variable of types 2 to 10. Integers are rounded half up and keep their low bits;
     * nothing clamps. A number that no 64-bit integer holds, NaN included, stores 0 in an integer. */
    void SetVal(double v);

    /** Adds `delta` and returns the old value less the new one: 0 when rounding swallowed the step. */
    double AdjustVal(double delta);

    /** Calls the callbacks that are set, in the order: without argument, with GetVal() cut to an int, with
     * GetVal(), with a pointer (the bound pointer, or the low 32 bits of any other variable). */
    virtual void Execute();

    int type = 0;         ///< type of the bound variable, see above
    void* pVal = nullptr; ///< the bound variable; null when nothing is bound
    int aux0 = 1;         ///< for the controls
    int units = -1;       ///< unit kind of EUnits; -1 for none
    CString aux1;         ///< for the controls
    CString text;         ///< the fixed text, shown while nothing is bound
    CString tip;          ///< tool tip
    CString aux3;         ///< for the controls

    CObject* pCbObj = nullptr;    ///< target of all callbacks
    CbNone pCbNone = nullptr;     ///< callback without argument
    CbInt pCbInt = nullptr;       ///< callback with an int
    CbDouble pCbDouble = nullptr; ///< callback with a double
    CbPtr pCbPtr = nullptr;       ///< callback with a pointer
    int enIf = 0;                 ///< non-zero: the control is enabled only while *pEnVar equals enVal
    int* pEnVar = nullptr;        ///< variable of the enable condition; null for no condition
    int enVal = 0;                ///< value of the enable condition
    CMutex* pMutex = nullptr;     ///< guards the variable; null for no locking
    int rangeSet = 0;             ///< non-zero once SetRange() was called
    double rangeMin = 0.0;        ///< smallest value of the user range
    double rangeMax = 1.0;        ///< largest value of the user range
    double aux4 = 0.0;            ///< for the controls
    int decimals = -1;  ///< decimal places of floating texts; below 0 six significant digits ("%lg")
    double scale = 1.0; ///< display scale

private:
    void Bind(void* address, int newType);
    bool ReadLocked(void* to, std::size_t size) const;
    void WriteLocked(const void* from, std::size_t size);
    void PutInteger(__int64 v);
    void* PointerArgument() const;
    CString ScaledText(int withUnits) const;

    template <class T>
    T Read() const
    {
        T v{};
        if (pMutex) {
            ReadLocked(&v, sizeof v);
        } else if (pVal) {
            std::memcpy(&v, pVal, sizeof v);
        }
        return v;
    }

    template <class T>
    T Write(T v)
    {
        if (pMutex) {
            WriteLocked(&v, sizeof v);
        } else if (pVal) {
            std::memcpy(pVal, &v, sizeof v);
        }
        return v;
    }
};
