#include "geo/CArKinds.h"

CArNRect::CArNRect() = default;
CArNRect::CArNRect(const CArNRect& other) = default;
CArNRect& CArNRect::operator=(const CArNRect& other) = default;
CArNRect::~CArNRect() = default;

CArARect::CArARect() = default;
CArARect::CArARect(const CArARect& other) = default;
CArARect& CArARect::operator=(const CArARect& other) = default;
CArARect::~CArARect() = default;

CArCircle::CArCircle() = default;
CArCircle::CArCircle(const CArCircle& other) = default;
CArCircle& CArCircle::operator=(const CArCircle& other) = default;
CArCircle::~CArCircle() = default;

CArFree::CArFree() = default;
CArFree::CArFree(const CArFree& other) = default;
CArFree& CArFree::operator=(const CArFree& other) = default;
CArFree::~CArFree() = default;

CArRt::CArRt() = default;
CArRt::CArRt(const CArRt& other) = default;
CArRt& CArRt::operator=(const CArRt& other) = default;
CArRt::~CArRt() = default;

CArTram::CArTram() = default;
CArTram::CArTram(const CArTram& other) = default;
CArTram& CArTram::operator=(const CArTram& other) = default;
CArTram::~CArTram() = default;

CArWy::CArWy() = default;
CArWy::CArWy(const CArWy& other) = default;
CArWy& CArWy::operator=(const CArWy& other) = default;
CArWy::~CArWy() = default;
