#pragma once

#include "controls/CEEdit.h"

#include <array>

/** An address of four numbers from 0 to 255, in four linked fields with points between them.
 *
 *  Bound as an unsigned char, to the first of four bytes, or as an unsigned long, whose least significant
 * byte is the first field: 192.168.0.1 is 192 + 168 * 256 + 1 * 256^3. Any other binding is neither read nor
 * written. Leaving a field stores the address and calls the callbacks. A point moves on to the next field.
 * Each field is a stop of the Tab key; the control itself is none, and hands a focus that it is given to its
 * first field. */
class VANT_API CEAddr : public CECtrl
{
    DECLARE_DYNAMIC(CEAddr)

public:
    static constexpr int fields = 4; ///< numbers of an address

    CEAddr();
    /** @param isGreyed  non-zero: the address is only shown, in grey */
    explicit CEAddr(int isGreyed);
    ~CEAddr() override;

    /** @name Fields */
    ///@{
    std::array<unsigned char, fields> addr{}; ///< the address as it is edited, the left field first
    std::array<CEEdit, fields> edits;         ///< one field for each byte
    int greyed = 0;                           ///< non-zero: shown only, and never written back
    /** @} */

    /** Reads the bound variable into #addr and updates the four fields, and itself as every control. The
     * fields are enabled while the address is enabled and not #greyed. */
    void Update(int arg) override;
    /** Reads the four fields into #addr, where each is valid, and #addr into the bound variable. */
    void Retreive() override;
    /** Draws what is around the fields: background, gaps and points. */
    void Draw(CDC* dc) override;

    /** Takes the focus, for its first field. */
    int Press() override;
    /** Does nothing: an address is no number. */
    int Jog(int notches, double step, int fine) override;
    /** Lets the fields glow with it. */
    void SetGlow(int strength) override;

    /** Called by a field that has stored its number: stores the address and calls the callbacks, unless it is
     * #greyed. */
    void CtrlUpd();

protected:
    BOOL PreCreateWindow(CREATESTRUCT& cs) override;
    afx_msg int OnCreate(LPCREATESTRUCT create);
    afx_msg void OnSize(UINT how, int width, int height);
    afx_msg void OnSetFocus(CWnd* old);
    DECLARE_MESSAGE_MAP()

private:
    void TakeValue();
    void CopyTips();
    CRect FieldRc(int i) const;
    bool IsBound() const;

    int m_editable = 1; // the enable condition of the fields
};
