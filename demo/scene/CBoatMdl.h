#pragma once

#include "core/CV3.h"
#include "display/CMdl.h"
#include "display/CModel.h"

namespace demo
{

/** The boat: its model, in true size in the scene, and on a chart never smaller than a symbol that can be
 * recognised, with a line to where it will be in a while. */
class CBoatMdl : public CMdl
{
public:
    static constexpr const wchar_t* boatName = L"Lodestar"; ///< what a user picks it by
    static constexpr double length = 14.0;                  ///< metres, of the model

    /** Information message of its menu: a view is to follow the boat, or no longer. Its data is the view. */
    static constexpr int followInfo = 7002;

    /** What the boat does, display coordinates. */
    struct Motion {
        CV3 place;
        double heading = 0.0; ///< radians
        double course = 0.0;
        double speed = 0.0; ///< m/s over ground

        bool operator==(const Motion&) const = default;
    };

    /** @param file  path of the model */
    explicit CBoatMdl(const CString& file);

    /** Moves the boat, which appears the first time. */
    void Move(const Motion& motion);
    /** Takes it away until it is moved again. */
    void Hide();

    const Motion& Now() const noexcept { return m_motion; }

    void Draw(CDsp& dsp) override;
    void GetInf(CMdlInf& inf) override;
    /** "Follow the boat", checked while the view does. */
    int OnMenu(CDsp& dsp, CEMenu& menu) override;
    int GetMdlOrg(CMat& mat, CV3& org, double& size) override;
    void OnHit(CDsp& dsp, CDspMHit& hit) override;

private:
    void DrawCourse(CDsp& dsp) const;

    CModel m_model;
    Motion m_motion;
};

} // namespace demo
