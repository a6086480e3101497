// The code of docs/grid.md.
#include <VantCore.h>

#include <vector>

struct Sounding {
    int line;
    double depth; // metres
};

class CLogWnd : public CVantWnd
{
public:
    void ShowLog(CCtrlCat* cat);

private:
    std::vector<Sounding> m_log;
};

void CLogWnd::ShowLog(CCtrlCat* cat)
{
    // [columns]
    CEGrid* grid = cat->InsGrid(404, L"Log", 1, 288);
    const std::size_t stride = sizeof m_log[0];
    grid->AddCol(L"Line", 54)->InitRows(&m_log[0].line, stride);
    CEGridCol* depth = grid->AddCol(L"Depth", 84);
    depth->InitRows(&m_log[0].depth, stride);
    depth->units = 0; // metres or feet, in cells and heading
    depth->decimals = 2;
    depth->SetRange(0, 200); // checked when a cell is edited
    grid->SetRows(static_cast<int>(m_log.size()));
    // [columns]
}

/** Soundings that are made up when they are asked for. */
class CTrack
{
public:
    Sounding At(int row) const;
    int Set(int row, double depth, CString& reason);
    int OrderBy(int col, int dir);
};

Sounding CTrack::At(int row) const
{
    return {row / 1000, 20.0 + row % 7};
}

int CTrack::Set(int, double, CString& reason)
{
    reason = L"A sounding stays as it was measured";
    return 0;
}

int CTrack::OrderBy(int, int)
{
    return 0;
}

// [source]
class CTrackWnd : public CVantWnd
{
public:
    void ShowTrack(CCtrlCat* cat)
    {
        CEGrid* grid = cat->InsGrid(404, L"Track", 2, 288);
        grid->AddCol(L"Depth", 84, 9); // 9: numbers
        grid->SetSource(this, static_cast<CEGrid::GetFn>(&CTrackWnd::Get),
                        static_cast<CEGrid::PutFn>(&CTrackWnd::Put),
                        static_cast<CEGrid::SortFn>(&CTrackWnd::Sort));
        grid->SetRows(1'000'000);
    }

private:
    void Get(CEGridCell& cell) { cell.num = m_track.At(cell.row).depth; }
    int Put(const CEGridCell& cell, CString& reason) { return m_track.Set(cell.row, cell.num, reason); }
    int Sort(int col, int dir) { return m_track.OrderBy(col, dir); }

    CTrack m_track;
};
// [source]
