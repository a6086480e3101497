#pragma once

/** @file
 *  Everything an application of VantCore needs: include this header and nothing else. */

#include "core/VantApi.h"
