#pragma once

#include "vafx/CArchiveException.h"
#include "vafx/CFile.h"
#include "vafx/CObject.h"
#include "vafx/CStringW.h"

#include <memory>

/** Binary serialisation over a file: either stores or loads, through a buffer. Numbers are in the machine's
 *  order of bytes. An object that is stored twice is written once, and loading makes it once.
 *
 *  Loading trusts nothing: what ends too early throws CArchiveException endOfFile, what makes no sense
 * badIndex, badClass or badSchema, and no declared length is believed before the bytes are there. */
class VAFX_API CArchive
{
public:
    enum Mode { store = 0, load = 1, bNoFlushOnDelete = 2, bNoByteSwap = 4 };

    /** @param pFile An open file, which must outlive the archive. @param nMode store or load.
     *  @param nBufSize The buffer's size in bytes, at least 128.
     *  @param lpBuf The caller's buffer of that size, or null for one of the archive's own. */
    CArchive(CFile* pFile, UINT nMode, int nBufSize = 4096, void* lpBuf = nullptr);
    /** Closes the archive. What goes wrong is not reported: call Close to learn of it. */
    ~CArchive();

    CArchive(const CArchive&) = delete;
    CArchive& operator=(const CArchive&) = delete;

    BOOL IsLoading() const noexcept { return (m_mode & load) != 0; }
    BOOL IsStoring() const noexcept { return (m_mode & load) == 0; }
    /** TRUE when the next read or write goes to the file. */
    BOOL IsBufferEmpty() const noexcept;
    CFile* GetFile() const noexcept { return m_file; }

    /** @return How many bytes were read: fewer than @p nMax only at the file's end. */
    UINT Read(void* lpBuf, UINT nMax);
    /** Reads @p nCount bytes or throws endOfFile. */
    void EnsureRead(void* lpBuf, UINT nCount);
    void Write(const void* lpBuf, UINT nMax);

    /** Storing: writes the buffer to the file. Loading: moves the file back to what was not read yet. */
    void Flush();
    /** Flushes and lets go of the file, which stays open. */
    void Close();
    /** Lets go of the file without writing what is in the buffer. Throws nothing. */
    void Abort() noexcept;

    /** @name Objects of classes with IMPLEMENT_SERIAL */
    ///@{
    /** @p pOb may be null. An object that cannot be serialised throws CNotSupportedException. */
    void WriteObject(const CObject* pOb);
    /** @param pClass The class the object must be of; null: any.
     *  @return The object, which the caller comes to own with its first reading; null when null was stored.
     */
    CObject* ReadObject(const CRuntimeClass* pClass);
    /** Enters an object that is not itself written, so that objects can refer to it. */
    void MapObject(const CObject* pOb);
    void WriteClass(const CRuntimeClass* pClassRef);
    /** @param pSchema Receives the stored schema. @param pObTag Receives the tag when an object that was read
     *  before comes instead; the answer is then null. */
    CRuntimeClass* ReadClass(const CRuntimeClass* pClassRefRequested = nullptr, UINT* pSchema = nullptr,
                             DWORD* pObTag = nullptr);
    /** In Serialize: the schema that the object was stored with; 0xFFFFFFFF when called a second time or
     *  outside of a reading. */
    UINT GetObjectSchema();
    void SetObjectSchema(UINT nSchema) noexcept;
    ///@}

    CArchive& operator<<(BYTE by) { return Put(by); }
    CArchive& operator<<(WORD w) { return Put(w); }
    CArchive& operator<<(LONG l) { return Put(l); }
    CArchive& operator<<(DWORD dw) { return Put(dw); }
    CArchive& operator<<(float f) { return Put(f); }
    CArchive& operator<<(double d) { return Put(d); }
    CArchive& operator<<(LONGLONG dwdw) { return Put(dwdw); }
    CArchive& operator<<(ULONGLONG dwdw) { return Put(dwdw); }
    CArchive& operator<<(int i) { return Put(i); }
    CArchive& operator<<(short w) { return Put(w); }
    CArchive& operator<<(char ch) { return Put(ch); }
    CArchive& operator<<(wchar_t ch) { return Put(ch); }
    CArchive& operator<<(unsigned u) { return Put(u); }
    CArchive& operator<<(bool b) { return Put(static_cast<BYTE>(b ? 1 : 0)); }

    CArchive& operator>>(BYTE& by) { return Get(by); }
    CArchive& operator>>(WORD& w) { return Get(w); }
    CArchive& operator>>(LONG& l) { return Get(l); }
    CArchive& operator>>(DWORD& dw) { return Get(dw); }
    CArchive& operator>>(float& f) { return Get(f); }
    CArchive& operator>>(double& d) { return Get(d); }
    CArchive& operator>>(LONGLONG& dwdw) { return Get(dwdw); }
    CArchive& operator>>(ULONGLONG& dwdw) { return Get(dwdw); }
    CArchive& operator>>(int& i) { return Get(i); }
    CArchive& operator>>(short& w) { return Get(w); }
    CArchive& operator>>(char& ch) { return Get(ch); }
    CArchive& operator>>(wchar_t& ch) { return Get(ch); }
    CArchive& operator>>(unsigned& u) { return Get(u); }
    CArchive& operator>>(bool& b);

private:
    struct ObjectMap;

    template <class T>
    CArchive& Put(T value)
    {
        Write(&value, sizeof value);
        return *this;
    }
    template <class T>
    CArchive& Get(T& value)
    {
        T read;
        EnsureRead(&read, sizeof read);
        value = read;
        return *this;
    }

    [[noreturn]] void Throw(int cause) const;
    ObjectMap& Map();
    void EmptyBuffer();
    void WriteTag(DWORD index, bool isClass);

    CFile* m_file;
    UINT m_mode;
    UINT m_size;
    UINT m_at = 0;     // next unit of the buffer
    UINT m_filled = 0; // loading: where the buffer's contents end
    UINT m_schema = static_cast<UINT>(-1);
    BYTE* m_buffer;
    std::unique_ptr<BYTE[]> m_ownBuffer;
    std::unique_ptr<ObjectMap> m_map; // made with the first object
};

inline CArchive& operator<<(CArchive& ar, const CObject* pOb)
{
    ar.WriteObject(pOb);
    return ar;
}

inline CArchive& operator>>(CArchive& ar, CObject*& pOb)
{
    pOb = ar.ReadObject(nullptr);
    return ar;
}

/** A text: a mark for 16-bit units, the length in one, three or seven bytes, the units. Loading also accepts
 *  texts of 8-bit units, which carry no mark. */
VAFX_API CArchive& operator<<(CArchive& ar, const CStringW& text);
VAFX_API CArchive& operator>>(CArchive& ar, CStringW& text);
