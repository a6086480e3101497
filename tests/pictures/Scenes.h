#pragma once

#include <afx.h>

/** @file
 *  Pictures of what the 3D display draws. Each returns whether it could be taken. */

/** A sea bed and a boat that the view follows, from above and in perspective. */
bool TakeViews(const CString& chartFile, const CString& sceneFile);

/** The preset materials, on one sheet. */
bool TakeMaterials(const CString& file);
