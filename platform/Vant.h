#pragma once

#include "core/VantApi.h"

#include <afxwin.h>

class CCslAlm;
class CCslComms;
class CConsole;
class CEMsgBox;
class CESetObj;
class CEToolTip;

/** Everything that the applications share: the colour scheme, the fonts, pens and brushes drawn in it, the
 * skins that the controls copy from, directories and file names, run-state flags, the loggers and a few
 * utilities.
 *
 *  An application sets what it wants to differ (colours, directories, title), calls Init() once before it
 * creates any window or control of the library, and Exit() once after it has destroyed them. All members
 * belong to the UI thread, except the loggers, which may be called from any thread. */
class VANT_API Vant
{
public:
    Vant() = delete;

    /** @name Colour scheme
     *  GDI colours (0x00BBGGRR). The names are roles, not hues: yellow is deliberately a light grey and cyan
     * a light blue. Init() builds the pens and brushes from them, so overwrite them before it. */
    ///@{
    static COLORREF light;  ///< 245, 245, 245: text
    static COLORREF back;   ///< 0, 18, 39: background of every window
    static COLORREF med;    ///< 75, 120, 170: frames and inactive parts
    static COLORREF dark;   ///< 125, 125, 125
    static COLORREF blue;   ///< 30, 40, 240
    static COLORREF green;  ///< 0, 200, 0
    static COLORREF slate;  ///< 22, 22, 22
    static COLORREF grey;   ///< 50, 50, 50
    static COLORREF cyan;   ///< 98, 155, 247
    static COLORREF red;    ///< 200, 0, 0
    static COLORREF yellow; ///< 200, 200, 200
    static COLORREF teal;   ///< 0, 60, 75
    ///@}

    /** @name Options and run state
     *  Except for #options, #hIcon and #hoverTime the library neither reads nor writes these; they are state
     * that the parts of an application share. */
    ///@{
    /** Option bits, 0x29 at first: 0x20 no sound at all, 0x08 no sound but sound 3. */
    static unsigned int options;
    static double hoverTime;   ///< rest of the mouse before a tool tip shows, seconds; 0.3
    static double minRng;      ///< metres; 4
    static double maxRng;      ///< metres; 120
    static int vantOnline;     ///< 1
    static int vantAutoOnline; ///< 1
    static int imgInd;         ///< number of the next image, kept by Settings(); 1
    static int aviInd;         ///< number of the next video; 1
    static int comPortBaud;    ///< 9600
    static int comPortNo;      ///< 0
    static int vantLevel;      ///< user level; 0
    static int vantClosing;    ///< set while the application shuts down; 0
    static int seqType;        ///< 0
    static int cltSpec;        ///< 0
    static int startOpt;       ///< 0
    static int isBrenmark;     ///< 0
    static int inAq;           ///< 0
    static int inLog;          ///< 0
    static int inReplay;       ///< 0
    static HICON hIcon;        ///< icon of the windows' class, read by Init(); null. Not owned.
    static void* hwCtrl;       ///< the application's hardware-control object, opaque here; null. Not owned.
    ///@}

    /** @name Names and places
     *  Directories end with a backslash: a file name is appended as it is. */
    ///@{
    static CString appTitle;    ///< "No Assigned Title"
    static CString projDir;     ///< "C:\Tolk\Vant\"
    static CString dataDir;     ///< "C:\VantData\"; logs are written below it
    static CString setFile;     ///< the settings file, "C:\Tolk\Vant\VantApp.xml"
    static CString runDir;      ///< empty
    static CString swVer;       ///< version of this library, "2.07-beta8"
    static CString hwVer;       ///< "0.00"
    static CString appVer;      ///< "0.00"
    static CString helpFile;    ///< the compiled help file, "C:\Tolk\Vant\Help\VantApp.chm"
    static CString helpDefault; ///< topic that is opened where there is no other, "Using the Software"
    static CString userSet;     ///< empty
    static CString wndClass;    ///< window class of the platform windows; empty until Init()
    static CString ctlClass;    ///< window class of the controls; empty until Init()
    ///@}

