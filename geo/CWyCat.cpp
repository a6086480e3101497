#include "geo/CWyCat.h"

CWyCat::CWyCat() = default;
CWyCat::CWyCat(const CWyCat& other) = default;
CWyCat& CWyCat::operator=(const CWyCat& other) = default;
CWyCat::~CWyCat() = default;
