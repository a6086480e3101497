#pragma once

#include "controls/CVantWnd.h"
#include "controls/detail/RowScroll.h"
#include "platform/CECEntry.h"
#include "windows/detail/LogFile.h"

#include <afxmt.h>

#include <memory>
#include <vector>

/** A console: a list of messages, the filter that decides which of them are shown and logged, the file that
 * they are logged to, and a window that shows them.
 *
 *  Entries are either lines, added one after the other with a sequence number (AddEntry()), or keyed, one per
 * id, updated in place and kept in ascending order of their ids (UpdateEntry()). The four consoles of Vant
 * are written by its loggers; a program may have more.
 *
 *  Entries may be written from any thread, with or without a window. Every change happens under #entryLock,
 * without a time limit; nothing else is done while it is held, so that nobody waits for more than another
 * entry: the file is written after it is given back (lines that several threads log in the same instant may
 * stand in the file in another order than their numbers), and the window tries it for one millisecond and
 * otherwise waits for the next trigger. The memory of an entry stays good as long as the console lives: a
 * keyed entry keeps its place until it is cleared, and what is cleared or drops out is used again for a later
 * entry. Its fields change, though: hold #entryLock while reading them, or copy it with GetEntry().
 *
 *  The window and its options belong to the UI thread. It is created like any CVantWnd, docked or on its own.
 *  Sections of options open and close above the entries. Wheel, scroll bar and the keys Up, Down, Page Up,
 * Page Down, Home and End scroll, Left and Right (or the wheel with Shift) shift long lines sideways, Escape
 * leads from an option back to the entries. The last line stays in view while the list is at its end; a keyed
 * list shows an entry that is new. */
class VANT_API CConsole : public CVantWnd
{
    DECLARE_DYNAMIC(CConsole)

public:
    /** Kind bits of the entries: an entry passes while all of its bits are set in the filter mask. The
     * loggers give each console's entries the first four, the others are the writer's to add. Bits 4 to 13 of
     * the mask stand for the level ranges and belong to no kind. */
    enum KindBits : unsigned int {
        kindConsole = 0x1,       ///< an entry of Vant::Console()
        kindComms = 0x2,         ///< of Vant::Comms()
        kindStatus = 0x4,        ///< of Vant::Status()
        kindAlarm = 0x8,         ///< of Vant::Alarm()
        kindSelfClear = 0x10000, ///< an update tells its caller to clear the entry next: see UpdateEntry()
        kindChecked = 0x20000,  ///< checked by the user: an acknowledged alarm; a mask without it hides those
        kindVerbose = 0x100000, ///< shown and logged while "Verbose" is on; it is off at first
        kindDetailed = 0x800000, ///< shown and logged while "Detailed" is on
    };

    CConsole();
    ~CConsole() override;

    /** @name Fields */
    ///@{
    CLstPtr<CECEntry*> entries;     ///< owned; hold #entryLock while walking or changing the list
    int maxEntries = 20;            ///< so many entries AddEntry() leaves at most; below 1 counts as 1
    int seq = 0;                    ///< sequence number of the last line
    int changed = 1;                ///< non-zero: there is something that the window has not drawn
    int cslKind = -1;               ///< what SetupCsl() was given
    int logTo = 0;                  ///< non-zero: entries are logged; persistent
    unsigned int filter = 0x8fffff; ///< filter mask: KindBits, and bit 4 + n for the levels from n * 1000
    CString fileName;               ///< the log file; persistent
    int detail = 1;                 ///< non-zero: entries of kindDetailed pass; persistent
    CString title;                  ///< of a window that is created without one
    CCriticalSection entryLock;     ///< guards the entries and #fileName; a thread may take it several times
    /** @} */

    /** Sets the kind, and the log file below Vant::dataDir: kind 0 "Logs\Console.csv", 1 "Logs\Status.csv", 2
     *  "Logs\Alarms.csv"; other kinds leave the file as it is. */
    virtual void SetupCsl(int kindOf);

