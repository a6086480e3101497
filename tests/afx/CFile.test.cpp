#include <afx.h>

#include "afx/Thrown.h"
#include "support/TempDir.h"

#include <algorithm>
#include <gtest/gtest.h>
#include <limits>
#include <string>
#include <vector>

namespace
{

using vant::test::TempDir;

constexpr LPCWSTR fullDevice = L"Z:\\dev\\full"; // every write to it finds the disk full

bool HasFullDevice()
{
    CFile file;
    return file.Open(fullDevice, CFile::modeWrite | CFile::shareDenyNone) != FALSE;
}

void WriteBytes(const CString& path, const std::string& bytes)
{
    CFile file(path, CFile::modeCreate | CFile::modeWrite);
    file.Write(bytes.data(), static_cast<UINT>(bytes.size()));
    file.Close();
}

std::string ReadBytes(const CString& path)
{
    CFile file(path, CFile::modeRead | CFile::shareDenyNone);
    std::string bytes(file.GetLength(), '\0');
    bytes.resize(file.Read(bytes.data(), static_cast<UINT>(bytes.size())));
    return bytes;
}

} // namespace

TEST(CFile, CreatesKeepsAndTruncates)
{
    const TempDir dir;
    const CString path = dir.Path(L"a.bin");
    CFile file;
    CFileException error;
    EXPECT_FALSE(file.Open(path, CFile::modeRead, &error));
    EXPECT_EQ(error.m_cause, CFileException::fileNotFound);
    EXPECT_EQ(error.m_lOsError, ERROR_FILE_NOT_FOUND);
    EXPECT_EQ(error.m_strFileName, path);

    WriteBytes(path, "12345");
    ASSERT_TRUE(file.Open(path, CFile::modeCreate | CFile::modeNoTruncate | CFile::modeReadWrite));
    EXPECT_EQ(file.GetLength(), 5U);
    EXPECT_EQ(file.SeekToEnd(), 5U);
    file.Write("67", 2);
    EXPECT_EQ(file.GetPosition(), 7U);
    EXPECT_EQ(file.Seek(-3, CFile::current), 4U);
    char two[3] = {};
    EXPECT_EQ(file.Read(two, 2), 2U);
    EXPECT_STREQ(two, "56");
    file.SetLength(3);
    file.SeekToBegin();
    char all[9] = {};
    EXPECT_EQ(file.Read(all, 9), 3U);
    EXPECT_EQ(file.Read(all, 9), 0U);
    file.Close();
    EXPECT_TRUE(file.m_hFile == CFile::hFileNull);

    ASSERT_TRUE(file.Open(path, CFile::modeCreate | CFile::modeWrite));
    EXPECT_EQ(file.GetLength(), 0U);
}

TEST(CFile, TellsNamesAndStatus)
{
    const TempDir dir;
    const CString path = dir.Path(L"survey.dat");
    WriteBytes(path, "data");
    CFile file(path, CFile::modeRead);
    EXPECT_EQ(file.GetFilePath(), path);
    EXPECT_EQ(file.GetFileName(), L"survey.dat");
    EXPECT_EQ(file.GetFileTitle().Left(6), L"survey");
    CFileStatus status;
    ASSERT_TRUE(file.GetStatus(status));
    EXPECT_EQ(status.m_size, 4U);
    EXPECT_EQ(CString(status.m_szFullName), path);
    file.Close();
    EXPECT_TRUE(file.GetFilePath().IsEmpty());

    ASSERT_TRUE(CFile::GetStatus(path, status));
    EXPECT_EQ(status.m_size, 4U);
    EXPECT_EQ(status.m_attribute & CFile::directory, 0);
    EXPECT_LE(std::abs((CTime::GetCurrentTime() - status.m_mtime).GetTotalSeconds()), 3600);
    EXPECT_FALSE(CFile::GetStatus(dir.Path(L"none"), status));
    ASSERT_TRUE(CFile::GetStatus(dir.Path(L""), status));
    EXPECT_NE(status.m_attribute & CFile::directory, 0);
}

TEST(CFile, RenamesAndRemoves)
{
    const TempDir dir;
    WriteBytes(dir.Path(L"a"), "a");
    WriteBytes(dir.Path(L"b"), "b");
    EXPECT_EQ(ThrownCause<CFileException>([&] { CFile::Rename(dir.Path(L"a"), dir.Path(L"b")); }),
              CFileException::accessDenied);
    CFile::Rename(dir.Path(L"a"), dir.Path(L"c"));
    EXPECT_EQ(ReadBytes(dir.Path(L"c")), "a");
    CFile::Remove(dir.Path(L"c"));
    EXPECT_EQ(ThrownCause<CFileException>([&] { CFile::Remove(dir.Path(L"c")); }),
              CFileException::fileNotFound);
}

