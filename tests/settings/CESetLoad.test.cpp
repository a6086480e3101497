// The reader against files that no writer of ours made.

#include "tests/settings/Support.h"

#include <algorithm>

namespace
{

using support::DumpOfFile;
using support::TempDir;

/** Lines inside an object. */
std::string InObject(const std::string& lines)
{
    const std::string prefix = "c{o:t{";
    std::string dump = DumpOfFile("<Collection name=\"c\">\n<Object name=\"o\" type=\"t\">\n" + lines + "\n");
    EXPECT_EQ(dump.substr(0, prefix.size()), prefix);
    return dump.substr(prefix.size(), dump.size() - prefix.size() - 2);
}

const std::string sample = "<?xml version=\"1.0\" ?>\r\n"
                           "<Corvane date=\"today\">\r\n"
                           "\t<Collection name=\"c\">\r\n"
                           "\t\t<Object name=\"o\" type=\"t\">\r\n"
                           "\t\t\t<a val=\"12\"/>\r\n"
                           "\t\t\t<Data>d</Data>\r\n"
                           "\t\t</Object>\r\n"
                           "\t</Collection>\r\n"
                           "</Corvane>\r\n";

} // namespace

TEST(CESetLoad, FollowsTheStructureLineByLine)
{
    const struct {
        const char* symptom;
        std::string file;
        const char* tree;
    } rows[] = {
        {"nothing", "", ""},
        {"blank lines", "\n \n\t\r\n", ""},
        {"sample", sample, "c{o:t{a=12;*d;}}"},
        {"no line end at the end", "<Collection name=\"c\">", "c{}"},
        {"line feeds alone", "<Collection name=\"c\">\n<Object name=\"o\" type=\"t\">\n<a val=\"1\"/>",
         "c{o:t{a=1;}}"},
        {"carriage returns alone make one line", "<Collection name=\"c\">\r<Object name=\"o\" type=\"t\">\r",
         "c{}"},
        {"tags on one line", "<Collection name=\"c\"><Object name=\"o\" type=\"t\">\n<a val=\"1\"/>\n",
         "c{}"},
        {"item behind its object's tag",
         "<Collection name=\"c\">\n<Object name=\"o\" type=\"t\"><a val=\"1\"/>", "c{o:t{}}"},
        {"item outside an object", "<a val=\"1\"/>\n<Collection name=\"c\">\n<a val=\"1\"/>\n<Data>d</Data>",
         "c{}"},
        {"object outside a collection", "<Object name=\"o\" type=\"t\">\n<a val=\"1\"/>\n", ""},
        {"collection within a collection", "<Collection name=\"c\">\n<Collection name=\"d\">\n", "c{}"},
        {"object within an object",
         "<Collection name=\"c\">\n<Object name=\"o\" type=\"t\">\n<Object name=\"p\" type=\"u\">",
         "c{o:t{}}"},
        {"collection's end within an object",
         "<Collection name=\"c\">\n<Object name=\"o\" type=\"t\">\n</Collection>\n<a val=\"1\"/>",
         "c{o:t{a=1;}}"},
        {"ends with something on their lines",
         "<Collection name=\"c\">\n<Object name=\"o\" type=\"t\">\n</Object> \n</Collection>x\n<Object "
         "name=\"p\" type=\"u\">",
         "c{o:t{}p:u{}}"},
        {"root element missing", "<Collection name=\"c\">\n</Collection>\n<Collection name=\"d\">\n",
         "c{}d{}"},
        {"byte-order mark before the declaration", "\xEF\xBB\xBF" + sample, "c{o:t{a=12;*d;}}"},
        {"byte-order mark before a tag", "\xEF\xBB\xBF<Collection name=\"c\">\n", ""},
        {"other tags", "<Collections name=\"c\">\n<collection name=\"c\">\n<Collection Name=\"c\">\n", ""},
        {"names with anything", "<Collection name=\"a <b> & 'c'\">\n<Object name=\" \" type=\"%d\">",
         "a <b> & 'c'{ :%d{}}"}};
    for (const auto& row : rows)
        EXPECT_EQ(DumpOfFile(row.file), row.tree) << row.symptom;
}

