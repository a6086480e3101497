# Installs the build tree into an empty folder, builds an example against that folder alone, and runs it.
function(step what)
  execute_process(COMMAND ${ARGN} RESULT_VARIABLE result OUTPUT_VARIABLE output ERROR_VARIABLE output)
  if(NOT result EQUAL 0)
    message(FATAL_ERROR "${what} failed (${result}):\n${output}")
  endif()
  set(output "${output}" PARENT_SCOPE)
endfunction()

set(prefix ${WORK_DIR}/prefix)
set(build ${WORK_DIR}/build)
file(REMOVE_RECURSE ${prefix} ${build})

step("Installing" ${CMAKE_COMMAND} --install ${BUILD_DIR} --prefix ${prefix})
foreach(expected
    bin/VantCore.dll bin/VantAfx.dll lib/libVantCore.dll.a lib/libVantAfx.dll.a
    include/VantCore/VantCore.h include/VantCore/core/CLstMgd.h include/VantCore/afx/afxwin.h
    lib/cmake/VantCore/VantCoreConfig.cmake share/VantCore/clt/depths.clt)
  if(NOT EXISTS ${prefix}/${expected})
    message(FATAL_ERROR "The installed tree lacks ${expected}")
  endif()
endforeach()

set(toolchain)
if(TOOLCHAIN)
  set(toolchain -D CMAKE_TOOLCHAIN_FILE=${TOOLCHAIN})
endif()
step("Configuring the example" ${CMAKE_COMMAND} -S ${SOURCE_DIR} -B ${build} -G ${GENERATOR}
  -D CMAKE_BUILD_TYPE=${CONFIG} -D VantCore_DIR=${prefix}/lib/cmake/VantCore ${toolchain})
step("Building the example" ${CMAKE_COMMAND} --build ${build})
step("Running the example" ${CMAKE_COMMAND} -E chdir ${build} ${EMULATOR} ${build}/hello.exe)
if(NOT output MATCHES "2\\.07-beta8")
  message(FATAL_ERROR "The example did not report the library's version:\n${output}")
endif()
