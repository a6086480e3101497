# Runs a program of the guide in an empty folder; what takes a picture must have taken one of something.
get_filename_component(name ${SOURCE} NAME_WE)
file(REMOVE_RECURSE ${WORK_DIR})
file(MAKE_DIRECTORY ${WORK_DIR})
execute_process(COMMAND ${EMULATOR} ${PROGRAM} --picture ${name}.png
  WORKING_DIRECTORY ${WORK_DIR} RESULT_VARIABLE result OUTPUT_VARIABLE output ERROR_VARIABLE output)
if(NOT result EQUAL 0)
  message(FATAL_ERROR "${name} ended with ${result}:\n${output}")
endif()

file(STRINGS ${SOURCE} shows_window REGEX "CreateWnd|--picture")
if(shows_window)
  set(smallest 3000) # bytes; an empty window makes less
  set(size 0)
  if(EXISTS ${WORK_DIR}/${name}.png)
    file(SIZE ${WORK_DIR}/${name}.png size)
  endif()
  if(size LESS smallest)
    message(FATAL_ERROR "${name} took a picture of ${size} bytes, which shows nothing:\n${output}")
  endif()
endif()
