#pragma once

#include "vafx/CFile.h"

#include <vector>

/** A file in memory, read and written like one on the disk. */
class VAFX_API CMemFile : public CFile
{
    DECLARE_DYNAMIC(CMemFile)

public:
    /** @param nGrowBytes By how much the memory grows at least. */
    explicit CMemFile(UINT nGrowBytes = 1024);
    ~CMemFile() override;

    UINT Read(void* lpBuf, UINT nCount) override;
    void Write(const void* lpBuf, UINT nCount) override;
    /** A position behind the end is allowed; writing there fills the gap with zeros. */
    ULONGLONG Seek(LONGLONG lOff, UINT nFrom) override;
    ULONGLONG GetPosition() const override;
    ULONGLONG GetLength() const override;
    void SetLength(ULONGLONG dwNewLen) override;
    void Flush() override;
    /** Frees the memory; the file is then empty. */
    void Close() override;
    void Abort() override;

private:
    void Resize(ULONGLONG length);

    std::vector<BYTE> m_bytes;
    ULONGLONG m_position = 0;
    UINT m_growBytes;
};
