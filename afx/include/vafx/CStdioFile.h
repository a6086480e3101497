#pragma once

#include "vafx/CFile.h"

#include <cstdio>

/** A buffered file of lines. Unless it is opened with typeBinary, line ends are CR LF in the file and LF in
 * the program, and Ctrl-Z ends the reading. The file holds text in the system's 8-bit code page.
 *
 *  What is written reaches the disk with Flush or Close, and only these report that the disk refuses it: call
 *  Close rather than leave it to the destructor, which reports nothing. */
class VAFX_API CStdioFile : public CFile
{
    DECLARE_DYNAMIC(CStdioFile)

public:
    CStdioFile();
    /** Takes over an open stream, which Close or the destructor closes. */
    explicit CStdioFile(FILE* pOpenStream);
    /** Opens a file or throws CFileException*; @see CFile::OpenFlags. */
    CStdioFile(LPCWSTR lpszFileName, UINT nOpenFlags);
    ~CStdioFile() override;

    BOOL Open(LPCWSTR lpszFileName, UINT nOpenFlags, CFileException* pError = nullptr) override;

    /** Writes a text; a line's end is its LF. */
    virtual void WriteString(LPCWSTR lpsz);
    /** Reads a line of any length, without its end.
     *  @return FALSE, and an empty text, when there was nothing left to read. */
    virtual BOOL ReadString(CStringW& rString);

    UINT Read(void* lpBuf, UINT nCount) override;
    void Write(const void* lpBuf, UINT nCount) override;
    ULONGLONG Seek(LONGLONG lOff, UINT nFrom) override;
    ULONGLONG GetPosition() const override;
    ULONGLONG GetLength() const override;
    void SetLength(ULONGLONG dwNewLen) override;
    void Flush() override;
    void Close() override;
    void Abort() override;

    FILE* m_pStream; ///< Null while nothing is open.
};
