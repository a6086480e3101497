#pragma once

/** @file
 *  Objects, strings, geometry, files, archives and time. */

#include <tchar.h>
#include <windows.h>

#include "vafx/CArchive.h"
#include "vafx/CArchiveException.h"
#include "vafx/CException.h"
#include "vafx/CFile.h"
#include "vafx/CFileException.h"
#include "vafx/CFileFind.h"
#include "vafx/CFileStatus.h"
#include "vafx/CMemFile.h"
#include "vafx/CObject.h"
#include "vafx/CPoint.h"
#include "vafx/CRect.h"
#include "vafx/CRuntimeClass.h"
#include "vafx/CSimpleException.h"
#include "vafx/CSize.h"
#include "vafx/CStdioFile.h"
#include "vafx/CStringA.h"
#include "vafx/CStringW.h"
#include "vafx/CTime.h"
#include "vafx/CTimeSpan.h"
#include "vafx/NewHandler.h"
#include "vafx/debug.h"
#include "vafx/resources.h"
