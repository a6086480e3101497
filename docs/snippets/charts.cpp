// The code of docs/charts.md.
#include <VantCore.h>

class CPlotWnd : public CVantWnd
{
public:
    void Make(CCtrlCat* cat);
    void Fix();
    void Feed();
    void Record(CCtrlCat* cat);
    void Settings(CESetObj& obj) override;

private:
    CEChart* m_chart = nullptr;
    int m_bottom = 0;
    double m_speed = 0; // metres per second
};

void CPlotWnd::Make(CCtrlCat* cat)
{
    // [make]
    m_chart = static_cast<CEChart*>(cat->NewCtrl(620, CECtrl::typeChart));
    CEStrip* depth = m_chart->AddStrip(L"Depth", 0); // 0: a length, see EUnits
    depth->reversed = 1;                             // deep is down
    m_bottom = m_chart->AddTrace(L"Bottom", depth)->Index();
    // [make]
}

void CPlotWnd::Fix()
{
    CEStrip* const depth = m_chart->GetStrip(0);
    // [range]
    depth->range = CEStrip::rangeFixed;
    depth->rangeMin = 0;
    depth->rangeMax = 50;
    m_chart->Update(0);
    // [range]
}

void CPlotWnd::Feed()
{
    // [thread]
    m_chart->Add(m_bottom, TmSync::GetTm(), 13.2);
    // [thread]
}

void CPlotWnd::Record(CCtrlCat* cat)
{
    // [variable]
    cat->InsCtrl(620, CECtrl::typeChart, m_speed);
    // [variable]
}

// [settings]
void CPlotWnd::Settings(CESetObj& obj)
{
    CVantWnd::Settings(obj);
    m_chart->Settings(obj, L"Chart");
}
// [settings]
