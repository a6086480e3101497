#include <VantCore.h>

#include <iterator>

#include <shlobj.h>

namespace
{

// [places]
void ChoosePlaces()
{
    PWSTR local = nullptr; // "C:\Users\...\AppData\Local", which every user may write to
    if (SUCCEEDED(::SHGetKnownFolderPath(FOLDERID_LocalAppData, 0, nullptr, &local)))
        Vant::dataDir = CString(local) + L"\\Echo\\";
    ::CoTaskMemFree(local);
    Vant::projDir = Vant::dataDir;
    Vant::setFile = Vant::dataDir + L"Echo.xml";
    Vant::CreateDirPath(Vant::dataDir); // CESet::Save() makes no directories
}
// [places]

// [program]
CString ProgramDir()
{
    wchar_t path[MAX_PATH * 4] = L"";
    ::GetModuleFileNameW(nullptr, path, static_cast<DWORD>(std::size(path)));
    CString name;
    Vant::NamePart(path, name);
    CString dir(path);
    return dir.Left(dir.GetLength() - name.GetLength()); // with its backslash
}

void LoadWhatComesWithTheProgram()
{
    CColTbl::EnumColTbls(ProgramDir() + L"clt");
    Vant::helpFile = ProgramDir() + L"Echo.chm";
}
// [program]

// [save]
void SaveSettings()
{
    CESet set(1);
    CVantWnd::SaveSet(set);
    if (!set.Save(Vant::setFile))
        Vant::MsgBox(Vant::msgModal | Vant::msgWarnIcon, L"The settings cannot be saved to\n%s",
                     Vant::setFile.GetString());
}
// [save]

// [alarms]
class CWatchWnd : public CVantWnd
{
public:
    CWatchWnd() { s_infoRx.AddTail(this); }
    ~CWatchWnd() override { s_infoRx.RemoveAt(s_infoRx.Find(this)); }

    void OnInfoMsg(int msg, void* data) override
    {
        constexpr unsigned appendFailed = 6010;
        if (msg == Vant::alarmInfo && static_cast<const CECEntry*>(data)->id == appendFailed)
            Vant::MsgBox(Vant::msgWarnIcon, L"A log file cannot be written.\nSee the alarms.");
    }
};
// [alarms]

} // namespace