TEST(CFile, SharesAsAsked)
{
    struct Case {
        UINT share;
        bool otherMayRead;
        bool otherMayWrite;
    };
    const TempDir dir;
    const CString path = dir.Path(L"shared");
    WriteBytes(path, "x");
    for (const Case& c : {Case{CFile::shareExclusive, false, false}, Case{CFile::shareCompat, false, false},
                          Case{CFile::shareDenyWrite, true, false}, Case{CFile::shareDenyRead, false, true},
                          Case{CFile::shareDenyNone, true, true}}) {
        CFile first(path, CFile::modeRead | c.share);
        CFile second;
        CFileException error;
        EXPECT_EQ(second.Open(path, CFile::modeRead | CFile::shareDenyNone, &error) != FALSE, c.otherMayRead)
            << "share " << c.share;
        if (!c.otherMayRead) {
            EXPECT_EQ(error.m_cause, CFileException::sharingViolation);
        }
        second.Abort();
        EXPECT_EQ(second.Open(path, CFile::modeWrite | CFile::shareDenyNone) != FALSE, c.otherMayWrite)
            << "share " << c.share;
    }
}

TEST(CFile, FullDiskIsReportedByWrite)
{
    if (!HasFullDevice())
        GTEST_SKIP() << "this system has no device that is always full";
    CFile file(fullDevice, CFile::modeWrite | CFile::shareDenyNone);
    EXPECT_EQ(ThrownCause<CFileException>([&] { file.Write("x", 1); }), CFileException::diskFull);
}

TEST(CMemFile, RefusesPositionsThatNoFileCanHave)
{
    constexpr LONGLONG farthest = std::numeric_limits<LONGLONG>::max();
    CMemFile file;
    file.Write("abcd", 4);
    const auto seek = [&file](LONGLONG offset, UINT from) {
        return ThrownCause<CFileException>([&] { file.Seek(offset, from); });
    };
    EXPECT_EQ(seek(-5, CFile::end), CFileException::badSeek);
    EXPECT_EQ(seek(std::numeric_limits<LONGLONG>::min(), CFile::begin), CFileException::badSeek);
    EXPECT_EQ(file.Seek(farthest, CFile::begin), static_cast<ULONGLONG>(farthest));
    EXPECT_EQ(seek(farthest, CFile::current), CFileException::badSeek);
    EXPECT_EQ(file.GetPosition(), static_cast<ULONGLONG>(farthest));
    EXPECT_TRUE(Throws<CMemoryException>([&file] { file.Write("e", 1); }));
    EXPECT_EQ(file.GetLength(), 4U);
}

TEST(CStdioFile, TranslatesLineEnds)
{
    const TempDir dir;
    const CString path = dir.Path(L"lines.txt");
    CStdioFile out(path, CFile::modeCreate | CFile::modeWrite | CFile::typeText);
    out.WriteString(L"one\ntwo\n\nlast");
    out.Close();
    EXPECT_EQ(ReadBytes(path), "one\r\ntwo\r\n\r\nlast");

    CStdioFile in(path, CFile::modeRead);
    CString line;
    std::vector<CString> lines;
    while (in.ReadString(line))
        lines.push_back(line);
    EXPECT_EQ(lines, (std::vector<CString>{L"one", L"two", L"", L"last"}));
    EXPECT_FALSE(in.ReadString(line));
    EXPECT_TRUE(line.IsEmpty());
    in.Close();

    CStdioFile binary(path, CFile::modeCreate | CFile::modeWrite | CFile::typeBinary);
    binary.WriteString(L"one\n");
    binary.Close();
    EXPECT_EQ(ReadBytes(path), "one\n");
}

