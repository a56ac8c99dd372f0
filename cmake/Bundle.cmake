# Bundles: the launcher together with the client that it installs.

# quillmere_add_bundle(<target>
#   CLIENT_DIR <dir>              the client's tree, with Contents/MacOS/quillmere-ui in it
#   BUILD_NUMBER <n>              decides what is newer
#   [MAJOR_VERSION <text>] [MINOR_VERSION <text>] [ICON_OVERLAY_VERSION <text>]
#   [OUTPUT <dir>]                the bundle; <target>.app in the build directory by default
#   [COPY_PLUGINS]                copy the plug-ins that are needed into the bundle, else link to them
#   [DEPENDS <target or file>...])  what makes CLIENT_DIR
#
# Adds a target, part of `all`, that assembles the bundle by `qpk bundle` when the launcher, the client's directory or a
# file in it has changed. A file in DEPENDS that changes in the same build counts; what a custom target changes in the
# client counts at the next build. Ninja makes the bundle at every build if a file's name has one of #$;|\"'* in it.
# CLIENT_DIR and OUTPUT are absolute.
function(quillmere_add_bundle target)
  cmake_parse_arguments(PARSE_ARGV 1 arg "COPY_PLUGINS"
    "CLIENT_DIR;BUILD_NUMBER;MAJOR_VERSION;MINOR_VERSION;ICON_OVERLAY_VERSION;OUTPUT" "DEPENDS")
  if(NOT DEFINED arg_CLIENT_DIR OR NOT DEFINED arg_BUILD_NUMBER)
    message(FATAL_ERROR "quillmere_add_bundle: CLIENT_DIR and BUILD_NUMBER are needed")
  endif()
  if(NOT arg_OUTPUT)
    set(arg_OUTPUT ${CMAKE_BINARY_DIR}/${target}.app)
  endif()
  set(icon ${CMAKE_CURRENT_FUNCTION_LIST_DIR}/../bundle/ico_72_quillmere.png)
  # qpk writes the files that the bundle depends on to the depfile, and the version file last.
  set(version_file ${arg_OUTPUT}/Contents/Resources/INFO)
  set(depfile ${CMAKE_CURRENT_BINARY_DIR}/${target}.d)
  add_custom_command(OUTPUT ${version_file}
    COMMAND qpk bundle
      --launcher $<TARGET_FILE:launcher>
      --icon ${icon}
      --plugins ${QUILLMERE_QT_PLUGINS}
      $<$<BOOL:${arg_COPY_PLUGINS}>:--copy-plugins>
      --client ${arg_CLIENT_DIR}
      --build ${arg_BUILD_NUMBER}
      --major=${arg_MAJOR_VERSION}
      --minor=${arg_MINOR_VERSION}
      --icon-overlay=${arg_ICON_OVERLAY_VERSION}
      --depfile ${depfile}
      --output ${arg_OUTPUT}
    DEPENDS launcher qpk ${icon} ${arg_DEPENDS}
    DEPFILE ${depfile}
    COMMENT "Bundle ${target}" COMMAND_EXPAND_LISTS VERBATIM)
  add_custom_target(${target} ALL DEPENDS ${version_file})
endfunction()

# quillmere_qt_directory(<result> <QT_INSTALL_...>): a directory of the Qt that is built with. It is kept in the
# cache as <result>, for the scripts too.
function(quillmere_qt_directory result property)
  get_target_property(qmake Qt${QUILLMERE_QT}::qmake IMPORTED_LOCATION)
  execute_process(COMMAND ${qmake} -query ${property} OUTPUT_VARIABLE directory
                  OUTPUT_STRIP_TRAILING_WHITESPACE COMMAND_ERROR_IS_FATAL ANY)
  set(${result} ${directory} CACHE INTERNAL "Qt's ${property}")
endfunction()