    /** @name Fonts
     *  Created by Init(): Arial unless stated, heights are cell heights in logical units. */
    ///@{
    static CFont normalF; ///< 16
    static CFont boldF;   ///< 14, weight 600
    static CFont largeF;  ///< not created by Init(); empty until an application creates it
    static CFont headF;   ///< 30
    static CFont smallF;  ///< 14
    static CFont medF;    ///< Courier, 12, weight 100
    static CFont vertF;   ///< 12, rotated by 90 degrees: text runs upwards
    static CFont scrnF;   ///< 20
    ///@}

    /** @name Pens
     *  Each is solid, one unit wide, in the colour of the same name. Created by Init(), deleted by Exit() up
     * to tealL. */
    ///@{
    static CPen blackL, whiteL, lightL, backL, medL, darkL, blueL, greenL, greyL, cyanL, redL, yellowL, tealL;
    static CPen slateL; ///< deliberately outlives Exit()
    ///@}

    /** @name Brushes
     *  Each is solid, in the colour of the same name. Created by Init(), deleted by Exit() up to tealB. */
    ///@{
    static CBrush blackB, whiteB, lightB, backB, medB, darkB, blueB, greenB, greyB, cyanB, redB;
    static CBrush yellowB, tealB;
    static CBrush slateB; ///< deliberately outlives Exit()
    ///@}

    /** @name Skins
     *  Memory device contexts, each holding one bitmap of the library that controls copy pieces of. Created
     * by Init(); they outlive Exit(). A skin whose bitmap is missing holds the one-pixel bitmap of a fresh
     * context. */
    ///@{
    static CDC grad1;       ///< bitmap 7003
    static CDC grad2;       ///< bitmap 7009
    static CDC grad3;       ///< bitmap 7009 as well, deliberately
    static CDC dwnAr;       ///< bitmap 3001
    static CDC ctrl;        ///< not created by Init(); empty until an application creates it
    static CDC leds;        ///< bitmap 3002
    static CDC grGrad;      ///< bitmap 3003
    static CDC check;       ///< bitmap 16002
    static CDC txt;         ///< bitmap 16003
    static CDC toggle;      ///< bitmap 16004
    static CDC left;        ///< bitmap 16006
    static CDC right;       ///< bitmap 16007
    static CDC slider;      ///< bitmap 16008
    static CDC msgBack;     ///< bitmap 16010
    static CDC msgInfo;     ///< bitmap 16013
    static CDC msgWarn;     ///< bitmap 16012
    static CDC msgStop;     ///< bitmap 16011
    static CDC msgYesBtn;   ///< bitmap 16015
    static CDC msgNoBtn;    ///< bitmap 16016
    static CDC msgBlankBtn; ///< bitmap 16018
    static CDC process;     ///< bitmap 16020
    ///@}

    /** @name Consoles, message box and tool tip
     *  They exist as long as the library is loaded, and the loggers write into the consoles from the first
     * message on. Init() creates the tool tip's window; those of the consoles are the application's to
     * create. Their classes are declared in windows/. */
    ///@{
    static CConsole csl;      ///< lines of Console()
    static CCslComms comms;   ///< lines of Comms()
    static CConsole status;   ///< status lines by id, of Status()
    static CCslAlm alarm;     ///< alarms by id, of Alarm()
    static CEMsgBox msgBox;   ///< the non-modal box of MsgBox()
    static CEToolTip toolTip; ///< shows the tip of the control under the mouse
    ///@}

    /** @name Start and stop */
    ///@{
    /** Creates the fonts, pens and brushes, registers the two window classes, creates the tool tip, prepares
     * the consoles and loads the skins, in this order. Whatever cannot be created is left empty and the rest
     * goes on: a missing skin does not stop an application. May be called again after Exit(); what a first
     * call left is replaced. */
    static void Init();