TEST(CESetLoad, CountsALineWhenItsFieldsConvert)
{
    const struct {
        const char* line;
        const char* tree;
    } rows[] = {{"<Collection name=\"c\">", "c{}"},
                {"<Collection name=\"c\"", "c{}"},
                {"<Collection name=\"c", "c{}"},
                {"<Collection name=\"c\"> and more", "c{}"},
                {"  <Collection \t name=\"c\">  ", "c{}"},
                {"<Collectionname=\"c\">", "c{}"},
                {"<Collection name=\"\">", ""},
                {"<Collection name=\"", ""},
                {"<Collection name =\"c\">", ""},
                {"< Collection name=\"c\">", ""},
                {"<Collection type=\"t\" name=\"c\">", ""}};
    for (const auto& row : rows)
        EXPECT_EQ(DumpOfFile(row.line), row.tree) << row.line;

    const struct {
        const char* line;
        const char* tree;
    } objects[] = {{"<Object name=\"o\" type=\"t\">", "c{o:t{}}"},
                   {"<Object name=\"o\"type=\"t", "c{o:t{}}"},
                   {"<Object\tname=\"o\" \t type=\"t\"/>", "c{o:t{}}"},
                   {"<Object name=\"o\">", "c{}"},
                   {"<Object name=\"\" type=\"t\">", "c{}"},
                   {"<Object name=\"o\" type=\"\">", "c{}"},
                   {"<Object type=\"t\" name=\"o\">", "c{}"}};
    for (const auto& row : objects)
        EXPECT_EQ(DumpOfFile(std::string("<Collection name=\"c\">\n") + row.line), row.tree) << row.line;
}

TEST(CESetLoad, ReadsItemsAndDataLines)
{
    const struct {
        std::string line;
        std::string items;
    } rows[] = {{"<a val=\"1\"/>", "a=1;"},
                {"<a val=\"1\"", "a=1;"},
                {"<a val=\"1", "a=1;"},
                {"<a val=\"1\"/><b val=\"2\"/>", "a=1;"},
                {"<  a \t val=\"  1  \"/>", "a=  1  ;"},
                {"<a b=\"2\" val=\"1\"/>", ""},
                {"<a val=\"\"/>", ""},
                {"<a val=1/>", ""},
                {"<a val =\"1\"/>", ""},
                {"<aval=\"1\"/>", ""},
                {"< val=\"1\"/>", ""},
                {"a val=\"1\"/>", ""},
                {"<a/b>\"c val=\"1\"/>", "a/b>\"c=1;"},
                {"<a val=\"x\ry\"/>", "a=x\ry;"},
                {"<Data>d</Data>", "*d;"},
                {"<Data> d ", "* d;"},
                {"<Data>a > b", "*a > b;"},
                {"<Data>100%</Data>", "*100%;"},
                {"<Data></Data>", ""},
                {"<Data>", ""},
                {"<data>d</data>", ""},
                {"<Data >d</Data>", ""},
                {"<Data>x val=\"1\"", "Data>x=1;"}, // an item, to whoever looks for an item first
                {std::string("<a val=\"1\0002\"/>", 17), "a=1;"},
                {std::string("\0<a val=\"1\"/>\n<b val=\"2\"/>", 27), "b=2;"},
                {"<a val=\"50%% of %d%s\"/>", "a=50% of 0;"},
                {"<a val=\"100%\"/>", "a=100;"},
                {"<a%b val=\"1\"/>", "a%b=1;"}};
    for (const auto& row : rows)
        EXPECT_EQ(InObject(row.line), row.items) << row.line;
}

TEST(CESetLoad, CutsFieldsAt4095Characters)
{
    const std::string most(4095, 'x');
    const std::string tooLong(4096, 'x');
    EXPECT_EQ(DumpOfFile("<Collection name=\"" + most + "\">"), most + "{}");
    EXPECT_EQ(DumpOfFile("<Collection name=\"" + tooLong + "\">"), most + "{}");
    EXPECT_EQ(DumpOfFile("<Collection name=\"c\">\n<Object name=\"" + most + "\" type=\"" + tooLong + "\">"),
              "c{" + most + ":" + most + "{}}");
    EXPECT_EQ(DumpOfFile("<Collection name=\"c\">\n<Object name=\"" + tooLong + "\" type=\"t\">"), "c{}");
    EXPECT_EQ(InObject("<" + most + " val=\"" + tooLong + "\"/>"), most + "=" + most + ";");
    EXPECT_EQ(InObject("<" + tooLong + " val=\"1\"/>"), "");
    EXPECT_EQ(InObject("<Data>" + tooLong + "</Data>"), "*" + most + ";");
    EXPECT_EQ(InObject("<a val=\"%512d%512d%512d%512d%512d%512d%512d%512d%512d\"/>").size(), 2 + 4095 + 1U);
}

