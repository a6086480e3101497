# Records videos of every kind, decodes them with ffmpeg, and compares the frames byte for byte.
if(NOT FFMPEG)
  message("ffmpeg is missing: scripts/setup check")
  return()
endif()
file(REMOVE_RECURSE ${WORK_DIR})
file(MAKE_DIRECTORY ${WORK_DIR})

function(step)
  execute_process(COMMAND ${ARGN} WORKING_DIRECTORY ${WORK_DIR}
    RESULT_VARIABLE result OUTPUT_VARIABLE output ERROR_VARIABLE output)
  if(NOT result EQUAL 0)
    message(FATAL_ERROR "${ARGN}\nfailed (${result}):\n${output}")
  endif()
endfunction()

# compare(NAME FRAME_BYTES MOST_MISSING VIDEO...): the videos' frames, one after the other, are what was recorded,
# of which so many may be missing at the end.
function(compare name frame_bytes most_missing)
  set(decoded)
  foreach(video IN LISTS ARGN)
    step(${FFMPEG} -v error -y -i ${video}.avi -vsync passthrough -f rawvideo -pix_fmt bgr24 ${video}.out)
    list(APPEND decoded ${video}.out)
  endforeach()
  step(${EMULATOR} ${RECORD} compare ${name}.raw ${frame_bytes} ${most_missing} ${decoded})
endfunction()

foreach(kind
    "101 51 24 bottom-up" "101 51 24 top-down" "33 64 32 bottom-up" "33 64 32 top-down" "29 17 8 bottom-up"
    "30 17 8 top-down")
  string(REPLACE " " "_" name "${kind}")
  string(REPLACE " " ";" arguments "${kind}")
  list(GET arguments 0 width)
  list(GET arguments 1 height)
  math(EXPR frame_bytes "${width} * ${height} * 3")
  step(${EMULATOR} ${RECORD} record ${name} ${arguments} 60)
  compare(${name} ${frame_bytes} 0 ${name})
endforeach()

# A recording that goes on in further files loses nothing on the way.
math(EXPR frame_bytes "101 * 51 * 3")
step(${EMULATOR} ${RECORD} record long 101 51 24 bottom-up 60 400000)
compare(long ${frame_bytes} 0 long long-2 long-3)

# What a process that was killed leaves plays, but for half a second of video; the frame that is being added
# when the end comes may be missing too.
math(EXPR most_missing "25 + 1")
foreach(run RANGE 1 3)
  step(${EMULATOR} ${RECORD} kill killed_${run} 101 51 24 bottom-up)
  compare(killed_${run} ${frame_bytes} ${most_missing} killed_${run})
endforeach()
