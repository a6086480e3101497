// Settings: a class with one body for both directions, a window that comes back where it was, and what a file
// cannot keep. Exit code 1 if something is not as the page says.
#include <VantCore.h>

#include <charconv>
#include <cmath>
#include <cstdio>
#include <string>

#include <shlobj.h>

namespace
{

int failures = 0;

void Expect(bool isSo, const char* what)
{
    if (isSo)
        return;
    std::printf("not so: %s\n", what);
    ++failures;
}

// [body]
// A survey as the application keeps it.
struct CPlan {
    CString area = L"Kiel Bight";
    double spacing = 25.0; // metres between lines
    int lines = 12;
    CV3 origin{0, 0, 0};
    unsigned long sonar = 0x2800A8C0; // a network address

    // Writes the state to the object, or reads it from there: the object's tree knows which.
    void Settings(CESetObj& obj)
    {
        obj.Item(L"Area", area);
        obj.Item(L"Spacing", spacing);
        obj.Item(L"Lines", lines);
        obj.Item(L"Origin", origin);
        obj.Item(L"Sonar", sonar);
        if (obj.IsLoading())
            Mend();
    }

    // A settings file is input: what cannot be used gives way to the default.
    void Mend()
    {
        if (!(spacing >= 1 && spacing <= 1000))
            spacing = CPlan().spacing;
        if (lines < 1)
            lines = CPlan().lines;
    }
};
// [body]

// [save]
int Save(CPlan& plan)
{
    CESet set(1); // a tree to be stored
    CESetCol* const own = set.AddCol(L"Survey");
    plan.Settings(*own->AddObj(L"Plan", L"CPlan"));
    Vant::Settings(*own->AddObj(L"Vant", L"Vant")); // the number of the next picture
    CVantWnd::SaveSet(set);                         // every window, with its named controls
    return set.Save(Vant::setFile);
}
// [save]

// [load]
int Load(CPlan& plan)
{
    CESet set(0); // a tree to be read
    if (!set.Load(Vant::setFile))
        return 0; // the first start, or a file that cannot be read: all keeps its default
    if (const CESetCol* const own = set.GetCol(L"Survey")) {
        if (CESetObj* const obj = own->GetObj(L"Plan"))
            plan.Settings(*obj);
        if (CESetObj* const obj = own->GetObj(L"Vant"))
            Vant::Settings(*obj);
    }
    CVantWnd::LoadSet(set); // after the windows have been created: their controls must be there
    return 1;
}
// [load]

// [places]
// Settings and logs go below the user's own directory, which can always be written to.
void ChoosePlaces(const wchar_t* application)
{
    wchar_t* local = nullptr;
    if (SUCCEEDED(::SHGetKnownFolderPath(FOLDERID_LocalAppData, 0, nullptr, &local))) {
        Vant::dataDir.Format(L"%s\\%s\\", local, application);
        Vant::CreateDirPath(Vant::dataDir); // Save() makes no directories
        Vant::setFile = Vant::dataDir + L"Settings.xml";
    }
    ::CoTaskMemFree(local);
}
// [places]

class CPlanWnd : public CVantWnd
{
public:
    CPlanWnd() { name = L"Plan"; }

    void SetupCtrls() override
    {
        // [control]
        CCtrlCat* const cat = GetCat(L"Lines of the survey", kindStacked, 1, 0);
        CECtrl* const spacing = cat->InsCtrl(80, CECtrl::typeEdit, m_spacing);
        spacing->SetRange(1, 1000);
        spacing->aux1 = L"Line spacing"; // the item "Line_spacing" of this window's object
        cat->NewLn();
        // [control]
    }

    // [window]
    // The window comes back where it was, as far as there is a screen.
    void Settings(CESetObj& obj) override
    {
        CVantWnd::Settings(obj); // level, open sections, named controls
        WINDOWPLACEMENT now{};
        now.length = sizeof now;
        if (!m_hWnd || !::GetWindowPlacement(m_hWnd, &now))
            return;
        int left = now.rcNormalPosition.left, top = now.rcNormalPosition.top;
        int width = now.rcNormalPosition.right - left, height = now.rcNormalPosition.bottom - top;
        int isMaximised = now.showCmd == SW_SHOWMAXIMIZED;
        obj.Item(L"Left", left);
        obj.Item(L"Top", top);
        obj.Item(L"Width", width);
        obj.Item(L"Height", height);
        obj.Item(L"Maximised", isMaximised);
        if (obj.IsStoring())
            return;
        const CRect place(left, top, left + width, top + height);
        if (width < 100 || height < 60 || !::MonitorFromRect(&place, MONITOR_DEFAULTTONULL))
            return; // the monitor that it was on is gone
        now.rcNormalPosition = place;
        now.showCmd = isMaximised ? SW_SHOWMAXIMIZED : SW_SHOWNORMAL;
        ::SetWindowPlacement(m_hWnd, &now);
    }
    // [window]

