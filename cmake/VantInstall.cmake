# bin/, include/VantCore/, lib/, share/VantCore/clt/ and the CMake package: find_package(VantCore CONFIG).
include_guard()
include(CMakePackageConfigHelpers)

set(VANT_PACKAGE_DIR ${CMAKE_INSTALL_LIBDIR}/cmake/VantCore)

# The MFC headers stand in a folder of their own, so that a toolchain's own MFC can take their place.
set(VANT_AFX_FILES)
if(NOT VANT_USE_SYSTEM_MFC)
  set(VANT_AFX_FILES FILE_SET HEADERS DESTINATION ${CMAKE_INSTALL_INCLUDEDIR}/VantCore/afx)
endif()

install(TARGETS VantAfx
  EXPORT VantCoreTargets
  RUNTIME DESTINATION ${CMAKE_INSTALL_BINDIR}
  ARCHIVE DESTINATION ${CMAKE_INSTALL_LIBDIR}
  ${VANT_AFX_FILES})
install(TARGETS VantCore
  EXPORT VantCoreTargets
  RUNTIME DESTINATION ${CMAKE_INSTALL_BINDIR}
  ARCHIVE DESTINATION ${CMAKE_INSTALL_LIBDIR}
  FILE_SET HEADERS DESTINATION ${CMAKE_INSTALL_INCLUDEDIR}/VantCore)

set(VANT_CLT_DIR ${CMAKE_INSTALL_DATADIR}/VantCore/clt)
install(DIRECTORY ${PROJECT_SOURCE_DIR}/resources/clt/ DESTINATION ${VANT_CLT_DIR} FILES_MATCHING PATTERN "*.clt")

install(EXPORT VantCoreTargets
  NAMESPACE VantCore::
  DESTINATION ${VANT_PACKAGE_DIR})
configure_package_config_file(${CMAKE_CURRENT_LIST_DIR}/VantCoreConfig.cmake.in
  ${CMAKE_CURRENT_BINARY_DIR}/VantCoreConfig.cmake
  INSTALL_DESTINATION ${VANT_PACKAGE_DIR}
  PATH_VARS VANT_CLT_DIR)
write_basic_package_version_file(${CMAKE_CURRENT_BINARY_DIR}/VantCoreConfigVersion.cmake
  COMPATIBILITY SameMinorVersion)
install(FILES
  ${CMAKE_CURRENT_BINARY_DIR}/VantCoreConfig.cmake
  ${CMAKE_CURRENT_BINARY_DIR}/VantCoreConfigVersion.cmake
  DESTINATION ${VANT_PACKAGE_DIR})
