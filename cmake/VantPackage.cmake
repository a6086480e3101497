# CPack makes two packages of what is installed: a ZIP archive and a Windows installer. scripts/package makes them
# together with the archive of the symbols.
include_guard()

set(CPACK_PACKAGE_NAME VantCore)
set(CPACK_PACKAGE_VENDOR VantCore)
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "${PROJECT_DESCRIPTION}")
set(CPACK_PACKAGE_VERSION ${PROJECT_VERSION})
set(CPACK_SYSTEM_NAME win64)
set(CPACK_PACKAGE_FILE_NAME VantCore-${PROJECT_VERSION}-${CPACK_SYSTEM_NAME})
set(CPACK_VERBATIM_VARIABLES ON)
set(CPACK_GENERATOR ZIP)
find_program(VANT_MAKENSIS makensis)
if(VANT_MAKENSIS)
  list(APPEND CPACK_GENERATOR NSIS)
else()
  message(STATUS "makensis is missing (scripts/setup package): no installer, and no test of it")
endif()
set(CPACK_PROJECT_CONFIG_FILE ${CMAKE_CURRENT_LIST_DIR}/package/Generators.cmake)

# What the installer offers one by one; the symbols have an archive of their own. Its template,
# package/NSIS.template.in, is found on the module path, and knows no other variables than CPack's.
set(CPACK_COMPONENTS_ALL runtime development examples documentation)
if(VANT_BUILD_DEMO)
  list(APPEND CPACK_COMPONENTS_ALL demonstration)
endif()
set(CPACK_NSIS_COMPRESSOR "/SOLID lzma")
set(CPACK_VANT_TITLE "VantCore ${VANT_VERSION_TEXT}")
set(CPACK_VANT_VERSION ${VANT_VERSION_TEXT})
set(CPACK_VANT_ICON ${PROJECT_SOURCE_DIR}/resources/ico/app.ico)
set(CPACK_VANT_PICTURES ${CMAKE_CURRENT_LIST_DIR}/package)

include(CPack)