TEST(CESetLoad, DropsTheRestOfAnEndlessLine)
{
    const std::string endless(3'000'000, ' ');
    EXPECT_EQ(InObject("<a val=\"1\"/>" + endless + "\n<b val=\"2\"/>"), "a=1;b=2;");
    EXPECT_EQ(InObject(endless + "<a val=\"1\"/>\n<b val=\"2\"/>"), "b=2;");
    EXPECT_EQ(InObject("<a val=\"" + std::string(3'000'000, 'x') + "\"/>\n<b val=\"2\"/>"),
              "a=" + std::string(4095, 'x') + ";b=2;");
    EXPECT_EQ(InObject("<a val=\"1\"/>" + endless), "a=1;");
    // Every position of a line relative to the reader's buffer.
    for (std::size_t i = 0; i < 40; ++i)
        EXPECT_EQ(InObject(std::string((1U << 18) - 80 + i, ' ') + "\n<a val=\"1\"/>\n<b val=\"2\"/>"),
                  "a=1;b=2;")
            << i;
}

TEST(CESetLoad, SurvivesTruncationAnywhere)
{
    const std::string whole = "c{o:t{a=12;*d;}}";
    for (std::size_t size = 0; size <= sample.size(); ++size) {
        const std::string dump = DumpOfFile(sample.substr(0, size));
        const bool isPart = std::any_of(whole.begin(), whole.end(), [&, at = std::size_t{0}](char) mutable {
            const std::string part = whole.substr(0, at++);
            return dump == part + "}}" || dump == part + "}" || dump == part;
        });
        EXPECT_TRUE(dump == whole || isPart || dump == "c{o:t{a=1;}}") << size << ": " << dump;
    }
}

TEST(CESetLoad, SurvivesNoise)
{
    std::uint32_t state = 12345;
    const auto random = [&] { return (state = state * 1664525 + 1013904223) >> 16; };
    for (int round = 0; round < 200; ++round) {
        std::string bytes = sample + sample;
        for (int i = 0; i < 1 + round / 4; ++i)
            bytes[random() % bytes.size()] = static_cast<char>(random());
        DumpOfFile(bytes);
        for (char& c : bytes)
            c = static_cast<char>(random());
        EXPECT_EQ(DumpOfFile(bytes), "");
    }
}

TEST(CESetLoad, LeavesTheTreeAloneWhenTheFileCannotBeOpened)
{
    const TempDir dir;
    CESet set(0);
    set.AddCol(L"c");
    EXPECT_EQ(set.Load(dir.File(L"missing.xml")), 0);
    EXPECT_EQ(set.Load(dir.File(L"missing\\VantApp.xml")), 0);
    EXPECT_EQ(set.Load(dir.File(L"")), 0); // a directory
    EXPECT_EQ(set.Load(L""), 0);
    support::WriteBytes(dir.File(), sample);
    const HANDLE lock =
        CreateFileW(dir.File(), GENERIC_READ, 0, nullptr, OPEN_EXISTING, FILE_ATTRIBUTE_NORMAL, nullptr);
    EXPECT_EQ(set.Load(dir.File()), 0);
    CloseHandle(lock);
    EXPECT_EQ(support::Dump(set), "c{}");
    EXPECT_NE(set.Load(dir.File()), 0);
}

/** The inputs that the fuzzer starts from, and those it found, through the library itself: whatever they say,
 * what was loaded comes back from a save. */
TEST(CESetLoad, KeepsWhatTheCorpusHolds)
{
    const std::string folder = "..\\..\\fuzz\\corpus\\settings\\";
    WIN32_FIND_DATAA found = {};
    const HANDLE search = FindFirstFileA((folder + "*").c_str(), &found);
    ASSERT_NE(search, INVALID_HANDLE_VALUE) << "run from tests/settings";
    int files = 0;
    do {
        if ((found.dwFileAttributes & FILE_ATTRIBUTE_DIRECTORY) != 0)
            continue;
        ++files;
        const std::string name = folder + found.cFileName;
        const TempDir dir;
        CESet first(1);
        ASSERT_NE(first.Load(CString(name.c_str())), 0) << name;
        ASSERT_NE(first.Save(dir.File()), 0);
        CESet second(1);
        ASSERT_NE(second.Load(dir.File()), 0);
        const std::string dump = support::Dump(first);
        const bool spoiled = dump.find('%') != dump.npos || dump.find("=;") != dump.npos;
        if (!spoiled) {
            EXPECT_EQ(support::Dump(second), dump) << name;
        }
    } while (FindNextFileA(search, &found));
    FindClose(search);
    EXPECT_GE(files, 15);
}
