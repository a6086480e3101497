// The smallest useful program: starts the library, writes a settings file, reads it back, stops.
#include <VantCore.h>

#include <cstdio>

class CHelloApp : public CBaseApp
{
public:
    BOOL InitInstance() override
    {
        Vant::setFile = L"hello.xml";
        Vant::Init();
        std::printf("VantCore %ls\n", static_cast<LPCWSTR>(Vant::swVer));
        m_good = Write(42) && Read() == 42;
        std::printf(m_good ? "settings written and read back\n" : "settings lost\n");
        Vant::Exit();
        return FALSE; // there is no window to wait for
    }

    int ExitInstance() override
    {
        CBaseApp::ExitInstance();
        return m_good ? 0 : 1;
    }

private:
    static bool Write(int answer)
    {
        CESet set(1);
        set.AddCol(L"Hello")->AddObj(L"App", L"CHelloApp")->Item(L"Answer", answer);
        return set.Save(Vant::setFile) != 0;
    }

    static int Read()
    {
        int answer = 0;
        CESet set(0);
        set.Load(Vant::setFile);
        const CESetCol* const col = set.GetCol(L"Hello");
        if (CESetObj* const obj = col ? col->GetObj(L"App") : nullptr)
            obj->Item(L"Answer", answer);
        return answer;
    }

    bool m_good = false;
};

CHelloApp theApp;
