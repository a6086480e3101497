# Builds every example with the library in the folder above:
#   cmake -S . -B build
#   cmake --build build
# Each folder is a project of its own, too, to be copied and changed.
cmake_minimum_required(VERSION 3.25)
project(VantCoreExamples LANGUAGES CXX)

find_package(VantCore CONFIG REQUIRED HINTS ${CMAKE_CURRENT_SOURCE_DIR}/..)

file(GLOB examples RELATIVE ${CMAKE_CURRENT_SOURCE_DIR} */CMakeLists.txt)
foreach(example IN LISTS examples)
  get_filename_component(folder ${example} DIRECTORY)
  add_subdirectory(${folder})
endforeach()
