#pragma once

#include "vafx/CTime.h"

#include <cstdlib>

/** What the file system tells about a file. */
struct CFileStatus {
    CTime m_ctime;                        ///< Made.
    CTime m_mtime;                        ///< Last written.
    CTime m_atime;                        ///< Last read.
    ULONGLONG m_size = 0;                 ///< In bytes.
    BYTE m_attribute = 0;                 ///< CFile::Attribute, combined.
    wchar_t m_szFullName[_MAX_PATH] = {}; ///< The whole path; empty when it is longer than this.
};
