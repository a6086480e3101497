#pragma once

/** @file
 *  The system's own dialogs. */

#include "afxwin.h"

#include "vafx/CFileDialog.h"
