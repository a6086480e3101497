# Objects, strings, geometry, files, archives, time, synchronisation, threads: everything behind <afx.h> and
# <afxmt.h>.
target_sources(VantAfx
  PRIVATE
    src/placeholder.cpp
  PUBLIC FILE_SET HEADERS BASE_DIRS include FILES
    include/afx.h
)
