# bin/, include/VantCore/, lib/ and the CMake package: find_package(VantCore CONFIG).
include_guard()
include(CMakePackageConfigHelpers)

set(VANT_INSTALL_CMAKEDIR ${CMAKE_INSTALL_LIBDIR}/cmake/VantCore)

install(TARGETS VantAfx VantCore
  EXPORT VantCoreTargets
  RUNTIME DESTINATION ${CMAKE_INSTALL_BINDIR}
  LIBRARY DESTINATION ${CMAKE_INSTALL_LIBDIR}
  ARCHIVE DESTINATION ${CMAKE_INSTALL_LIBDIR}
  FILE_SET HEADERS DESTINATION ${CMAKE_INSTALL_INCLUDEDIR}/VantCore
)
