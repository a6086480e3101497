#include "platform/CBaseApp.h"

CBaseApp::CBaseApp() = default;

CBaseApp::~CBaseApp() = default;
