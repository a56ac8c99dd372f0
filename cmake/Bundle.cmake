# Bundles: the launcher together with the client that it installs.

# quillmere_add_bundle(<target>
#   CLIENT_DIR <dir>              the client's tree, with Contents/MacOS/quillmere-ui in it
#   BUILD_NUMBER <n>              decides what is newer
#   [MAJOR_VERSION <text>] [MINOR_VERSION <text>] [ICON_OVERLAY_VERSION <text>]
#   [OUTPUT <dir>]                the bundle; <target>.app in the build directory by default
#   [COPY_PLUGINS]                copy Qt's plug-ins into the bundle, else link to them
#   [DEPENDS <target>...])        what makes CLIENT_DIR
#
# Adds a target, part of `all`, that assembles the bundle.
function(quillmere_add_bundle target)
  cmake_parse_arguments(PARSE_ARGV 1 arg "COPY_PLUGINS"
    "CLIENT_DIR;BUILD_NUMBER;MAJOR_VERSION;MINOR_VERSION;ICON_OVERLAY_VERSION;OUTPUT" "DEPENDS")
  if(NOT arg_CLIENT_DIR OR NOT arg_BUILD_NUMBER)
    message(FATAL_ERROR "quillmere_add_bundle: CLIENT_DIR and BUILD_NUMBER are needed")
  endif()
  if(NOT arg_OUTPUT)
    set(arg_OUTPUT ${CMAKE_BINARY_DIR}/${target}.app)
  endif()
  add_custom_target(${target} ALL
    COMMAND ${CMAKE_COMMAND}
      -DLAUNCHER=$<TARGET_FILE:launcher>
      -DMAKE_PACKAGE=$<TARGET_FILE:make-package>
      -DICON=${CMAKE_CURRENT_FUNCTION_LIST_DIR}/../bundle/ico_72_quillmere.png
      -DPLUGINS=${QUILLMERE_QT_PLUGINS}
      -DCOPY_PLUGINS=${arg_COPY_PLUGINS}
      -DCLIENT_DIR=${arg_CLIENT_DIR}
      -DBUILD_NUMBER=${arg_BUILD_NUMBER}
      -DMAJOR_VERSION=${arg_MAJOR_VERSION}
      -DMINOR_VERSION=${arg_MINOR_VERSION}
      -DICON_OVERLAY_VERSION=${arg_ICON_OVERLAY_VERSION}
      -DOUTPUT=${arg_OUTPUT}
      -P ${CMAKE_CURRENT_FUNCTION_LIST_DIR}/make-bundle.cmake
    DEPENDS launcher make-package ${arg_DEPENDS}
    COMMENT "Bundle ${arg_OUTPUT}" VERBATIM)
endfunction()

# quillmere_qt_directory(<result> <QT_INSTALL_...>): a directory of the Qt that is built with. It is kept in the
# cache as <result>, for the scripts too.
function(quillmere_qt_directory result property)
  get_target_property(qmake Qt5::qmake IMPORTED_LOCATION)
  execute_process(COMMAND ${qmake} -query ${property} OUTPUT_VARIABLE directory
                  OUTPUT_STRIP_TRAILING_WHITESPACE COMMAND_ERROR_IS_FATAL ANY)
  set(${result} ${directory} CACHE INTERNAL "Qt's ${property}")
endfunction()