    /** Destroys the windows of the tool tip and the message box, releases the display lists that all 3D
     * windows share, and deletes the pens blackL to tealL and the brushes blackB to tealB. slateL, slateB,
     * the fonts and the skins deliberately stay until the process ends, the window classes with a stock
     * background. */
    static void Exit();

    /** Writes imgInd to, or reads it from, the item "ImgInd"; the settings object decides which. */
    static void Settings(CESetObj& obj);
    ///@}

    /** @name Range markers
     *  Steps over a table of round values that repeats in every decade, from 0.01 upwards. Arguments and
     * results are metres; in the US system the steps are round numbers of feet. A value that is not a finite
     * number, or beyond the last decade that a double can hold, is returned as it is. */
    ///@{
    static double markers_SI[6];  ///< metres: 0.1, 0.15, 0.2, 0.25, 0.5, 0.75
    static double markers_USA[3]; ///< feet: 0.1, 0.2, 0.5

    /** The marker nearest to `x`; halfway between two, the greater. */
    static double NearestMkr(double x);

    /** The first marker greater than `x`. */
    static double NextMkr(double x);

    /** The last marker less than `x` within the decade of `x`. At or below the first marker of its decade `x`
     * is returned unchanged, deliberately: PrevMkr(1.0) is 1.0. */
    static double PrevMkr(double x);
    ///@}

    /** @name Byte order */
    ///@{
    /** Exchanges the two nibbles: 0x12 becomes 0x21. */
    static unsigned char SwapByte(unsigned char value);

    /** Exchanges the two bytes: 0x1234 becomes 0x3412. */
    static unsigned short SwapWord(unsigned short value);

    /** Reverses the four bytes: 0xAABBCCDD becomes 0xDDCCBBAA. */
    static unsigned long SwapDWord(unsigned long value);
    ///@}

    /** @name Sound and help
     *  Both fail silently. */
    ///@{
    /** Starts one of the sounds 0 to 4 and returns at once; any other number plays nothing. Silent while
     * #options has bit 0x20; with bit 0x08 only sound 3 is heard. */
    static void Snd(int sound);

    /** Opens the help topic of what is under the mouse: of the control, else of the window that the control
     * or the mouse is in, else #helpDefault. */
    static void SpawnHelp();

    /** Opens a topic of #helpFile: the page named like the topic without blanks, commas, parentheses and
     * slashes, plus ".htm" ("Range (m), A/B" is the page RangemAB.htm). Reports "Spawned Help Topic = <page>"
     * as status 0. A topic of which nothing is left does nothing. */
    static void SpawnHelpTopic(CString topic);
    ///@}

    /** @name Pictures
     *  The extension of the path chooses the file format (bmp, png, jpg, gif, tif). Both return 1, or 0 after
     * an alarm at level 1. */
    ///@{
    /** Saves the application's main window with its frame, as it is on the screen, with at least 24 bits per
     * pixel. Alarm 120: "Unable to save screen to <path>". */
    static int PrintScn(CString path);

    /** Saves a picture from memory: `height` rows of `width` pixels, the top row first, without padding; four
     * bytes per pixel in the order blue, green, red and one that is ignored. `bits` is only read. Alarm 130:
     * "Unable to save image to <path>", also for a null pointer and for a size that is not positive or too
     * large for a bitmap. */
    static int WriteImg(CString path, int width, int height, unsigned char* bits);
    ///@}

    /** @name Loggers
     *  `fmt` is a format text as CString::Format takes it, followed by its arguments; pass a CString among
     * them as LPCWSTR. Callable from any thread; they never fail towards the caller. */
    ///@{
    static constexpr int alarmInfo = 6000; ///< information message of an alarm; its data is the CECEntry

    /** Adds a line to the general console. */
    static void Console(int level, CString fmt, ...);

    /** Adds a line to the console of the communications traffic. */
    static void Comms(int level, CString fmt, ...);

    /** Sets the status line `id`. Level -1 takes it away. */
    static void Status(unsigned long id, int level, CString fmt, ...);

