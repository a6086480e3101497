#include <afx.h>

#include "afx/Thrown.h"

#include <functional>
#include <gtest/gtest.h>
#include <limits>
#include <memory>
#include <random>
#include <set>
#include <vector>

namespace
{

/** A place with a name, and the next one of a route, which may lead back. */
class CPlace : public CObject
{
    DECLARE_SERIAL(CPlace)

public:
    CPlace() { s_alive.insert(this); }
    ~CPlace() override { s_alive.erase(this); }

    void Serialize(CArchive& ar) override
    {
        if (ar.IsStoring())
            ar << m_name << m_depth << m_next;
        else
            ar >> m_name >> m_depth >> m_next;
    }

    CString m_name;
    double m_depth = 0.0;
    CPlace* m_next = nullptr; // not owned

    /** Deletes what a reading that failed left behind. */
    static void DeleteAllBut(const std::set<CPlace*>& kept)
    {
        const std::set<CPlace*> alive = s_alive;
        for (CPlace* place : alive) {
            if (!kept.contains(place))
                delete place;
        }
    }

    static std::set<CPlace*> s_alive;
};

std::set<CPlace*> CPlace::s_alive;

class CHarbour : public CPlace
{
    DECLARE_SERIAL(CHarbour)
};

class CVersioned : public CObject
{
    DECLARE_SERIAL(CVersioned)

public:
    void Serialize(CArchive& ar) override
    {
        if (ar.IsLoading()) {
            m_schema = ar.GetObjectSchema();
            m_second = ar.GetObjectSchema();
        }
    }

    UINT m_schema = 0;
    UINT m_second = 0;
};

IMPLEMENT_SERIAL(CPlace, CObject, 1)
IMPLEMENT_SERIAL(CHarbour, CPlace, 1)
IMPLEMENT_SERIAL(CVersioned, CObject, VERSIONABLE_SCHEMA | 3)

using Bytes = std::vector<BYTE>;

Bytes Stored(const std::function<void(CArchive&)>& write)
{
    CMemFile file;
    CArchive ar(&file, CArchive::store);
    write(ar);
    ar.Close();
    Bytes bytes(file.GetLength());
    file.SeekToBegin();
    file.Read(bytes.data(), static_cast<UINT>(bytes.size()));
    return bytes;
}

void Load(const Bytes& bytes, const std::function<void(CArchive&)>& read)
{
    CMemFile file;
    file.Write(bytes.data(), static_cast<UINT>(bytes.size()));
    file.SeekToBegin();
    CArchive ar(&file, CArchive::load);
    read(ar);
}

int LoadCause(const Bytes& bytes, const std::function<void(CArchive&)>& read)
{
    return ThrownCause<CArchiveException>([&] { Load(bytes, read); });
}

void ReadPlace(CArchive& ar)
{
    CPlace* place = nullptr;
    ar >> place;
    delete place;
}

} // namespace

