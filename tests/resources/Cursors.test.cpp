#include "resources/Ids.h"
#include "resources/Library.h"

namespace
{

struct Spot {
    int id;
    DWORD x, y;
};

} // namespace

TEST(Cursors, LoadWithTheirHotSpots)
{
    for (const Spot& spot :
         {Spot{VANT_IDC_HAND, 16, 16}, Spot{VANT_IDC_GRAB, 16, 16}, Spot{VANT_IDC_LINK, 14, 4},
          Spot{VANT_IDC_CROSS, 15, 15}, Spot{VANT_IDC_ZOOM_IN, 12, 12}, Spot{VANT_IDC_ZOOM_OUT, 12, 12},
          Spot{VANT_IDC_PAN, 16, 16}, Spot{VANT_IDC_ROTATE, 16, 16}, Spot{VANT_IDC_SPLIT_H, 16, 16},
          Spot{VANT_IDC_SPLIT_V, 16, 16}}) {
        SCOPED_TRACE(spot.id);
        const auto cursor = static_cast<HCURSOR>(
            LoadImageW(Library(), MAKEINTRESOURCEW(spot.id), IMAGE_CURSOR, 32, 32, LR_DEFAULTCOLOR));
        ASSERT_NE(cursor, nullptr);
        ICONINFO info{};
        ASSERT_TRUE(GetIconInfo(cursor, &info));
        EXPECT_FALSE(info.fIcon);
        EXPECT_EQ(info.xHotspot, spot.x);
        EXPECT_EQ(info.yHotspot, spot.y);
        BITMAP mask{};
        GetObjectW(info.hbmMask, sizeof mask, &mask);
        EXPECT_EQ(mask.bmWidth, 32);
        DeleteObject(info.hbmMask);
        if (info.hbmColor)
            DeleteObject(info.hbmColor);
        DestroyCursor(cursor);
    }
}

TEST(Icon, LoadsInEverySizeItHolds)
{
    for (const int size : {16, 32, 48, 256}) {
        SCOPED_TRACE(size);
        const auto icon = static_cast<HICON>(
            LoadImageW(Library(), MAKEINTRESOURCEW(VANT_IDI_APP), IMAGE_ICON, size, size, LR_DEFAULTCOLOR));
        ASSERT_NE(icon, nullptr);
        ICONINFO info{};
        ASSERT_TRUE(GetIconInfo(icon, &info));
        BITMAP colour{};
        GetObjectW(info.hbmColor, sizeof colour, &colour);
        EXPECT_EQ(colour.bmWidth, size);
        EXPECT_EQ(colour.bmBitsPixel, 32);
        DeleteObject(info.hbmMask);
        DeleteObject(info.hbmColor);
        DestroyIcon(icon);
    }
}