    /** Sets the alarm `id`. Level 1 is heard (sound 3), and level 3 when the alarm is in state 1. At every
     * level from 0 up all platform windows then get the information message #alarmInfo with the alarm's
     * entry, on the caller's thread. A negative level is recorded silently, -1 too: the console then shows
     * the alarm as over. */
    static void Alarm(unsigned long id, int level, CString fmt, ...);
    ///@}

    /** @name Message boxes */
    ///@{
    static constexpr int msgWarnIcon = 0x01; ///< warning icon; without an icon bit the information icon
    static constexpr int msgStopIcon = 0x02; ///< stop icon, also together with msgWarnIcon
    static constexpr int msgStay = 0x04;     ///< the non-modal box stays until it is clicked
    static constexpr int msgModal = 0x08;    ///< wait for the user's answer
    static constexpr int msgYesNo = 0x10;    ///< modal: Yes and No instead of OK
    static constexpr int msgCancel = 0x20;   ///< modal: a Cancel button too

    /** Shows a message; `type` is any sum of the bits above, `fmt` as for the loggers. With #msgModal it
     * waits for the user and returns the button: IDOK, IDCANCEL, IDYES or IDNO, or 0 if no box can be shown.
     * Without, it shows the text for five ticks of the box and returns 1 at once, whatever happens to it.
     *
     *  Callable from any thread: the box is always the UI thread's, which must handle messages and, for a
     * modal one, must not be waiting for the caller. Before Init() and after Exit() a modal message is a
     * message box of the system, any other one a line on the general console. */
    static int MsgBox(int type, CString fmt, ...);
    ///@}

    /** @name Files
     *  A failure becomes an alarm at level 1. A file or directory that fails while the alarm of another one
     * is being recorded is not reported in turn: an alarm whose own log file fails is raised once. Except
     * GetDir(), callable from any thread. */
    ///@{
    /** Appends a text to a file; directories and the file are made as needed. The text is written as it is,
     * without a line end of its own, in the system's 8-bit code page. What several threads append at once
     * stays whole; what several processes append does too, unless the file system (a network's) cannot
     * append in one step. An empty file name does nothing. Alarm 6010: "Append To File: Could not open file
     * <file> to log string <text>", followed by " cause:" and a text of FileExceptionStr() if the file was
     * opened but not written. */
    static void AppendToFile(CString file, CString text);

    /** Makes every directory of a path that is missing: below a drive, a share ("\\server\share") or the
     * current directory. Both slashes separate. The path is followed for 20 components, the drive or share
     * counting as one; deeper ones are deliberately ignored. Returns 1, also for an empty path, or 0 after an
     * alarm with id 0: "Cannot create directory Invalid Drive" or "Cannot create directory, Err=<cause>",
     * the latter also when a file is in the way. */
    static int CreateDirPath(CString path);

    /** Deletes the files of a directory that match a pattern of * and ?, and does the same in its
     * sub-directories, which are removed if nothing is left in them: files that do not match stay, at every
     * depth, and so does the directory that holds them. `dir` itself stays. Junctions and links to
     * directories are not followed. "*.*" is every file; upper and lower case are the same. What cannot be
     * deleted is left without a report; an empty `dir` does nothing. */
    static void ClearDirOfFiles(CString dir, CString pattern);

    /** Lets the user pick a folder; the dialog starts at `dir` and shows the path of the selection. With
     * `typed` it has a field to type a path in too. Returns 1 and the path in `dir`, or 0 and leaves `dir` as
     * it is when the user cancels or picks something without a path. Belongs to the UI thread. */
    static int GetDir(CString& dir, bool typed);

    /** Puts what follows the last slash of `path` (of either kind, or the colon of a drive) into `name`,
     * which may be `path` itself. Returns 1, or 0 if there is none: then the name is the whole path. */
    static int NamePart(const CString& path, CString& name);

    /** The system's message for an error code in the user's language, without a line end; "Error <code>" for
     * a code that the system does not know. */
    static CString ErrorString(unsigned long err);

    /** The text for a cause of CFileException; "Unknown Error" for any other number. */
    static CString FileExceptionStr(int cause);
    ///@}
};
