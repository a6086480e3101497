#pragma once

#include "demo/views/CSceneWnd.h"

namespace demo
{

/** The chart: the survey from above, with the boat, its track and the sea bed. C puts the course up, N north.
 */
class CChartWnd : public CSceneWnd
{
    DECLARE_DYNAMIC(CChartWnd)

public:
    CChartWnd(Session& session, Scene& scene);

    int Shows(const CMdl& mdl) override;

protected:
    CString Note() const override;
};

} // namespace demo
