#include "controls/CEGrid.h"
#include "controls/PictureSheet.h"
#include "controls/detail/CtrlText.h"

namespace
{

/** Rows of a survey; without texts for comparison. */
class Survey : public CObject
{
public:
    explicit Survey(bool blank)
        : m_blank(blank)
    {
    }
    void Get(CEGridCell& cell)
    {
        if (!m_blank)
            cell.text.Format(cell.row % 3 ? L"gypsy %d" : L"A long name %d", cell.row + 1);
        cell.num = cell.row % 5 == 2 ? -32768.0 : 12 + cell.row * 0.37;
    }

private:
    bool m_blank;
};

Survey survey(false);
Survey blankSurvey(true);

std::unique_ptr<CEGrid> Grid(bool blank, int numbers, int rows)
{
    auto grid = std::make_unique<CEGrid>();
    grid->rc = CRect(0, 0, 140, 124);
    grid->rowNumbers = numbers;
    grid->AddCol(blank ? L"" : L"Mark", 54);
    CEGridCol* const depth = grid->AddCol(blank ? L"" : L"Depth", numbers ? 80 : 70, 9);
    depth->units = blank ? -1 : 0;
    depth->scale = 2; // so that data that is missing looks the same without a unit
    depth->decimals = 1;
    grid->SetSource(blank ? &blankSurvey : &survey, static_cast<CEGrid::GetFn>(&Survey::Get));
    grid->SetRows(rows);
    if (!numbers)
        grid->Sort(1, CEGrid::sortDown);
    grid->Sel(1, 0);
    return grid;
}

} // namespace

TEST_F(PicturesTest, ACellThatIsNotToBeEditedNowIsGreyed)
{
    CEGrid grid;
    grid.rc = CRect(0, 0, 140, 124);
    grid.AddCol(L"Depth", 80, 9);
    grid.SetRows(3);
    double depth = 8.88;
    int locked = 1;
    CEVal* const own = grid.InitCell(1, 0, depth);
    own->enIf = 1;
    own->pEnVar = &locked;
    Open(grid);
    Canvas canvas(140, 124);
    const auto isGreyed = [&] {
        DrawTo(grid, canvas);
        return !canvas.Bounds(vant::detail::disabledText).IsRectEmpty();
    };
    EXPECT_TRUE(isGreyed());
    EXPECT_FALSE(grid.IsEditable(1, 0));
    locked = 0;
    EXPECT_FALSE(isGreyed());
    EXPECT_TRUE(grid.IsEditable(1, 0));
}

TEST_F(PicturesTest, GridsCanBeReadAtEveryScale)
{
    const std::vector<Row> rows = {
        {"grid", [] { return Grid(false, 0, 40); }, std::nullopt, true, [] { return Grid(true, 0, 40); }},
        {"wide grid", [] { return Grid(false, 1, 4); }, std::nullopt, true, [] { return Grid(true, 1, 4); }},
    };
    for (const int dpi : {96, 144, 192})
        DrawSheet(rows, dpi, L"grids");
}
