/* Identifiers of the library's resources. This file is read by the resource compiler too, so it holds nothing
   but comments and #define lines. The numbers are fixed: applications may ask for a resource by its number.
 */
#ifndef VANT_RESOURCES_IDS_H
#define VANT_RESOURCES_IDS_H

/* Skins: 32-bit bitmaps. Their regions are in Skins.h. */
#define VANT_IDB_DWNAR 3001
#define VANT_IDB_LEDS 3002
#define VANT_IDB_GRGRAD 3003
#define VANT_IDB_GRAD1 7003
#define VANT_IDB_GRAD2 7009 /* grad2 and grad3 deliberately share this bitmap */
#define VANT_IDB_CHECK 16002
#define VANT_IDB_TXT 16003
#define VANT_IDB_TOGGLE 16004
#define VANT_IDB_DIAL 16005
#define VANT_IDB_LEFT 16006
#define VANT_IDB_RIGHT 16007
#define VANT_IDB_SLIDER 16008
#define VANT_IDB_MSGBACK 16010
#define VANT_IDB_MSGSTOP 16011
#define VANT_IDB_MSGWARN 16012
#define VANT_IDB_MSGINFO 16013
#define VANT_IDB_MSGYESBTN 16015
#define VANT_IDB_MSGNOBTN 16016
#define VANT_IDB_MSGBLANKBTN 16018
#define VANT_IDB_MENU 16019
#define VANT_IDB_PROCESS 16020
#define VANT_IDB_GLOW 16021

/* Sounds: resources of the type "WAVE". */
#define VANT_IDW_CONFIRM 3048
#define VANT_IDW_ALARM 3049
#define VANT_IDW_CLICK 3050
#define VANT_IDW_NOTICE 3051
#define VANT_IDW_REFUSE 3052

/* Cursors. */
#define VANT_IDC_HAND 17001
#define VANT_IDC_GRAB 17002
#define VANT_IDC_LINK 17003
#define VANT_IDC_CROSS 17004
#define VANT_IDC_ZOOM_IN 17005
#define VANT_IDC_ZOOM_OUT 17006
#define VANT_IDC_PAN 17007
#define VANT_IDC_ROTATE 17008
#define VANT_IDC_SPLIT_H 17009
#define VANT_IDC_SPLIT_V 17010

/* Icon of the library, for the applications' windows. */
#define VANT_IDI_APP 100

#endif
