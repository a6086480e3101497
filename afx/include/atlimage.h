#pragma once

/** @file
 *  CImage, and the names of GDI+ for the file formats. */

#include "afxwin.h"

#include "vafx/CImage.h"

#include <gdiplus.h>
