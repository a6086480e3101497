#pragma once

#include "Rows.h"

#include <atlimage.h>

/** A picture of another control in a state, such as under the mouse. */
class CStill : public CECtrl
{
public:
    const State posed;
    const CString what; ///< the model's name

    CStill(CECtrl& model, State inState, const CString& ofWhat);

    /** Takes the picture, at the scale of the window. The focus is moved for it. */
    void Take();
    /** Whether the state cannot be told from the normal one. */
    bool LooksNormal() const { return m_looksNormal; }

    void Draw(CDC* dc) override;

private:
    bool TakeInto(CImage& image, State inState);

    CECtrl& m_model;
    CImage m_picture;
    bool m_looksNormal = true;
};
