#pragma once

#include "vafx/CObject.h"
#include "vafx/CStringW.h"
#include "vafx/CTime.h"

/** Walks through the files that match a pattern.
 *  @code
 *  CFileFind find;
 *  for (BOOL more = find.FindFile(L"C:\\Data\\*.clt"); more;) {
 *      more = find.FindNextFile();
 *      Use(find.GetFilePath());
 *  }
 *  @endcode
 *  Directories and the entries "." and ".." are among what is found. */
class VAFX_API CFileFind : public CObject
{
    DECLARE_DYNAMIC(CFileFind)

public:
    CFileFind();
    ~CFileFind() override;

    /** Starts a search; FindNextFile then moves to the first file.
     *  @param pstrName A path whose last part may hold * and ?; null: all files of the current directory.
     *  @return FALSE when nothing matches; GetLastError of the system tells why. */
    virtual BOOL FindFile(LPCWSTR pstrName = nullptr, DWORD dwUnused = 0);
    /** Moves to the next file. @return FALSE when it is the last one (which can be asked about nevertheless).
     */
    virtual BOOL FindNextFile();
    /** Ends the search. */
    void Close();

    /** @name About the file that FindNextFile moved to */
    ///@{
    ULONGLONG GetLength() const; ///< In bytes.
    virtual CStringW GetFileName() const;
    virtual CStringW GetFilePath() const;  ///< The whole path.
    virtual CStringW GetFileTitle() const; ///< The name without its extension.
    virtual CStringW GetRoot() const;      ///< The directory, ending in a backslash.
    virtual BOOL GetCreationTime(CTime& refTime) const;
    virtual BOOL GetLastAccessTime(CTime& refTime) const;
    virtual BOOL GetLastWriteTime(CTime& refTime) const;
    /** @return TRUE when the file has any of the system's attributes in @p dwMask. */
    virtual BOOL MatchesMask(DWORD dwMask) const;
    virtual BOOL IsDots() const; ///< TRUE for "." and "..".
    BOOL IsReadOnly() const { return MatchesMask(FILE_ATTRIBUTE_READONLY); }
    BOOL IsDirectory() const { return MatchesMask(FILE_ATTRIBUTE_DIRECTORY); }
    BOOL IsCompressed() const { return MatchesMask(FILE_ATTRIBUTE_COMPRESSED); }
    BOOL IsSystem() const { return MatchesMask(FILE_ATTRIBUTE_SYSTEM); }
    BOOL IsHidden() const { return MatchesMask(FILE_ATTRIBUTE_HIDDEN); }
    BOOL IsTemporary() const { return MatchesMask(FILE_ATTRIBUTE_TEMPORARY); }
    BOOL IsNormal() const { return MatchesMask(FILE_ATTRIBUTE_NORMAL); }
    BOOL IsArchived() const { return MatchesMask(FILE_ATTRIBUTE_ARCHIVE); }
    ///@}

private:
    HANDLE m_hContext;
    WIN32_FIND_DATAW m_found; // where the walk is
    WIN32_FIND_DATAW m_next;
    bool m_hasFound;
    bool m_hasNext;
    CStringW m_strRoot;
};
