# What every target of the tree shares: language level, warnings, self-contained DLLs, output folders.
include_guard()

set(CMAKE_RUNTIME_OUTPUT_DIRECTORY ${CMAKE_BINARY_DIR}/bin)
set(CMAKE_LIBRARY_OUTPUT_DIRECTORY ${CMAKE_BINARY_DIR}/lib)
set(CMAKE_ARCHIVE_OUTPUT_DIRECTORY ${CMAKE_BINARY_DIR}/lib)
set(CMAKE_EXPORT_COMPILE_COMMANDS ON)

find_program(VANT_CCACHE ccache)
if(VANT_CCACHE AND NOT CMAKE_CXX_COMPILER_LAUNCHER)
  set(CMAKE_CXX_COMPILER_LAUNCHER ${VANT_CCACHE})
endif()

add_library(vant_build_flags INTERFACE)
target_compile_features(vant_build_flags INTERFACE cxx_std_20)
target_compile_options(vant_build_flags INTERFACE
  -Wall -Wextra -Wpedantic -Wshadow -Wconversion -Werror
  -fno-strict-aliasing # window user data and COM interfaces are reached through casts of pointers
)
target_compile_definitions(vant_build_flags INTERFACE
  _WIN32_WINNT=0x0A00 NTDDI_VERSION=0x0A000000 NOMINMAX
)
# Everything of the compiler's own goes into the module, so that no run-time DLL must stand beside it.
target_link_options(vant_build_flags INTERFACE -static -static-libgcc -static-libstdc++)

function(vant_configure_target target)
  target_link_libraries(${target} PRIVATE $<BUILD_INTERFACE:vant_build_flags>)
  set_target_properties(${target} PROPERTIES CXX_EXTENSIONS OFF)
endfunction()

function(vant_configure_library target)
  vant_configure_target(${target})
  set_target_properties(${target} PROPERTIES
    PREFIX "" # VantCore.dll, as its users name it; the import library keeps MinGW's form libVantCore.dll.a
    VERIFY_INTERFACE_HEADER_SETS ON
  )
  vant_separate_symbols(${target})
  # Only what carries the export macro leaves the module.
  target_link_options(${target} PRIVATE -Wl,--exclude-all-symbols)
endfunction()

# vant_separate_symbols(TARGET [STATIC-LIBRARY...])
# In an optimised build the lines and functions that addresses belong to go into TARGET's file with ".debug" behind
# its name. The file itself holds no symbols, only the name of that one, by which gdb and addr2line find it.
function(vant_separate_symbols target)
  if(NOT VANT_SEPARATE_SYMBOLS OR NOT CMAKE_BUILD_TYPE MATCHES "^(Release|RelWithDebInfo|MinSizeRel)$")
    return()
  endif()
  # Lines and functions are what a stack needs, and cost no time; variables too (-g) would cost a tenth.
  # Files are named from the tree's root, wherever that was when they were compiled.
  file(RELATIVE_PATH up ${CMAKE_BINARY_DIR} ${PROJECT_SOURCE_DIR})
  foreach(built IN ITEMS ${target} ${ARGN})
    target_compile_options(${built} PRIVATE $<$<COMPILE_LANGUAGE:CXX>:-g1
      -fdebug-prefix-map=${PROJECT_SOURCE_DIR}/= -fdebug-prefix-map=${up}= -fdebug-prefix-map=${CMAKE_BINARY_DIR}=.>)
  endforeach()
  set(symbols $<TARGET_FILE:${target}>.debug)
  add_custom_command(TARGET ${target} POST_BUILD
    COMMAND ${CMAKE_OBJCOPY} --only-keep-debug $<TARGET_FILE:${target}> ${symbols}
    COMMAND ${CMAKE_OBJCOPY} --strip-all --add-gnu-debuglink=${symbols} $<TARGET_FILE:${target}>
    VERBATIM)
  install(FILES ${symbols} DESTINATION ${CMAKE_INSTALL_BINDIR} COMPONENT symbols EXCLUDE_FROM_ALL)
endfunction()

# vant_library_sources([SOURCES ...] [HEADERS ...])
# Adds a folder's files to VantCore; HEADERS become part of the installed interface.
function(vant_library_sources)
  cmake_parse_arguments(arg "" "" "SOURCES;HEADERS" ${ARGN})
  if(arg_SOURCES)
    list(TRANSFORM arg_SOURCES PREPEND "${CMAKE_CURRENT_SOURCE_DIR}/")
    target_sources(VantCore PRIVATE ${arg_SOURCES})
  endif()
  if(arg_HEADERS)
    list(TRANSFORM arg_HEADERS PREPEND "${CMAKE_CURRENT_SOURCE_DIR}/")
    target_sources(VantCore PUBLIC FILE_SET HEADERS FILES ${arg_HEADERS})
  endif()
endfunction()
