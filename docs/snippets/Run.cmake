# Runs a program of the guide in an empty folder; one that shows a window must have had its picture taken.
get_filename_component(name ${SOURCE} NAME_WE)
file(REMOVE_RECURSE ${WORK_DIR})
file(MAKE_DIRECTORY ${WORK_DIR})
macro(run_program)
  execute_process(COMMAND ${EMULATOR} ${PROGRAM} --picture ${name}.png
    WORKING_DIRECTORY ${WORK_DIR} RESULT_VARIABLE result OUTPUT_VARIABLE output ERROR_VARIABLE output)
  if(NOT result EQUAL 0)
    message(FATAL_ERROR "${name} ended with ${result}:\n${output}")
  endif()
endmacro()
run_program()

file(STRINGS ${SOURCE} shows_window REGEX "m_pMainWnd")
if(shows_window AND NOT EXISTS ${WORK_DIR}/${name}.png)
  message(FATAL_ERROR "No picture was taken of ${name}:\n${output}")
endif()

# What else the page promises.
include(${CMAKE_CURRENT_LIST_DIR}/${name}.cmake OPTIONAL)
