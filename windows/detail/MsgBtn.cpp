#include "windows/detail/MsgBtn.h"

#include "platform/Vant.h"
#include "windows/detail/MsgFace.h"

namespace vant::detail
{

MsgBtn::MsgBtn(int answer)
    : m_answer(answer)
{
    switch (answer) {
    case IDYES:
        text = L"Yes";
        break;
    case IDNO:
        text = L"No";
        break;
    case IDCANCEL:
        text = L"Cancel";
        break;
    default:
        text = L"OK";
        break;
    }
}

void MsgBtn::Draw(CDC* dc)
{
    DrawBack(dc);
    const CRect r = ClientRc();
    const skins::Look drawn = DrawnLook();
    switch (m_answer) {
    case IDYES:
        DrawMsgButton(*dc, r, Vant::msgYesBtn, skins::msgYesBtn::button, drawn, text);
        break;
    case IDNO:
        DrawMsgButton(*dc, r, Vant::msgNoBtn, skins::msgNoBtn::button, drawn, text);
        break;
    default:
        DrawMsgButton(*dc, r, Vant::msgBlankBtn, skins::msgBlankBtn::button, drawn, text);
        break;
    }
    NoteShown();
}

} // namespace vant::detail
