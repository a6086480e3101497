#pragma once

/** @file
 *  Windows, device contexts, GDI objects, dialogs and the application object. */

#include "afx.h"

#include "vafx/CBitmap.h"
#include "vafx/CBrush.h"
#include "vafx/CClientDC.h"
#include "vafx/CCmdTarget.h"
#include "vafx/CDC.h"
#include "vafx/CDialog.h"
#include "vafx/CEdit.h"
#include "vafx/CFont.h"
#include "vafx/CFrameWnd.h"
#include "vafx/CGdiObject.h"
#include "vafx/CPaintDC.h"
#include "vafx/CPalette.h"
#include "vafx/CPen.h"
#include "vafx/CRgn.h"
#include "vafx/CScrollBar.h"
#include "vafx/CWinApp.h"
#include "vafx/CWinThread.h"
#include "vafx/CWindowDC.h"
#include "vafx/CWnd.h"
#include "vafx/MessageMapReflect.h"