TEST(CArchive, KeepsEveryType)
{
    const CString longText(L'\u00e9', 70'000);
    const Bytes bytes = Stored([&](CArchive& ar) {
        EXPECT_TRUE(ar.IsStoring() && !ar.IsLoading());
        ar << static_cast<BYTE>(200) << static_cast<WORD>(60'000) << -5L << 4'000'000'000UL << 1.5f << -0.1;
        ar << std::numeric_limits<LONGLONG>::min() << std::numeric_limits<ULONGLONG>::max() << -7
           << static_cast<short>(-8) << 'c' << L'\u20ac' << 9U << true << false;
        ar << CString() << CString(L"short") << CString(L'm', 254) << CString(L'n', 255) << longText;
    });
    Load(bytes, [&](CArchive& ar) {
        EXPECT_TRUE(ar.IsLoading() && !ar.IsStoring());
        BYTE b = 0;
        WORD w = 0;
        LONG l = 0;
        DWORD d = 0;
        float f = 0;
        double g = 0;
        LONGLONG ll = 0;
        ULONGLONG ull = 0;
        int i = 0;
        short s = 0;
        char c = 0;
        wchar_t wc = 0;
        unsigned u = 0;
        bool yes = false;
        bool no = true;
        ar >> b >> w >> l >> d >> f >> g >> ll >> ull >> i >> s >> c >> wc >> u >> yes >> no;
        EXPECT_EQ(b, 200);
        EXPECT_EQ(w, 60'000);
        EXPECT_EQ(l, -5);
        EXPECT_EQ(d, 4'000'000'000UL);
        EXPECT_EQ(f, 1.5f);
        EXPECT_EQ(g, -0.1);
        EXPECT_EQ(ll, std::numeric_limits<LONGLONG>::min());
        EXPECT_EQ(ull, std::numeric_limits<ULONGLONG>::max());
        EXPECT_TRUE(i == -7 && s == -8 && c == 'c' && wc == L'\u20ac' && u == 9 && yes && !no);
        CString texts[5];
        for (CString& text : texts)
            ar >> text;
        EXPECT_EQ(texts[0], L"");
        EXPECT_EQ(texts[1], L"short");
        EXPECT_EQ(texts[2].GetLength(), 254);
        EXPECT_EQ(texts[3], CString(L'n', 255));
        EXPECT_EQ(texts[4], longText);
        EXPECT_EQ(ar.Read(&b, 1), 0U);
    });
}

TEST(CArchive, WritesTextsWithALengthInFront)
{
    const Bytes wide = Stored([](CArchive& ar) { ar << CString(L"Ab"); });
    EXPECT_EQ(wide, (Bytes{0xFF, 0xFE, 0xFF, 2, 'A', 0, 'b', 0}));
    CString text;
    Load({3, 'o', 'l', 'd'}, [&](CArchive& ar) { ar >> text; });
    EXPECT_EQ(text, L"old");
}

TEST(CArchive, RestoresObjectsAndTheirReferences)
{
    CPlace first;
    CHarbour second;
    first.m_name = L"Buoy";
    first.m_depth = 12.5;
    first.m_next = &second;
    second.m_name = L"Harbour";
    second.m_next = &first; // a circle
    const CObject* const none = nullptr;
    const Bytes bytes = Stored([&](CArchive& ar) { ar << &first << none << &second << &first; });

    const std::size_t before = CPlace::s_alive.size();
    Load(bytes, [&](CArchive& ar) {
        CPlace* a = nullptr;
        CObject* nothing = &first;
        CHarbour* b = nullptr;
        CPlace* again = nullptr;
        ar >> a >> nothing >> b >> again;
        const std::unique_ptr<CPlace> ownA(a);
        const std::unique_ptr<CPlace> ownB(b);
        ASSERT_TRUE(a != nullptr && b != nullptr);
        EXPECT_EQ(nothing, nullptr);
        EXPECT_EQ(a->m_name, L"Buoy");
        EXPECT_EQ(a->m_depth, 12.5);
        EXPECT_EQ(a->m_next, b);
        EXPECT_EQ(b->m_next, a);
        EXPECT_EQ(again, a);
        EXPECT_TRUE(b->IsKindOf(RUNTIME_CLASS(CHarbour)));
        EXPECT_EQ(CPlace::s_alive.size(), before + 2);
    });
}

TEST(CArchive, NumbersManyObjectsBeyondSixteenBits)
{
    constexpr int count = 40'000;
    std::vector<std::unique_ptr<CVersioned>> objects;
    const Bytes bytes = Stored([&](CArchive& ar) {
        for (int i = 0; i < count; ++i)
            ar << objects.emplace_back(std::make_unique<CVersioned>()).get();
        ar << objects.back().get() << objects.front().get();
    });
    Load(bytes, [&](CArchive& ar) {
        std::vector<std::unique_ptr<CVersioned>> loaded;
        for (int i = 0; i < count; ++i) {
            CVersioned* object = nullptr;
            ar >> object;
            loaded.emplace_back(object);
        }
        CVersioned* last = nullptr;
        CVersioned* front = nullptr;
        ar >> last >> front;
        EXPECT_EQ(last, loaded.back().get());
        EXPECT_EQ(front, loaded.front().get());
        EXPECT_EQ(last->m_schema, 3U);
        EXPECT_EQ(last->m_second, 0xFFFFFFFFU) << "the schema is told once";
    });
}

TEST(CArchive, EveryTruncationEndsInEndOfFile)
{
    CPlace first;
    CHarbour second;
    first.m_name = L"Buoy";
    first.m_next = &second;
    const Bytes bytes = Stored([&](CArchive& ar) { ar << &first << CString(L"after") << 1.0; });
    const std::set<CPlace*> stored = CPlace::s_alive;
    for (std::size_t length = 0; length < bytes.size(); ++length) {
        const Bytes part(bytes.begin(), bytes.begin() + static_cast<std::ptrdiff_t>(length));
        const int cause = LoadCause(part, [&](CArchive& ar) {
            CPlace* place = nullptr;
            CString text;
            double number = 0;
            ar >> place >> text >> number;
        });
        EXPECT_EQ(cause, CArchiveException::endOfFile) << "cut after " << length << " bytes";
        CPlace::DeleteAllBut(stored);
    }
}

TEST(CArchive, SurvivesDamageAnywhere)
{
    CPlace first;
    CHarbour second;
    CPlace third;
    first.m_name = L"Buoy";
    first.m_next = &second;
    second.m_next = &third;
    third.m_next = &first;
    const Bytes bytes = Stored([&](CArchive& ar) { ar << &first << &second << CString(L'x', 300); });
    const std::set<CPlace*> stored = CPlace::s_alive;
    std::minstd_rand random(7); // the same damage in every run
    int refused = 0;
    constexpr int rounds = 20'000;
    for (int i = 0; i < rounds; ++i) {
        Bytes damaged = bytes;
        for (unsigned n = random() % 4 + 1; n > 0; --n)
            damaged[random() % 100] = static_cast<BYTE>(random() % 3 == 0 ? 0xFF : random());
        try {
            Load(damaged, [](CArchive& ar) {
                CPlace* a = nullptr;
                CPlace* b = nullptr;
                CString text;
                ar >> a >> b >> text;
            });
        } catch (CArchiveException* e) {
            ++refused;
            e->Delete();
        }
        CPlace::DeleteAllBut(stored);
    }
    EXPECT_GT(refused, rounds / 2);
    EXPECT_EQ(CPlace::s_alive, stored);
}

TEST(CArchive, RefusesDamage)
{
    struct Case {
        const char* what;
        Bytes bytes;
        int cause;
    };
    const Case cases[] = {
        {"an object that was never stored", {5, 0}, CArchiveException::badIndex},
        {"a class that was never stored", {5, 0x80}, CArchiveException::badIndex},
        {"a wide tag without meaning", {0xFF, 0x7F, 0xFF, 0xFF, 0xFF, 0x3F}, CArchiveException::badIndex},
        {"an unknown class", {0xFF, 0xFF, 1, 0, 2, 0, 'X', 'Y'}, CArchiveException::badClass},
        {"a name beyond all measure", {0xFF, 0xFF, 1, 0, 0xFF, 0xFF, 'X'}, CArchiveException::badClass},
        {"a class without serialisation",
         {0xFF, 0xFF, 1, 0, 5, 0, 'C', 'F', 'i', 'l', 'e'},
         CArchiveException::badClass},
        {"another schema",
         {0xFF, 0xFF, 9, 0, 6, 0, 'C', 'P', 'l', 'a', 'c', 'e'},
         CArchiveException::badSchema},
        {"an object of another class",
         {0xFF, 0xFF, 3, 0, 10, 0, 'C', 'V', 'e', 'r', 's', 'i', 'o', 'n', 'e', 'd'},
         CArchiveException::badClass},
    };
    for (const Case& c : cases)
        EXPECT_EQ(LoadCause(c.bytes, ReadPlace), c.cause) << c.what;

    CString text;
    const auto readText = [&text](CArchive& ar) { ar >> text; };
    // Lengths of 4 GB and of 2^63 units: they must cost neither the memory nor the time.
    EXPECT_EQ(LoadCause({0xFF, 0xFE, 0xFF, 0xFF, 0xFF, 0xFF, 0xFE, 0xFF, 0xFF, 0xFF, 'x', 0}, readText),
              CArchiveException::endOfFile);
    EXPECT_EQ(LoadCause({0xFF, 0xFF, 0xFF, 0xFF, 0xFF, 0xFF, 0xFF, 0, 0, 0, 0, 0, 0, 0, 0x80, 'x'}, readText),
              CArchiveException::endOfFile);
    EXPECT_EQ(LoadCause({0xFF, 0xFE, 0xFF, 0xFF, 0xFE, 0xFF, 1}, readText), CArchiveException::badIndex);
    EXPECT_EQ(text, L"") << "a text that failed to load is unchanged";
}

TEST(CArchive, BoundsTheNestingOfDamagedObjects)
{
    // A name and a depth, then again an object of the class: a chain that no stack would hold.
    Bytes bytes = {0xFF, 0xFF, 1, 0, 6, 0, 'C', 'P', 'l', 'a', 'c', 'e'};
    for (int i = 0; i < 200'000; ++i)
        bytes.insert(bytes.end(), {0, 0, 0, 0, 0, 0, 0, 0, 0, 1, 0x80});
    EXPECT_EQ(LoadCause(bytes, ReadPlace), CArchiveException::badIndex);
}

TEST(CArchive, RefusesTheWrongDirection)
{
    CMemFile file;
    CArchive out(&file, CArchive::store);
    int value = 0;
    EXPECT_EQ(ThrownCause<CArchiveException>([&] { out >> value; }), CArchiveException::writeOnly);
    out.Close();
    CArchive in(&file, CArchive::load);
    EXPECT_EQ(ThrownCause<CArchiveException>([&] { in << value; }), CArchiveException::readOnly);
}

TEST(CArchive, LeavesTheFileWhereItStopped)
{
    CMemFile file;
    CArchive out(&file, CArchive::store);
    out << 1 << 2;
    out.Close();
    file.Write("tail", 4);
    file.SeekToBegin();
    CArchive in(&file, CArchive::load);
    int one = 0;
    int two = 0;
    in >> one >> two;
    in.Close();
    char tail[5] = {};
    EXPECT_EQ(file.Read(tail, 4), 4U);
    EXPECT_STREQ(tail, "tail");

    CArchive dropped(&file, CArchive::store);
    dropped << 1;
    dropped.Abort();
    EXPECT_EQ(file.GetLength(), 12U);
}