    /** @name Entries; callable from any thread */
    ///@{
    /** Sets the keyed entry `id`, or inserts it in the order of ids, and logs it. The text becomes
     *  "<id>.<repeats> (<time>) :" followed by `text`, with five and three digits. A state of -1 clears the
     * entry.
     *  @param state  becomes -1 when an entry that was there is marked kindSelfClear, for the caller's next
     * update
     *  @param bits  KindBits for the entry, besides those that it has; an update takes kindChecked away
     *  @return the entry, or null when it was cleared */
    CECEntry* UpdateEntry(unsigned long id, int& state, const CString& text, unsigned int bits = 0);
    /** The same, but -1 is a state like any other: how the alarm logger keeps what is over. */
    CECEntry* RecordEntry(unsigned long id, int& state, const CString& text, unsigned int bits = 0);
    /** Adds a line and logs it; the oldest one goes when there are #maxEntries. The text becomes
     *  "<sequence number>. (<time>) :" followed by `text`, with five digits. @param bits  KindBits besides
     * the console's own */
    void AddEntry(unsigned long id, int lineLevel, const CString& text, unsigned int bits = 0);
    /** The first entry with this id, or null. */
    CECEntry* FindEntry(unsigned long id);
    /** Copies the first entry with this id. @return 1, or 0 if there is none */
    int GetEntry(unsigned long id, CECEntry& copy);
    /** Removes the first entry with this id. */
    void ClearEntry(unsigned long id);
    /** Removes all entries; the sequence goes on. */
    void ClearList();
    /** Takes the check of every entry away. */
    void DeSelectAll();
    /** Non-zero if an entry passes the filter: all of its kind bits and the bit of its level are set in the
     * mask. Levels below 0 count as 0, and from 9000 on all are one range. */
    int TestEntry(const CECEntry* entry) const;
    /** Appends an entry to the log file if #logTo is set and it passes the filter: its text as one line, line
     * breaks in it as blanks. A file that takes no line becomes alarm 6010 (Vant::AppendToFile()), once: the
     * lines wait, are offered again every few seconds, and stand in the file in their order when it takes
     * them. It tells how many were too many to wait. */
    void LogEntry(const CECEntry* entry);
    /** @} */

    /** Lets the user choose the log file. */
    void OnBrowse();

    /** @name Operations of a window */
    ///@{
    /** Shows what has come since the last trigger. */
    void OnTrigger(double a, double b) override;
    /** Besides the window's items: "FName", "CslDetail" and "LogTo". A log file below Vant::dataDir is kept
     * by its name from there, so that it moves with the data directory. A name that is no file's, as another
     * program may have stored it, is not taken. */
    void Settings(CESetObj& obj) override;
    void SetupCtrls() override;
    void Draw(CDC* dc) override;
    void LayoutWnd(int quiet) override;
    using CVantWnd::LayoutWnd; ///< the one without an argument, too
    BOOL PreTranslateMessage(MSG* msg) override;
    /** @} */

protected:
    /** @name What the window shows; UI thread, units */
    ///@{
    /** The section of the options, closed at first. */
    CCtrlCat* OptionCat();
    /** Inserts "Log To" with the choice of the file. */
    void InsLogTo(CCtrlCat& cat);

