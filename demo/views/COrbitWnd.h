#pragma once

#include "demo/views/CSceneWnd.h"

namespace demo
{

/** The orbit view: the boat on the water, the sea bed below, seen from wherever the user turns. */
class COrbitWnd : public CSceneWnd
{
    DECLARE_DYNAMIC(COrbitWnd)

public:
    COrbitWnd(Session& session, Scene& scene);

    void DrawScene() override;

protected:
    CString Note() const override;
};

} // namespace demo
