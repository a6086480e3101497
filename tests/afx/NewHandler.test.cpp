#include <afx.h>

#include "support/NoLargeBlocks.h"

#include <gtest/gtest.h>
#include <vector>

namespace
{

constexpr int largeText = 10'000'000; // characters

vant::test::NoLargeBlocks* taken;
std::vector<std::size_t> asked;

/** Leaves memory and the handler as they were. */
class NewHandler : public testing::Test
{
protected:
    NewHandler() { asked.clear(); }
    ~NewHandler() override { AfxSetNewHandler(nullptr); }
};

int __cdecl GiveUp(std::size_t bytes)
{
    asked.push_back(bytes);
    return 0;
}

int __cdecl MakeRoom(std::size_t bytes)
{
    asked.push_back(bytes);
    taken->Release();
    return 1;
}

bool TextFits()
{
    try {
        return CString(L'x', largeText).GetLength() == largeText;
    } catch (CMemoryException* e) {
        e->Delete();
        return false;
    }
}

} // namespace

TEST_F(NewHandler, IsAskedWhenATextFindsNoMemory)
{
    EXPECT_EQ(AfxSetNewHandler(&GiveUp), nullptr);
    EXPECT_EQ(AfxGetNewHandler(), &GiveUp);
    {
        vant::test::NoLargeBlocks space(L"VantAfx.dll");
        ASSERT_TRUE(space.IsActive());
        EXPECT_FALSE(TextFits());
    }
    ASSERT_EQ(asked.size(), 1u);
    EXPECT_GE(asked[0], largeText * sizeof(wchar_t));
    EXPECT_TRUE(TextFits());

    vant::test::NoLargeBlocks space(L"VantAfx.dll");
    ASSERT_TRUE(space.IsActive());
    taken = &space;
    EXPECT_EQ(AfxSetNewHandler(&MakeRoom), &GiveUp);
    EXPECT_TRUE(TextFits());
    EXPECT_EQ(asked.size(), 2u);
}

TEST_F(NewHandler, IsAskedByOperatorNewOfTheLibraryToo)
{
    const CString text(L'x', largeText);
    vant::test::NoLargeBlocks space(L"VantAfx.dll");
    ASSERT_TRUE(space.IsActive());
    taken = &space;
    AfxSetNewHandler(&MakeRoom);
    const CString wide(L"%s");
    CString result;
    result.Format(wide, text.GetString()); // the buffer of a formatting comes from operator new
    EXPECT_EQ(result.GetLength(), largeText);
    ASSERT_FALSE(asked.empty());
    EXPECT_EQ(asked[0], 0u);
}

TEST_F(NewHandler, WithoutOneTheAllocationFails)
{
    vant::test::NoLargeBlocks space(L"VantAfx.dll");
    ASSERT_TRUE(space.IsActive());
    EXPECT_EQ(AfxGetNewHandler(), nullptr);
    EXPECT_FALSE(TextFits());
    EXPECT_TRUE(asked.empty());
}