    /** Takes the entries over that changed since the last time and has their rows redrawn, if #entryLock can
     * be had within a millisecond. */
    void Refresh();
    /** The entries that passed the filter then, copied. */
    const std::vector<CECEntry>& Lines() const noexcept { return m_shown.lines; }
    /** Where the entries are drawn; empty when the options leave no room. */
    CRect ListRc() const;
    /** Where a line is drawn, wherever it is scrolled to. */
    CRect RowRc(int line) const;
    /** The line at a point of the list; -1 for none. */
    int LineAt(CPoint point) const;
    /** Has all rows redrawn. */
    void RedrawList();
    /** What the heading says beside the console's name. @param total  entries, hidden ones included */
    virtual CString Summary(int total) const;
    /** Scrolls as little as is needed to see a line. */
    void ShowLine(int line);
    /** How many rows are in view completely. */
    int PageRows() const noexcept { return m_scroll.Page(); }
    /** Draws a line's text, with an ellipsis where it is too long. */
    void DrawLineText(CDC* dc, CRect r, const CECEntry& line, COLORREF colour) const;
    /** Height of a row. */
    virtual int RowH() const;
    /** Draws a row. */
    virtual void DrawLine(CDC* dc, const CRect& r, const CECEntry& line);
    /** A click on a line. @param point  in the row  @param twice  the second one of a double click */
    virtual void OnLineClick(int line, CPoint point, bool twice);
    /** A key. @return whether it did something */
    virtual bool OnListKey(UINT key);
    /** @} */

    unsigned int m_kind = 0; ///< kind bits of the console's entries

    BOOL PreCreateWindow(CREATESTRUCT& cs) override;
    afx_msg void OnPaint();
    afx_msg void OnSize(UINT type, int cx, int cy);
    afx_msg void OnSetFocus(CWnd* old);
    afx_msg void OnKillFocus(CWnd* other);
    afx_msg void OnKeyDown(UINT key, UINT repeats, UINT flags);
    afx_msg UINT OnGetDlgCode();
    afx_msg BOOL OnMouseWheel(UINT flags, short delta, CPoint point);
    afx_msg void OnLButtonDown(UINT flags, CPoint point);
    afx_msg void OnLButtonDblClk(UINT flags, CPoint point);
    afx_msg void OnLButtonUp(UINT flags, CPoint point);
    afx_msg void OnMouseMove(UINT flags, CPoint point);
    afx_msg void OnCaptureChanged(CWnd* other);
    DECLARE_MESSAGE_MAP()

private:
    struct LogLine {
        CString file; ///< empty: the entry is not logged
        CString text;
    };

    struct Shown {
        std::vector<CECEntry> lines; ///< copies of what passed the filter
        int newest = -1;             ///< index of the last one written
        int total = 0;               ///< how many there were
        bool keyed = false;          ///< of entries that are updated in place
    };

    bool TryLock();
    std::unique_ptr<CECEntry> NewEntry();
    CVantPtr* FindPos(unsigned int id) const;
    void Retire(CVantPtr* pos);
    void Stamp(CECEntry& entry, int state);
    LogLine LineOf(const CECEntry& entry) const;
    void Write(const LogLine& line);

    template <class T>
    void InsOption(CCtrlCat& cat, int width, const CString& caption, const CString& tip, T& variable,
                   unsigned bits);
    void OnOption();
    void ArrangeLevels();
    bool Snapshot(Shown& shown);
    void KeepPlace(const Shown& before, int firstBefore);
    void RedrawRows(const Shown& before, int firstBefore);
    CRect HeadRc() const;
    void DrawHead(CDC* dc) const;
    void DrawList(CDC* dc, const CRect& list);
    void SyncPage();
    CRect BarRc() const;
    void DrawBar(CDC* dc) const;
    bool ScrollList(int first);
    bool ShiftColumns(int columns);
    void Press(CPoint point, bool twice);

    vant::detail::LogFile m_logFile;
    std::vector<std::unique_ptr<CECEntry>> m_spare; // entries that are in no list, for the next ones
    const CECEntry* m_newest = nullptr;             // the last one written; null when it was cleared
    bool m_keyed = false;                           // it is keyed

    CCtrlCat* m_options = nullptr; // null until there are options; the window's
    Shown m_shown;                 // what is drawn
    vant::detail::RowScroll m_scroll;
    bool m_follow = true; // the list stays at its end
    CFont m_font;
    int m_column = 0; // characters that are shifted out on the left
    int m_wheelRest = 0;
    int m_grip = -1; // where the thumb was gripped, units from its top; -1: it is not
    bool m_painting = false;
};