    double m_spacing = 25;
};

void WindowsComeBack()
{
    CPlan plan;
    {
        CPlanWnd wnd;
        wnd.CreateWnd(L"Plan", WS_OVERLAPPEDWINDOW | WS_VISIBLE, CRect(120, 90, 420, 290));
        wnd.m_spacing = 12.5;
        wnd.GetCat(L"Lines of the survey", CVantWnd::kindStacked, 1, 0)->expanded = 0;
        plan.area = L"Fehmarn Belt";
        plan.origin = CV3(1.5, -2, 0);
        Expect(Save(plan) != 0, "the settings are saved");
    }
    CPlan again;
    CPlanWnd wnd;
    wnd.CreateWnd(L"Plan", WS_OVERLAPPEDWINDOW | WS_VISIBLE, CRect(10, 10, 200, 200));
    Expect(Load(again) != 0, "the settings are loaded");
    Expect(again.area == L"Fehmarn Belt" && again.origin.x == 1.5, "the plan is as it was");
    Expect(again.sonar == plan.sonar, "an address is as it was");
    Expect(wnd.m_spacing == 12.5, "a named control has its value again");
    Expect(wnd.GetCat(L"Lines of the survey", CVantWnd::kindStacked, 1, 0)->expanded == 0,
           "a closed section is closed");
    CRect place;
    wnd.GetWindowRect(&place);
    Expect(place == CRect(120, 90, 420, 290), "the window is where it was");
}

// What becomes of a text in a file.
CString ThroughFile(const wchar_t* text)
{
    CString value = text;
    {
        CESet set(1);
        set.AddCol(L"C")->AddObj(L"O", L"T")->Item(L"Text", value);
        set.Save(Vant::setFile);
    }
    value = L"(kept)"; // what a variable keeps that its item does not reach
    CESet set(0);
    set.Load(Vant::setFile);
    set.GetCol(L"C")->GetObj(L"O")->Item(L"Text", value);
    return value;
}

void Limits()
{
    Expect(ThroughFile(L"<Area & \u00fc>") == L"<Area & \u00fc>",
           "signs of XML and letters of the code page");
    Expect(ThroughFile(L"12\" pipe") == L"12", "a text ends at a quotation mark");
    Expect(ThroughFile(L"\" pipe") == L"(kept)", "nothing before a quotation mark is no value");
    Expect(ThroughFile(L"") == L"(kept)", "an empty text is skipped");
    Expect(ThroughFile(L"50 %d") == L"50 0", "a per cent sign is a format");
    Expect(ThroughFile(L"50 %%") == L"50 %", "two give one");
    Expect(ThroughFile(L"one\ntwo") == L"one", "a text ends with its line");

    CESet set(1);
    CESetObj* const obj = set.AddCol(L"C")->AddObj(L"O", L"T");
    obj->Add(L"Good", L"12");
    obj->Add(L"Bad", L"12 m");
    obj->Add(L"Wide", L"300");
    set.Save(Vant::setFile);
    CESet loaded(0);
    loaded.Load(Vant::setFile);
    CESetObj* const read = loaded.GetCol(L"C")->GetObj(L"O");
    int good = 1;
    int bad = 1;
    int missing = 1;
    unsigned char wide = 1;
    read->Item(L"Good", good);
    read->Item(L"Bad", bad);
    read->Item(L"Missing", missing);
    read->Item(L"Wide", wide);
    Expect(good == 12 && bad == 1 && missing == 1, "what does not parse leaves the variable alone");
    Expect(wide == 300 - 256, "an integer that is too large keeps its low bits");
}

// [exact]
// Exchanges a number with all of its digits.
void ExactItem(CESetObj& obj, const CString& name, double& v)
{
    char digits[32]{};
    std::to_chars(digits, digits + sizeof digits - 1, v); // never a decimal comma
    CString text(digits);
    obj.Item(name, text);
    if (obj.IsStoring())
        return;
    std::string read;
    for (int i = 0; i < text.GetLength(); ++i)
        read += text[i] < 128 ? static_cast<char>(text[i]) : '?';
    double number = 0;
    const auto [end, error] = std::from_chars(read.data(), read.data() + read.size(), number);
    if (error == std::errc() && end == read.data() + read.size() && std::isfinite(number))
        v = number;
}
// [exact]

void Digits()
{
    double rounded = 1234567.25;
    double exact = 1234567.25;
    {
        CESet set(1);
        CESetObj* const obj = set.AddCol(L"C")->AddObj(L"O", L"T");
        obj->Item(L"Rounded", rounded);
        ExactItem(*obj, L"Exact", exact);
        set.Save(Vant::setFile);
    }
    exact = 0;
    CESet set(0);
    set.Load(Vant::setFile);
    CESetObj* const obj = set.GetCol(L"C")->GetObj(L"O");
    obj->Item(L"Rounded", rounded);
    ExactItem(*obj, L"Exact", exact);
    Expect(rounded == 1.23457e6, "six significant digits are kept");
    Expect(exact == 1234567.25, "all digits are kept");
}

class CSettingsApp : public CBaseApp
{
    BOOL InitInstance() override
    {
        ChoosePlaces(L"VantGuide");
        Vant::setFile = L"settings.xml"; // the tests look at it
        Vant::Init();
        Limits();
        Digits();
        WindowsComeBack();
        Vant::Exit();
        return FALSE; // there is nothing to wait for
    }
    int ExitInstance() override
    {
        CBaseApp::ExitInstance();
        return failures == 0 ? 0 : 1;
    }
};

CSettingsApp theApp;

} // namespace
