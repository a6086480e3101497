list(APPEND afx_tests
  BlockCache.test.cpp
  CArchive.test.cpp
  CException.test.cpp
  CFile.test.cpp
  CObject.test.cpp
  CRect.test.cpp
  CString.test.cpp
  CTime.test.cpp
  CWinThread.test.cpp
  NewHandler.test.cpp
  Strings.rc
)

# Loaded and unloaded by a test.
add_library(test_afx_module MODULE Module.cpp)
vant_configure_target(test_afx_module)
set_target_properties(test_afx_module PROPERTIES PREFIX "" LIBRARY_OUTPUT_DIRECTORY ${CMAKE_RUNTIME_OUTPUT_DIRECTORY})
target_link_libraries(test_afx_module PRIVATE VantAfx)
