# What users get, in components that the installer offers one by one: bin/, include/VantCore/, lib/,
# share/VantCore/clt/ and the CMake package (find_package(VantCore CONFIG)); examples/, docs/.
include_guard()
include(CMakePackageConfigHelpers)

set(VANT_PACKAGE_DIR ${CMAKE_INSTALL_LIBDIR}/cmake/VantCore)

# The MFC headers stand in a folder of their own, so that a toolchain's own MFC can take their place.
set(VANT_AFX_FILES)
if(NOT VANT_USE_SYSTEM_MFC)
  set(VANT_AFX_FILES FILE_SET HEADERS DESTINATION ${CMAKE_INSTALL_INCLUDEDIR}/VantCore/afx COMPONENT development)
  install(TARGETS VantAfxMain
    EXPORT VantCoreTargets
    ARCHIVE DESTINATION ${CMAKE_INSTALL_LIBDIR} COMPONENT development)
endif()

install(TARGETS VantAfx
  EXPORT VantCoreTargets
  RUNTIME DESTINATION ${CMAKE_INSTALL_BINDIR} COMPONENT runtime
  ARCHIVE DESTINATION ${CMAKE_INSTALL_LIBDIR} COMPONENT development
  ${VANT_AFX_FILES})
install(TARGETS VantCore
  EXPORT VantCoreTargets
  RUNTIME DESTINATION ${CMAKE_INSTALL_BINDIR} COMPONENT runtime
  ARCHIVE DESTINATION ${CMAKE_INSTALL_LIBDIR} COMPONENT development
  FILE_SET HEADERS DESTINATION ${CMAKE_INSTALL_INCLUDEDIR}/VantCore COMPONENT development)

set(VANT_CLT_DIR ${CMAKE_INSTALL_DATADIR}/VantCore/clt)
install(DIRECTORY ${PROJECT_SOURCE_DIR}/resources/clt/
  DESTINATION ${VANT_CLT_DIR} COMPONENT runtime FILES_MATCHING PATTERN "*.clt")

install(EXPORT VantCoreTargets
  NAMESPACE VantCore::
  DESTINATION ${VANT_PACKAGE_DIR} COMPONENT development)
configure_package_config_file(${CMAKE_CURRENT_LIST_DIR}/VantCoreConfig.cmake.in
  ${CMAKE_CURRENT_BINARY_DIR}/VantCoreConfig.cmake
  INSTALL_DESTINATION ${VANT_PACKAGE_DIR}
  PATH_VARS VANT_CLT_DIR)
write_basic_package_version_file(${CMAKE_CURRENT_BINARY_DIR}/VantCoreConfigVersion.cmake
  COMPATIBILITY SameMinorVersion)
install(FILES
  ${CMAKE_CURRENT_BINARY_DIR}/VantCoreConfig.cmake
  ${CMAKE_CURRENT_BINARY_DIR}/VantCoreConfigVersion.cmake
  DESTINATION ${VANT_PACKAGE_DIR} COMPONENT development)

# The examples are projects of their own; a list above them builds them all. The tree's list uses the tree's targets.
install(DIRECTORY ${PROJECT_SOURCE_DIR}/examples/
  DESTINATION examples COMPONENT examples
  REGEX "examples/CMakeLists\\.txt$" EXCLUDE)
install(FILES ${CMAKE_CURRENT_LIST_DIR}/package/examples.cmake
  DESTINATION examples COMPONENT examples RENAME CMakeLists.txt)

install(FILES ${PROJECT_SOURCE_DIR}/README.md ${PROJECT_SOURCE_DIR}/CHANGELOG.md
  DESTINATION . COMPONENT documentation)
install(DIRECTORY ${PROJECT_SOURCE_DIR}/docs/
  DESTINATION docs COMPONENT documentation
  FILES_MATCHING PATTERN "*.md" PATTERN "*.png" PATTERN "*.cpp"
  PATTERN site EXCLUDE)
# The pages as a site with the interface's reference, where ./run-docs has built it.
install(DIRECTORY ${PROJECT_SOURCE_DIR}/build/site/
  DESTINATION docs/html COMPONENT documentation OPTIONAL)
