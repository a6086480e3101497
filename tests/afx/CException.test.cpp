#include <afx.h>

#include "afx/Thrown.h"

#include <cerrno>
#include <gtest/gtest.h>

namespace
{

CString MessageOf(const CException& e)
{
    wchar_t text[200] = L"unset";
    return e.GetErrorMessage(text, 200) ? CString(text) : CString(L"none: ") + text;
}

} // namespace

// The library throws from its own module; this program's handlers must see the type and its bases.
TEST(CException, CrossesTheModulesEdge)
{
    bool unwound = false;
    struct Guard {
        bool& flag;
        ~Guard() { flag = true; }
    };
    try {
        const Guard guard{unwound};
        CFile file(L"Q:\\no such\\file", CFile::modeRead);
        FAIL() << "no exception";
    } catch (CFileException* e) {
        EXPECT_EQ(e->m_cause, CFileException::badPath);
        EXPECT_TRUE(e->IsKindOf(RUNTIME_CLASS(CFileException)));
        e->Delete();
    }
    EXPECT_TRUE(unwound);

    try {
        AfxThrowArchiveException(CArchiveException::badSchema, L"a.dat");
    } catch (CFileException*) {
        FAIL() << "not a file exception";
    } catch (CException* e) {
        EXPECT_STREQ(e->GetRuntimeClass()->m_lpszClassName, "CArchiveException");
        e->Delete();
    }

    // Thrown on in this module, and once more from the library's.
    EXPECT_EQ(ThrownCause<CFileException>([] {
                  try {
                      AfxThrowFileException(CFileException::diskFull, ERROR_DISK_FULL, L"x");
                  } catch (CException* e) {
                      EXPECT_TRUE(e->IsKindOf(RUNTIME_CLASS(CFileException)));
                      throw;
                  }
              }),
              CFileException::diskFull);
}

TEST(CException, SimpleOnesAreToldByTheirClass)
{
    const auto classOf = [](auto&& action) -> CString {
        try {
            action();
        } catch (CSimpleException* e) {
            const CString name(e->GetRuntimeClass()->m_lpszClassName);
            e->Delete();
            return name;
        }
        return L"nothing";
    };
    // The memory exception is one object for all: Delete must leave it alone.
    for (int i = 0; i < 3; ++i)
        EXPECT_EQ(classOf([] { AfxThrowMemoryException(); }), L"CMemoryException");
    EXPECT_EQ(classOf([] { AfxThrowNotSupportedException(); }), L"CNotSupportedException");
    EXPECT_EQ(classOf([] { AfxThrowResourceException(); }), L"CResourceException");
    EXPECT_EQ(classOf([] { AfxThrowUserException(); }), L"CUserException");
    EXPECT_EQ(classOf([] { AfxThrowInvalidArgException(); }), L"CInvalidArgException");
}

TEST(CException, Describes)
{
    EXPECT_EQ(
        MessageOf(CFileException(CFileException::sharingViolation, ERROR_SHARING_VIOLATION, L"C:\\a.xml")),
        L"C:\\a.xml is in use by another program.");
    EXPECT_EQ(MessageOf(CFileException(99)), L"An unknown error occurred while accessing an unnamed file.");
    EXPECT_EQ(MessageOf(CArchiveException(CArchiveException::endOfFile, L"a.dat")),
              L"The end of a.dat was reached unexpectedly.");
    EXPECT_EQ(MessageOf(CMemoryException(FALSE)), L"Out of memory.");
    EXPECT_EQ(MessageOf(CUserException(FALSE)), L"none: ");
    wchar_t small[6];
    UINT help = 9;
    EXPECT_TRUE(CFileException(CFileException::diskFull).GetErrorMessage(small, 6, &help));
    EXPECT_STREQ(small, L"The d");
    EXPECT_EQ(help, 0U);
    EXPECT_FALSE(CFileException(CFileException::diskFull).GetErrorMessage(small, 0));
}

TEST(CFileException, FindsTheCauseOfAnError)
{
    struct Case {
        DWORD error;
        int cause;
    };
    for (const Case& c :
         {Case{NO_ERROR, 0}, Case{ERROR_INVALID_FUNCTION, 1}, Case{ERROR_FILE_NOT_FOUND, 2},
          Case{ERROR_PATH_NOT_FOUND, 3}, Case{ERROR_TOO_MANY_OPEN_FILES, 4}, Case{ERROR_ACCESS_DENIED, 5},
          Case{ERROR_INVALID_HANDLE, 6}, Case{ERROR_CURRENT_DIRECTORY, 7}, Case{ERROR_SEEK, 9},
          Case{ERROR_NOT_READY, 10}, Case{ERROR_SHARING_VIOLATION, 11}, Case{ERROR_LOCK_VIOLATION, 12},
          Case{ERROR_DISK_FULL, 13}, Case{ERROR_HANDLE_EOF, 14}})
        EXPECT_EQ(CFileException::OsErrorToException(static_cast<LONG>(c.error)), c.cause) << c.error;
    EXPECT_EQ(CFileException::ErrnoToException(ENOSPC), CFileException::diskFull);
    EXPECT_EQ(CFileException::ErrnoToException(EACCES), CFileException::accessDenied);
    EXPECT_EQ(CFileException::ErrnoToException(ENOENT), CFileException::fileNotFound);
    EXPECT_EQ(ThrownCause<CFileException>([] { CFileException::ThrowOsError(ERROR_HANDLE_DISK_FULL); }),
              CFileException::diskFull);
    EXPECT_NO_THROW(CFileException::ThrowOsError(NO_ERROR));
}
