#pragma once

#include "controls/CVantWnd.h"
#include "demo/session/Session.h"

class CEText;
class CERadius;

namespace demo
{

/** The set-up: what the user may change, in categories that open and close. The controls are bound to the
 * settings themselves; whatever they change acts at once. */
class CSetupWnd : public CVantWnd
{
    DECLARE_DYNAMIC(CSetupWnd)

public:
    /** Identifiers of controls that are bound to no variable of their own. */
    enum ChildId : int { idAddress = 100, idDial = 110, idSlower = 120, idFaster, idRestart, idPicture };

    explicit CSetupWnd(Session& session);

    void SetupCtrls() override;
    void OnPoll(double t) override;
    void OnInfoMsg(int msg, void* data) override;
    void UpdateLabels() override;
    void UpdCtrls() override;

protected:
    afx_msg int OnCreate(LPCREATESTRUCT create);
    afx_msg void OnDestroy();
    DECLARE_MESSAGE_MAP()

private:
    /** @name The categories, see SetupCategories.cpp @{ */
    void AddAlarmLimits();
    void AddDisplay();
    void AddPlayback();
    void AddSensor();
    void AddMounting();
    /** @} */
    CCtrlCat& Category(const wchar_t* title);
    CECtrl& Field(CECtrl& control, const wchar_t* tip);
    template <class T>
    CECtrl& Edit(CCtrlCat& category, const wchar_t* caption, T& variable, const wchar_t* tip, int width);
    void Check(CCtrlCat& category, const wchar_t* caption, int& variable, const wchar_t* tip);

    /** @name Called by the controls @{ */
    void OnChange();
    void OnDial();
    void OnSlower();
    void OnFaster();
    void OnRestart();
    void OnPicture();
    /** @} */

    Session& m_session;
    CEText* m_limitUnit = nullptr; // owned by its category, like the dial
    CERadius* m_dial = nullptr;
    CECtrl* m_progress = nullptr;
    CString m_progressText;
    CString m_mountingText;
};

} // namespace demo
