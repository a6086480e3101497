// The code of docs/colour.md.
#include <VantCore.h>

#include <span>

class CSonarWnd : public CVantWnd
{
public:
    void SetUp(const CString& directory);
    void Draw(double depth, std::span<const double> depths, std::span<CRgb> pixels);

private:
    CPal m_sonar;
    COLORREF m_bottom = 0;
};

void CSonarWnd::SetUp(const CString& directory)
{
    // [palette]
    CColTbl::EnumColTbls(directory); // every *.clt file; CColTbl::GetColTbl(L"Depths") finds one

    m_sonar.name = L"Sonar";
    m_sonar.CreateWnd(L"Sonar palette", WS_POPUP | WS_CAPTION, CRect(0, 0, 350, 190), this);
    m_sonar.SetOption(L"Load", L"Depths");
    m_sonar.end = 120; // metres; from 0 on
    m_sonar.UpdatePal();
    // [palette]
}

void CSonarWnd::Draw(double depth, std::span<const double> depths, std::span<CRgb> pixels)
{
    // [values]
    COLORREF colour = m_sonar.GetCol(depth);
    m_sonar.GetCols(depths, pixels); // many at once
    // [values]
    m_bottom = colour;
}