TEST(CStdioFile, ReadsLinesOfAnyLengthAndContent)
{
    const TempDir dir;
    const CString path = dir.Path(L"long.txt");
    // Around the pieces that a line is read in, and with zeros inside.
    for (const int length : {1, 509, 510, 511, 512, 513, 1021, 1022, 1023, 100'000}) {
        for (const char* end : {"\r\n", "\n", ""}) {
            std::string text(static_cast<std::size_t>(length), 'x');
            WriteBytes(path, text + end + (*end != '\0' ? "next" : ""));
            CStdioFile in(path, CFile::modeRead);
            CString line;
            ASSERT_TRUE(in.ReadString(line));
            EXPECT_EQ(line.GetLength(), length);
            EXPECT_EQ(in.ReadString(line) != FALSE, *end != '\0');
            if (*end != '\0') {
                EXPECT_EQ(line, L"next");
            }
        }
    }
    WriteBytes(path, std::string("a\0b\r\n\0", 6));
    CStdioFile in(path, CFile::modeRead);
    CString line;
    ASSERT_TRUE(in.ReadString(line));
    EXPECT_EQ(line, CString(L"a\0b", 3));
    ASSERT_TRUE(in.ReadString(line));
    EXPECT_EQ(line.GetLength(), 1);
}

TEST(CStdioFile, WritesTheCodePage)
{
    if (::GetACP() != 1252)
        GTEST_SKIP() << "the expected bytes are those of code page 1252";
    const TempDir dir;
    const CString path = dir.Path(L"page.txt");
    CStdioFile out(path, CFile::modeCreate | CFile::modeWrite);
    out.WriteString(L"12\u00b0\n");
    out.Close();
    EXPECT_EQ(ReadBytes(path), "12\xb0\r\n");
    CStdioFile in(path, CFile::modeRead);
    CString line;
    ASSERT_TRUE(in.ReadString(line));
    EXPECT_EQ(line, L"12\u00b0");
}

TEST(CStdioFile, AppendsSeeksAndCounts)
{
    const TempDir dir;
    const CString path = dir.Path(L"log.txt");
    for (int i = 0; i < 2; ++i) {
        CStdioFile log(path,
                       CFile::modeCreate | CFile::modeNoTruncate | CFile::modeWrite | CFile::shareDenyWrite);
        log.SeekToEnd();
        log.WriteString(L"line\n");
        EXPECT_EQ(log.GetLength(), static_cast<ULONGLONG>(6 * (i + 1)));
        log.Close();
    }
    EXPECT_EQ(ReadBytes(path), "line\r\nline\r\n");
    CStdioFile both(path, CFile::modeReadWrite | CFile::typeBinary);
    EXPECT_EQ(both.Seek(6, CFile::begin), 6U);
    char text[5] = {};
    EXPECT_EQ(both.Read(text, 4), 4U);
    EXPECT_STREQ(text, "line");
    both.SetLength(3);
    both.Close();
    EXPECT_EQ(ReadBytes(path), "lin");
    EXPECT_EQ(ThrownCause<CFileException>([&] { CStdioFile none(dir.Path(L"none\\x"), CFile::modeRead); }),
              CFileException::badPath);
}

TEST(CStdioFile, FullDiskIsReportedByFlushAndClose)
{
    if (!HasFullDevice())
        GTEST_SKIP() << "this system has no device that is always full";
    for (const bool flush : {true, false}) {
        CStdioFile file(fullDevice, CFile::modeWrite | CFile::shareDenyNone);
        file.WriteString(L"text\n");
        EXPECT_EQ(ThrownCause<CFileException>([&] { flush ? file.Flush() : file.Close(); }),
                  CFileException::diskFull)
            << (flush ? "Flush" : "Close");
    }
}

TEST(CFileFind, WalksThroughADirectory)
{
    const TempDir dir;
    WriteBytes(dir.Path(L"a.clt"), "123");
    WriteBytes(dir.Path(L"b.x.clt"), "");
    WriteBytes(dir.Path(L"c.txt"), "");
    ::CreateDirectoryW(dir.Path(L"sub"), nullptr);

    CFileFind find;
    EXPECT_FALSE(find.FindFile(dir.Path(L"*.none")));
    EXPECT_FALSE(find.FindFile(dir.Path(L"none\\*")));
    std::vector<CString> names;
    for (BOOL more = find.FindFile(dir.Path(L"*.clt")); more;) {
        more = find.FindNextFile();
        names.push_back(find.GetFileTitle());
        EXPECT_EQ(find.GetFilePath(), dir.Path(find.GetFileName()));
        EXPECT_EQ(find.GetRoot(), dir.Path(L""));
        if (find.GetFileName() == L"a.clt") {
            EXPECT_EQ(find.GetLength(), 3U);
        }
    }
    std::sort(names.begin(), names.end());
    EXPECT_EQ(names, (std::vector<CString>{L"a", L"b.x"}));

    int dots = 0;
    int directories = 0;
    int files = 0;
    for (BOOL more = find.FindFile(dir.Path(L"*")); more;) {
        more = find.FindNextFile();
        dots += find.IsDots();
        directories += find.IsDirectory();
        files += !find.IsDirectory();
    }
    EXPECT_EQ(dots, 2);
    EXPECT_EQ(directories, 3);
    EXPECT_EQ(files, 3);
}
