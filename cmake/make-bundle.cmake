# Assembles a bundle; the parameters are those of quillmere_add_bundle and the paths that it fills in.
# Runs by itself too: cmake -DLAUNCHER=... -DOUTPUT=... -P make-bundle.cmake
foreach(parameter LAUNCHER MAKE_PACKAGE ICON PLUGINS CLIENT_DIR BUILD_NUMBER OUTPUT)
  if(NOT DEFINED ${parameter} OR "${${parameter}}" STREQUAL "")
    message(FATAL_ERROR "make-bundle: ${parameter} is missing")
  endif()
endforeach()

set(contents ${OUTPUT}/Contents)
file(MAKE_DIRECTORY ${contents}/MacOS ${contents}/Frameworks ${contents}/Resources/package
     ${contents}/Resources/images)

file(COPY_FILE ${LAUNCHER} ${contents}/MacOS/launcher ONLY_IF_DIFFERENT)
file(COPY_FILE ${ICON} ${contents}/Resources/images/ico_72_quillmere.png ONLY_IF_DIFFERENT)

file(REMOVE_RECURSE ${contents}/Frameworks/plugins)
if(COPY_PLUGINS)
  file(COPY ${PLUGINS} DESTINATION ${contents}/Frameworks)
else()
  file(CREATE_LINK ${PLUGINS} ${contents}/Frameworks/plugins SYMBOLIC)
endif()

# One text for both places: an unpacked version below the bundle's would mean an upgrade at every start.
file(WRITE ${contents}/Resources/INFO "[Version]
major_version=${MAJOR_VERSION}
minor_version=${MINOR_VERSION}
build_version=${BUILD_NUMBER}
icon_overlay_version=${ICON_OVERLAY_VERSION}
")
execute_process(
  COMMAND ${MAKE_PACKAGE} ${CLIENT_DIR} ${contents}/Resources/INFO
          ${contents}/Resources/package/quillmere.qpk
  COMMAND_ERROR_IS_FATAL ANY)
