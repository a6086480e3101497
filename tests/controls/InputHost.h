#pragma once

#include "controls/CDpi.h"
#include "controls/WndTest.h"

#include <vector>

/** A top-level window for controls to stand in, that is none of the library's. It records the key presses
 * that come by on their way to the controls. */
class InputHost : public CWnd
{
public:
    /** @param width, height  of the client area, units of the scale */
    explicit InputHost(int width = 400, int height = 200, CDpi scale = CDpi());
    ~InputHost() override;

    BOOL PreTranslateMessage(MSG* msg) override;

    std::vector<WPARAM> keysSeen;

protected:
    afx_msg BOOL OnEraseBkgnd(CDC* dc);
    DECLARE_MESSAGE_MAP()
};
