#include "windows/CConsole.h"

#include "platform/Vant.h"
#include "settings/CESetObj.h"
#include "windows/detail/LevelRange.h"
#include "windows/detail/OneLine.h"

#include <iterator>
#include <utility>

using namespace vant::detail;

namespace
{

constexpr int clearState = -1;
constexpr int repeatsWrap = 1000;

/** Holds a console's entries for as long as it lives. */
class Guard : public CSingleLock
{
public:
    explicit Guard(CConsole& console)
        : CSingleLock(&console.entryLock, TRUE)
    {
    }
};

/** A log file as the settings keep it: below the data directory without that directory, so that the file
 * moves with the installation. */
CString KeptName(const CString& file)
{
    const int length = Vant::dataDir.GetLength();
    const bool isBelow = file.GetLength() > length && Vant::dataDir.CompareNoCase(file.Left(length)) == 0;
    CString kept = isBelow ? file.Mid(length) : file;
    if (isBelow)
        kept.TrimLeft(L"\\/"); // a name that begins so is taken for one from a root
    return kept;
}

/** The other way round; a name with a drive, or from a root, is whole already. */
CString WholeName(const CString& kept)
{
    const bool isWhole = kept.IsEmpty() || kept.Find(L':') >= 0 || kept[0] == L'\\' || kept[0] == L'/';
    return isWhole ? kept : Vant::dataDir + kept;
}

} // namespace

IMPLEMENT_DYNAMIC(CConsole, CVantWnd)

CConsole::CConsole()
{
    s_trigRx.AddTail(this);
}

CConsole::~CConsole()
{
    m_logFile.Flush();
    s_trigRx.RemoveAt(s_trigRx.Find(this));
    while (!entries.IsEmpty())
        delete entries.RemoveHead();
}

void CConsole::SetupCsl(int kindOf)
{
    struct Row {
        unsigned int bits;
        const wchar_t* file;
    };
    static constexpr Row rows[] = {
        {kindConsole, L"Logs\\Console.csv"},
        {kindStatus, L"Logs\\Status.csv"},
        {kindAlarm, L"Logs\\Alarms.csv"},
    };
    const Guard guard(*this);
    cslKind = kindOf;
    if (kindOf < 0 || kindOf >= static_cast<int>(std::size(rows)))
        return;
    m_kind = rows[kindOf].bits;
    fileName = Vant::dataDir + rows[kindOf].file;
}

/** An entry that nobody else has, blank. */
std::unique_ptr<CECEntry> CConsole::NewEntry()
{
    if (m_spare.empty())
        return std::make_unique<CECEntry>();
    std::unique_ptr<CECEntry> entry = std::move(m_spare.back());
    m_spare.pop_back();
    *entry = {};
    return entry;
}

/** Takes an entry out of the list. Its memory stays: somebody may still look at it. */
void CConsole::Retire(CVantPtr* pos)
{
    m_spare.emplace_back(entries.GetAt(pos));
    entries.RemoveAt(pos);
    if (m_newest == m_spare.back().get())
        m_newest = nullptr;
    changed = 1;
}

CVantPtr* CConsole::FindPos(unsigned int id) const
{
    CVantPtr* pos = entries.GetHeadPos();
    while (pos && entries.GetAt(pos)->id != id)
        pos = pos->next;
    return pos;
}

void CConsole::Stamp(CECEntry& entry, int state)
{
    const CTime now = CTime::GetCurrentTime();
    entry.state = state;
    entry.time = now.GetTime();
    entry.displayTime = now.Format(L"%H:%M:%S");
    m_newest = &entry;
    changed = 1;
}

CECEntry* CConsole::UpdateEntry(unsigned long id, int& state, const CString& text, unsigned int bits)
{
    if (state == clearState) {
        ClearEntry(id);
        return nullptr;
    }
    return RecordEntry(id, state, text, bits);
}

