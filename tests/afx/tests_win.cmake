list(APPEND afx_tests
  CDC.test.cpp
  CDialog.test.cpp
  CFileDialog.test.cpp
  CImage.test.cpp
  CWnd.test.cpp
  HandleMaps.test.cpp
  MessageMap.test.cpp
  LIBS vant_test_support
)

# Makes windows in a module of its own.
add_library(test_afx_windows MODULE Windows.cpp)
vant_configure_target(test_afx_windows)
set_target_properties(test_afx_windows PROPERTIES PREFIX "" LIBRARY_OUTPUT_DIRECTORY ${CMAKE_RUNTIME_OUTPUT_DIRECTORY})
target_link_libraries(test_afx_windows PRIVATE VantAfx)

# A program without an entry point of its own, and one with: each says by its exit code whether all went well.
foreach(program GuiProgram OwnEntryPoint)
  add_executable(test_afx_${program} ${program}.cpp)
  vant_configure_target(test_afx_${program})
  target_link_libraries(test_afx_${program} PRIVATE VantAfx)
endforeach()
add_test(NAME afx.GuiProgram COMMAND test_afx_GuiProgram first "second argument")
add_test(NAME afx.OwnEntryPoint COMMAND test_afx_OwnEntryPoint)
set_tests_properties(afx.GuiProgram afx.OwnEntryPoint PROPERTIES TIMEOUT 60)
