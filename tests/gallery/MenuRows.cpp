// A menu, which belongs to a button.
#include "Rows.h"

namespace
{

int layers = 3;
int range = 100;

/** A button that opens the menu below itself. */
class CMenuBtn : public CEBtn
{
public:
    CEMenu menu;

protected:
    void OnClick() override
    {
        CRect place;
        GetWindowRect(place);
        menu.TrackBelow(place, pWnd);
    }
};

CMenuBtn* menuBtn = nullptr;

void Fill(CEMenu& menu)
{
    menu.Add(L"&Centre here", &counter, CCounter::Member());
    menu.Add(L"&Follow vessel\tF6", &counter, CCounter::Member());
    menu.AddSep();
    menu.Add(L"Show &grid\tCtrl+G")->Check(layers, 1);
    menu.Add(L"Show &waypoints")->Check(layers, 4);
    menu.Add(L"&Delete waypoint\tDel")->Enable(0);
    menu.AddSep();
    CEMenu& ranges = *menu.AddSub(L"&Range");
    for (const int metres : {50, 100, 200}) {
        CString text;
        text.Format(L"%d m", metres);
        ranges.Add(text)->Choice(range, metres);
    }
}

CECtrl* Menu(CCtrlCat& cat, int width, State)
{
    menuBtn = new CMenuBtn;
    menuBtn->text = L"Chart";
    Fill(menuBtn->menu);
    // The room below it is the menu's, in the picture.
    constexpr int buttonH = 24;
    const int rowH = cat.ctrlH;
    cat.ctrlH = buttonH;
    cat.InsCtrl(width, menuBtn, 0);
    cat.ctrlH = rowH;
    return menuBtn;
}

} // namespace

CEMenu& GalleryMenu()
{
    return menuBtn->menu;
}

CECtrl& GalleryMenuButton()
{
    return *menuBtn;
}

Section MenuRows()
{
    constexpr int roomH = 230;
    return {L"Menus", 1, {{L"CEMenu", 0, roomH, Has(stNormal), Menu}}};
}
