#include "platform/Vant.h"

constexpr int Vant::alarmInfo;
constexpr int Vant::msgWarnIcon;
constexpr int Vant::msgStopIcon;
constexpr int Vant::msgStay;
constexpr int Vant::msgModal;
constexpr int Vant::msgYesNo;
constexpr int Vant::msgCancel;

COLORREF Vant::light = 0xF5F5F5;
COLORREF Vant::back = 0x271200;
COLORREF Vant::med = 0xAA784B;
COLORREF Vant::dark = 0x7D7D7D;
COLORREF Vant::blue = 0xF0281E;
COLORREF Vant::green = 0x00C800;
COLORREF Vant::slate = 0x161616;
COLORREF Vant::grey = 0x323232;
COLORREF Vant::cyan = 0xF79B62;
COLORREF Vant::red = 0x0000C8;
COLORREF Vant::yellow = 0xC8C8C8;
COLORREF Vant::teal = 0x4B3C00;

unsigned int Vant::options = 0x29;
double Vant::hoverTime = 0.3;
double Vant::minRng = 4.0;
double Vant::maxRng = 120.0;
int Vant::vantOnline = 1;
int Vant::vantAutoOnline = 1;
int Vant::imgInd = 1;
int Vant::aviInd = 1;
int Vant::comPortBaud = 9600;
int Vant::comPortNo = 0;
int Vant::vantLevel = 0;
int Vant::vantClosing = 0;
int Vant::seqType = 0;
int Vant::cltSpec = 0;
int Vant::startOpt = 0;
int Vant::isBrenmark = 0;
int Vant::inAq = 0;
int Vant::inLog = 0;
int Vant::inReplay = 0;
HICON Vant::hIcon = nullptr;
void* Vant::hwCtrl = nullptr;

double Vant::markers_SI[6] = {0.1, 0.15, 0.2, 0.25, 0.5, 0.75};
double Vant::markers_USA[3] = {0.1, 0.2, 0.5};

CString Vant::appTitle(L"No Assigned Title");
CString Vant::projDir(L"C:\\Tolk\\Vant\\");
CString Vant::dataDir(L"C:\\VantData\\");
CString Vant::setFile(L"C:\\Tolk\\Vant\\VantApp.xml");
CString Vant::runDir;
CString Vant::swVer(VANT_VERSION_TEXT); // from the build, as the version in the DLL's properties
CString Vant::hwVer(L"0.00");
CString Vant::appVer(L"0.00");
CString Vant::helpFile(L"C:\\Tolk\\Vant\\Help\\VantApp.chm");
CString Vant::helpDefault(L"Using the Software");
CString Vant::userSet;
CString Vant::wndClass;
CString Vant::ctlClass;

CFont Vant::normalF, Vant::boldF, Vant::largeF, Vant::headF, Vant::smallF, Vant::medF, Vant::vertF,
    Vant::scrnF;

CPen Vant::blackL, Vant::whiteL, Vant::lightL, Vant::backL, Vant::medL, Vant::darkL, Vant::blueL,
    Vant::greenL, Vant::greyL, Vant::cyanL, Vant::redL, Vant::yellowL, Vant::tealL, Vant::slateL;

CBrush Vant::blackB, Vant::whiteB, Vant::lightB, Vant::backB, Vant::medB, Vant::darkB, Vant::blueB,
    Vant::greenB, Vant::greyB, Vant::cyanB, Vant::redB, Vant::yellowB, Vant::tealB, Vant::slateB;