CECEntry* CConsole::RecordEntry(unsigned long id, int& state, const CString& text, unsigned int bits)
{
    CECEntry* entry = nullptr;
    LogLine log;
    {
        const Guard guard(*this);
        CVantPtr* larger = nullptr; // the first entry that a new one goes before
        for (CVantPtr* pos = entries.GetHeadPos(); pos && !entry; pos = pos->next) {
            CECEntry* const there = entries.GetAt(pos);
            if (there->id == id)
                entry = there;
            else if (!larger && there->id > id)
                larger = pos;
        }
        const bool isNew = !entry;
        std::unique_ptr<CECEntry> made;
        if (isNew) {
            made = NewEntry();
            entry = made.get();
            entry->id = id;
            entry->kind = m_kind;
        }
        entry->kind = (entry->kind & ~static_cast<unsigned int>(kindChecked)) | bits;
        entry->repeats = (entry->repeats + 1) % repeatsWrap;
        m_keyed = true;
        Stamp(*entry, state);
        entry->text.Format(L"%05d.%03d (%s) :", static_cast<int>(id), entry->repeats,
                           entry->displayTime.GetString());
        entry->text += text;
        if (made) {
            larger ? entries.InsertBefore(larger, entry) : entries.AddTail(entry);
            made.release();
        }
        // A new entry deliberately leaves the state alone.
        if (!isNew && (entry->kind & kindSelfClear))
            state = clearState;
        log = LineOf(*entry);
    }
    Write(log);
    return entry;
}

void CConsole::AddEntry(unsigned long id, int lineLevel, const CString& text, unsigned int bits)
{
    LogLine log;
    {
        const Guard guard(*this);
        ++seq;
        for (int count = entries.GetCount(); count > 0 && count >= maxEntries; --count)
            Retire(entries.GetHeadPos());
        std::unique_ptr<CECEntry> entry = NewEntry();
        entry->id = id;
        entry->kind = m_kind | bits;
        m_keyed = false;
        Stamp(*entry, lineLevel);
        entry->text.Format(L"%05d. (%s) :", seq, entry->displayTime.GetString());
        entry->text += text;
        log = LineOf(*entry);
        entries.AddTail(entry.get());
        entry.release();
    }
    Write(log);
}

CECEntry* CConsole::FindEntry(unsigned long id)
{
    const Guard guard(*this);
    return entries.GetAt(FindPos(id));
}

int CConsole::GetEntry(unsigned long id, CECEntry& copy)
{
    const Guard guard(*this);
    const CVantPtr* const pos = FindPos(id);
    if (pos)
        copy = *entries.GetAt(pos);
    return pos ? 1 : 0;
}

void CConsole::ClearEntry(unsigned long id)
{
    const Guard guard(*this);
    if (CVantPtr* const pos = FindPos(id))
        Retire(pos);
}

void CConsole::ClearList()
{
    const Guard guard(*this);
    while (CVantPtr* const pos = entries.GetHeadPos())
        Retire(pos);
}

void CConsole::DeSelectAll()
{
    const Guard guard(*this);
    for (CVantPtr* pos = entries.GetHeadPos(); pos;)
        entries.GetNext(pos)->kind &= ~static_cast<unsigned int>(kindChecked);
    changed = 1;
}

int CConsole::TestEntry(const CECEntry* entry) const
{
    if (!entry)
        return 0;
    const unsigned int mask = detail ? filter : filter & ~static_cast<unsigned int>(kindDetailed);
    const unsigned int wanted = entry->kind | RangeBit(RangeOf(entry->state));
    return (mask & wanted) == wanted ? 1 : 0;
}

CConsole::LogLine CConsole::LineOf(const CECEntry& entry) const
{
    if (!logTo || !TestEntry(&entry))
        return {};
    return {fileName, OneLine(entry.text)};
}

/** Called without the lock: a file may be slow, and its failure is an alarm, which other consoles may take
 * part in. */
void CConsole::Write(const LogLine& line)
{
    // Makes the directories too.
    if (!line.file.IsEmpty())
        m_logFile.Write(line.file, line.text);
}

void CConsole::LogEntry(const CECEntry* entry)
{
    LogLine log;
    if (entry) {
        const Guard guard(*this);
        log = LineOf(*entry);
    }
    Write(log);
}

void CConsole::Settings(CESetObj& obj)
{
    CVantWnd::Settings(obj);
    CString kept;
    {
        const Guard guard(*this);
        kept = KeptName(fileName);
    }
    obj.Item(L"FName", kept);
    obj.Item(L"CslDetail", detail);
    obj.Item(L"LogTo", logTo);
    if (obj.IsStoring())
        return;
    if (kept.FindOneOf(L"?*") < 0) {
        const Guard guard(*this);
        fileName = WholeName(kept);
    }
    UpdCtrls();
    OnOption();
}
