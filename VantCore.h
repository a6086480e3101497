#pragma once

/** @file
 *  Everything an application of VantCore needs: include this header and nothing else. */

#include "core/CAoi.h"
#include "core/CLstMgd.h"
#include "core/CLstPtr.h"
#include "core/CMat.h"
#include "core/CPtrAry.h"
#include "core/CStatBuf.h"
#include "core/CTmPrd.h"
#include "core/CV3.h"
#include "core/ML.h"
#include "core/VantApi.h"
#include "platform/CBaseApp.h"
#include "platform/CECEntry.h"
#include "platform/EUtil.h"
#include "platform/Vant.h"
#include "settings/CESet.h"
#include "settings/CESetCol.h"
#include "settings/CESetItm.h"
#include "settings/CESetObj.h"
#include "values/CEVal.h"
#include "values/CStrVal.h"
#include "values/EUnits.h"
