// The code of docs/video.md.
#include <VantCore.h>

#include <atlimage.h>

// [avi]
class CDiveWnd : public CGLWnd
{
public:
    void Render() override; // draws the scene

    void Start()
    {
        m_image.Create(874, 576, 32);
        CClientDC dc(this);
        if (InitPB(dc.m_hDC, 874, 576))
            m_avi.Open(L"C:\\VantData\\dive.avi");
    }

    void OnPoll() // after each poll
    {
        if (CapPB(m_image))
            m_avi.AddDib(m_image);
    }

    void Stop() { m_avi.Close(); } // the destructor does it too

private:
    CImage m_image;
    CEAvi m_avi;
};
// [avi]

void CDiveWnd::Render() {}
