# Lets the links of the installed pages below FOLDER hold there: the headers stand in include/VantCore, and of what only
# the tree has (its folders' own pages, the tests, the demonstration's sources) the text stays without the link.
set(library afx|core|platform|values|settings|controls|windows|display|colour|geo|time|media|resources)
file(GLOB_RECURSE pages "${FOLDER}/*.md")
foreach(page IN LISTS pages)
  file(READ "${page}" text)
  string(REGEX REPLACE "\\]\\(((\\.\\./)+)((${library})/[^()]*\\.h)\\)" "](\\1include/VantCore/\\3)" text "${text}")
  string(REGEX REPLACE "\\[([^][]*)\\]\\((\\.\\./)+(${library}|tests|demo)[^()]*\\)" "\\1" text "${text}")
  file(WRITE "${page}" "${text}")
endforeach()
