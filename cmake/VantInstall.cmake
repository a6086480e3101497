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

# The pages of an installed folder lead to what is installed.
function(vant_install_links folder component)
  install(CODE "
    set(FOLDER \"\$ENV{DESTDIR}\${CMAKE_INSTALL_PREFIX}/${folder}\")
    include(\"${CMAKE_CURRENT_FUNCTION_LIST_DIR}/package/Pages.cmake\")"
    COMPONENT ${component})
endfunction()

# The examples are projects of their own; a list above them builds them all. The tree's list uses the tree's targets.
install(DIRECTORY ${PROJECT_SOURCE_DIR}/examples/
  DESTINATION examples COMPONENT examples
  REGEX "examples/CMakeLists\\.txt$" EXCLUDE)
vant_install_links(examples examples)
install(FILES ${CMAKE_CURRENT_LIST_DIR}/package/examples.cmake
  DESTINATION examples COMPONENT examples RENAME CMakeLists.txt)

# The first page is the package's own: the tree's tells how to work on the library.
configure_file(${CMAKE_CURRENT_LIST_DIR}/package/README.md.in ${CMAKE_CURRENT_BINARY_DIR}/package/README.md @ONLY)
install(FILES ${CMAKE_CURRENT_BINARY_DIR}/package/README.md ${PROJECT_SOURCE_DIR}/CHANGELOG.md
  DESTINATION . COMPONENT documentation)
install(DIRECTORY ${PROJECT_SOURCE_DIR}/docs/
  DESTINATION docs COMPONENT documentation
  FILES_MATCHING PATTERN "*.md" PATTERN "*.png" PATTERN "*.cpp"
  PATTERN site EXCLUDE)
vant_install_links(docs documentation)
# The pages as a site with the interface's reference, where ./run-docs has built it.
install(DIRECTORY ${PROJECT_SOURCE_DIR}/build/site/
  DESTINATION docs/html COMPONENT documentation OPTIONAL)
