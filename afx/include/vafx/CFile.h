#pragma once

#include "vafx/CFileException.h"
#include "vafx/CObject.h"
#include "vafx/CStringW.h"

struct CFileStatus;

/** A file of bytes, read and written without buffering. Positions and lengths are in bytes. Functions throw
 *  CFileException* unless they say otherwise. The destructor closes the file and reports nothing. */
class VAFX_API CFile : public CObject
{
    DECLARE_DYNAMIC(CFile)

public:
    /** One access mode, one share mode and any of the others, combined with |. */
    enum OpenFlags {
        modeRead = 0x00000,
        modeWrite = 0x00001,
        modeReadWrite = 0x00002,
        shareCompat = 0x00000, ///< The same as shareExclusive.
        shareExclusive = 0x00010,
        shareDenyWrite = 0x00020,
        shareDenyRead = 0x00030,
        shareDenyNone = 0x00040,
        modeNoInherit = 0x00080,
        modeCreate = 0x01000,     ///< Makes the file; one that exists loses its contents.
        modeNoTruncate = 0x02000, ///< With modeCreate: one that exists keeps its contents.
        typeText = 0x04000,       ///< Line ends are translated; CStdioFile only.
        typeBinary = 0x08000,
        osNoBuffer = 0x10000,
        osWriteThrough = 0x20000,
        osRandomAccess = 0x40000,
        osSequentialScan = 0x80000
    };
    enum Attribute {
        normal = 0x00,
        readOnly = 0x01,
        hidden = 0x02,
        system = 0x04,
        volume = 0x08,
        directory = 0x10,
        archive = 0x20
    };
    enum SeekPosition { begin = 0, current = 1, end = 2 };

    static const HANDLE hFileNull; ///< The handle of no file.

    CFile();
    /** Takes over an open file, which Close or the destructor closes. */
    explicit CFile(HANDLE hFile);
    /** Opens a file or throws. */
    CFile(LPCWSTR lpszFileName, UINT nOpenFlags);
    ~CFile() override;

    operator HANDLE() const { return m_hFile; }

    /** Opens a file. @param pError Is filled in when that fails. Throws nothing.
     *  @return FALSE when the file could not be opened. */
    virtual BOOL Open(LPCWSTR lpszFileName, UINT nOpenFlags, CFileException* pError = nullptr);

    /** @return How many bytes were read: fewer than @p nCount only at the file's end. */
    virtual UINT Read(void* lpBuf, UINT nCount);
    /** Writes everything or throws; a file that cannot grow throws diskFull. */
    virtual void Write(const void* lpBuf, UINT nCount);
    /** @return The new position from the beginning. @p lOff counts from the place @p nFrom. */
    virtual ULONGLONG Seek(LONGLONG lOff, UINT nFrom);
    ULONGLONG SeekToEnd() { return Seek(0, end); }
    void SeekToBegin() { Seek(0, begin); }
    virtual ULONGLONG GetPosition() const;
    virtual ULONGLONG GetLength() const;
    /** Cuts off or lengthens the file; the position becomes its end. */
    virtual void SetLength(ULONGLONG dwNewLen);
    /** Has the system write to the disk what it still holds. */
    virtual void Flush();
    virtual void Close();
    /** Closes without reporting anything. */
    virtual void Abort();

    /** @name Names; empty for a file that was not opened by name */
    ///@{
    virtual CStringW GetFileName() const;  ///< Without the directory.
    virtual CStringW GetFilePath() const;  ///< The whole path.
    virtual CStringW GetFileTitle() const; ///< As the system shows the name to its user.
    virtual void SetFilePath(LPCWSTR lpszNewName);
    ///@}

    /** @return FALSE when the status cannot be read. */
    BOOL GetStatus(CFileStatus& rStatus) const;
    /** @overload */
    static BOOL PASCAL GetStatus(LPCWSTR lpszFileName, CFileStatus& rStatus);
    static void PASCAL Rename(LPCWSTR lpszOldName, LPCWSTR lpszNewName);
    static void PASCAL Remove(LPCWSTR lpszFileName);

    HANDLE m_hFile;

protected:
    CStringW m_strFileName; ///< The whole path.
    BOOL m_bCloseOnDelete;
};
