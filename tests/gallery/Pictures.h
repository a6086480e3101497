#pragma once

#include "CGalleryWnd.h"

/** Saves the whole gallery, with its menu open, as FOLDER\gallery-DPI.png at 96, 144 and 192 DPI.
 *  @return whether all could be written, and all states could be told apart */
bool TakePictures(CGalleryWnd& gallery, const CString& folder);
