# Bundles: the launcher with the client that it installs.

# quillmere_add_bundle(<target>
#   CLIENT_DIR <dir>              the client's tree, with Contents/MacOS/quillmere-ui in it
#   BUILD_NUMBER <n>              the higher one is newer
#   [MAJOR_VERSION <text>] [MINOR_VERSION <text>] [ICON_OVERLAY_VERSION <text>]
#   [OUTPUT <dir>]                the bundle; default: <target>.app in the build directory
#   [COPY_PLUGINS]                copies the required plug-ins instead of linking to them
#   [DEPENDS <target or file>...])  the targets or files that create CLIENT_DIR
#
# Adds a target to `all` that runs `qpk bundle` if the launcher, the client's directory or a file in it has changed. Files
# in DEPENDS may change in the same build. Changes by a custom target count in the next build. Ninja makes the bundle in
# every build if the name of a file has one of #$;|\"'*. CLIENT_DIR and OUTPUT are absolute.
function(quillmere_add_bundle target)
  cmake_parse_arguments(PARSE_ARGV 1 arg "COPY_PLUGINS"
    "CLIENT_DIR;BUILD_NUMBER;MAJOR_VERSION;MINOR_VERSION;ICON_OVERLAY_VERSION;OUTPUT" "DEPENDS")
  if(NOT DEFINED arg_CLIENT_DIR OR NOT DEFINED arg_BUILD_NUMBER)
    message(FATAL_ERROR "quillmere_add_bundle: CLIENT_DIR and BUILD_NUMBER are required")
  endif()
  if(NOT arg_OUTPUT)
    set(arg_OUTPUT ${CMAKE_BINARY_DIR}/${target}.app)
  endif()
  set(icon ${CMAKE_CURRENT_FUNCTION_LIST_DIR}/../bundle/ico_72_quillmere.png)
  # qpk writes the dependencies to the depfile, and the version file last.
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

# quillmere_qt_directory(<result> <QT_INSTALL_...>): a directory of Qt. The cache keeps it as
# <result>, also for the scripts.
function(quillmere_qt_directory result property)
  get_target_property(qmake Qt${QUILLMERE_QT}::qmake IMPORTED_LOCATION)
  execute_process(COMMAND ${qmake} -query ${property} OUTPUT_VARIABLE directory
                  OUTPUT_STRIP_TRAILING_WHITESPACE COMMAND_ERROR_IS_FATAL ANY)
  set(${result} ${directory} CACHE INTERNAL "Qt's ${property}")
endfunction()
