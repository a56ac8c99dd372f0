# Writes the files of a directory with their times and sizes to a list, which stays untouched when nothing has changed:
# cmake -DDIRECTORY=... -DLIST=... -P list-files.cmake
file(GLOB_RECURSE files LIST_DIRECTORIES true ${DIRECTORY}/*)
set(lines "")
foreach(file IN LISTS files)
  file(TIMESTAMP ${file} time "%s.%f")
  string(APPEND lines "${time} ${file}\n")
endforeach()
file(CONFIGURE OUTPUT ${LIST} CONTENT "${lines}" @ONLY)
