# Unpacks the archive in an empty place, builds its examples against that place alone, runs them and the demonstration,
# and looks at their pictures. One is built from its own folder too, as its readers do.
cmake_minimum_required(VERSION 3.25)

function(step what)
  execute_process(COMMAND ${ARGN} RESULT_VARIABLE result OUTPUT_VARIABLE output ERROR_VARIABLE output)
  if(NOT result EQUAL 0)
    message(FATAL_ERROR "${what} failed (${result}):\n${output}")
  endif()
  set(output "${output}" PARENT_SCOPE)
endfunction()

file(REMOVE_RECURSE ${WORK_DIR})
file(MAKE_DIRECTORY "${WORK_DIR}/unpacked here") # users have blanks in their paths

step("Packing" ${CMAKE_CPACK_COMMAND} --config ${BUILD_DIR}/CPackConfig.cmake -G ZIP -B ${WORK_DIR}/zip)
file(GLOB zip ${WORK_DIR}/zip/VantCore-*-win64.zip)
file(ARCHIVE_EXTRACT INPUT ${zip} DESTINATION "${WORK_DIR}/unpacked here")
file(GLOB root "${WORK_DIR}/unpacked here/VantCore-*-win64")
foreach(expected
    bin/VantCore.dll bin/VantAfx.dll lib/libVantCore.dll.a lib/libVantAfx.dll.a
    include/VantCore/VantCore.h include/VantCore/core/CLstMgd.h include/VantCore/afx/afxwin.h
    lib/cmake/VantCore/VantCoreConfig.cmake share/VantCore/clt/depths.clt
    bin/VantDemo.exe bin/data/survey.nmea README.md CHANGELOG.md docs/windows.md docs/pictures/demo.png)
  if(NOT EXISTS "${root}/${expected}")
    message(FATAL_ERROR "The archive lacks ${expected}")
  endif()
endforeach()
step("Following the links" ${PYTHON} ${CMAKE_CURRENT_LIST_DIR}/../../scripts/links --package "${root}")
file(GLOB_RECURSE strays "${root}/*.debug" "${root}/*gtest*" "${root}/*gmock*")
if(strays)
  message(FATAL_ERROR "The archive holds what users do not need: ${strays}")
endif()

set(options -G ${GENERATOR} -D CMAKE_BUILD_TYPE=${CONFIG})
if(TOOLCHAIN)
  list(APPEND options -D CMAKE_TOOLCHAIN_FILE=${TOOLCHAIN})
endif()
if(LAUNCHER)
  list(APPEND options -D CMAKE_CXX_COMPILER_LAUNCHER=${LAUNCHER})
endif()

# All of them, which find the library in the folder above.
set(build ${WORK_DIR}/examples)
step("Configuring the examples" ${CMAKE_COMMAND} -S "${root}/examples" -B ${build} ${options})
file(STRINGS ${build}/CMakeCache.txt used REGEX "^VantCore_DIR:")
if(NOT used STREQUAL "VantCore_DIR:PATH=${root}/lib/cmake/VantCore")
  message(FATAL_ERROR "The examples are built with another library: ${used}")
endif()
step("Building the examples" ${CMAKE_COMMAND} --build ${build})

# A reader's way, in a copy of the folder.
file(COPY "${root}/examples/hello" DESTINATION ${WORK_DIR})
step("Configuring hello" ${CMAKE_COMMAND} -S ${WORK_DIR}/hello -B ${WORK_DIR}/hello/build ${options}
  "-DCMAKE_PREFIX_PATH=${root}")
step("Building hello" ${CMAKE_COMMAND} --build ${WORK_DIR}/hello/build)

step("Configuring the client" ${CMAKE_COMMAND} -S ${CMAKE_CURRENT_LIST_DIR}/client -B ${WORK_DIR}/client ${options}
  "-DCMAKE_PREFIX_PATH=${root}")
step("Building the client" ${CMAKE_COMMAND} --build ${WORK_DIR}/client)

file(GLOB examples RELATIVE "${root}/examples" "${root}/examples/*/CMakeLists.txt")
list(TRANSFORM examples REPLACE "/CMakeLists.txt$" "")
list(LENGTH examples count)
if(count LESS 4)
  message(FATAL_ERROR "The archive has hardly any examples: ${examples}")
endif()
# Each is a project of its own, which finds the library two folders up.
foreach(example IN LISTS examples)
  step("Configuring ${example} alone" ${CMAKE_COMMAND} -S "${root}/examples/${example}" -B ${WORK_DIR}/alone/${example}
    ${options})
endforeach()

# try(NAME PROGRAM ARG...): runs a program, in a folder of its own, that takes a picture.
function(try name)
  set(run ${WORK_DIR}/run/${name})
  file(MAKE_DIRECTORY ${run})
  step("Running ${name}" ${CMAKE_COMMAND} -E chdir ${run} ${EMULATOR} ${WORK_DIR}/client/client.exe ${ARGN})
  message("${name}: ${output}")
endfunction()

foreach(example IN LISTS examples)
  try(${example} picture.png ${build}/${example}/${example}.exe --picture picture.png)
endforeach()
# The demonstration finds its data and the colour tables where they were unpacked.
try(VantDemo out/demo.png "${root}/bin/VantDemo.exe" --seconds 2 --out out)
