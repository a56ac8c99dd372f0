# Bundles: the launcher together with the client that it installs.

# Where a build leaves what runs: the build directory, or one for each configuration in it.
get_property(quillmere_multi_config GLOBAL PROPERTY GENERATOR_IS_MULTI_CONFIG)
set(output_directory ${CMAKE_BINARY_DIR})
if(quillmere_multi_config)
  string(APPEND output_directory "/$<CONFIG>")
endif()
set(QUILLMERE_OUTPUT_DIR ${output_directory} CACHE INTERNAL "Where a build leaves what runs")

# quillmere_add_bundle(<target>
#   CLIENT_DIR <dir>              the client's tree, with Contents/MacOS/quillmere-ui in it
#   BUILD_NUMBER <n>              decides what is newer
#   [MAJOR_VERSION <text>] [MINOR_VERSION <text>] [ICON_OVERLAY_VERSION <text>]
#   [OUTPUT <dir>]                the bundle; <target>.app in the build directory by default
#   [COPY_PLUGINS]                copy the plug-ins that are needed into the bundle, else link to them
#   [DEPENDS <target or file>...])  what makes CLIENT_DIR
#
# Adds a target, part of `all`, that assembles the bundle by `qpk bundle`: anew when the launcher, the client's
# directory or a file in it has changed, and not otherwise; but a file's name with one of #$;|\"'* in it has Ninja make
# it at each build, and so does a CLIENT_DIR that is named like a target and lies in the build directory. CLIENT_DIR and
# OUTPUT are absolute and may have $<CONFIG> in them.
function(quillmere_add_bundle target)
  cmake_parse_arguments(PARSE_ARGV 1 arg "COPY_PLUGINS"
    "CLIENT_DIR;BUILD_NUMBER;MAJOR_VERSION;MINOR_VERSION;ICON_OVERLAY_VERSION;OUTPUT" "DEPENDS")
  if(NOT DEFINED arg_CLIENT_DIR OR NOT DEFINED arg_BUILD_NUMBER)
    message(FATAL_ERROR "quillmere_add_bundle: CLIENT_DIR and BUILD_NUMBER are needed")
  endif()
  if(NOT arg_OUTPUT)
    set(arg_OUTPUT ${QUILLMERE_OUTPUT_DIR}/${target}.app)
  endif()
  set(icon ${CMAKE_CURRENT_FUNCTION_LIST_DIR}/../bundle/ico_72_quillmere.png)
  # qpk says which files the bundle hangs on, and writes the version file as the last of all.
  set(version_file ${arg_OUTPUT}/Contents/Resources/INFO)
  set(depfile ${CMAKE_CURRENT_BINARY_DIR}/${target}-$<CONFIG>.d)
  quillmere_list_client(client_list ${target} ${arg_CLIENT_DIR} ${arg_DEPENDS})
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
    DEPENDS launcher qpk ${icon} ${arg_DEPENDS} ${client_list}
    DEPFILE ${depfile}
    COMMENT "Bundle ${target}" COMMAND_EXPAND_LISTS VERBATIM)
  add_custom_target(${target} ALL DEPENDS ${version_file})
endfunction()

# quillmere_list_client(<result> <target> <client directory> <dependency>...): for internal use. Ninja looks at the
# client's files once, at its start, and a custom target among the dependencies may change them later. Sets <result>
# to a list of these files that is made after such targets, and to nothing where there is none.
function(quillmere_list_client result target client)
  set(custom_targets)
  foreach(dependency IN LISTS ARGN)
    if(TARGET ${dependency})
      get_target_property(type ${dependency} TYPE)
      if(type STREQUAL UTILITY)
        list(APPEND custom_targets ${dependency})
      endif()
    endif()
  endforeach()
  set(${result} "" PARENT_SCOPE)
  if(custom_targets AND CMAKE_GENERATOR MATCHES Ninja)
    set(list ${CMAKE_CURRENT_BINARY_DIR}/${target}-$<CONFIG>.list)
    set(always ${CMAKE_CURRENT_BINARY_DIR}/${target}-$<CONFIG>.always)
    add_custom_command(OUTPUT ${always} ${list}
      COMMAND ${CMAKE_COMMAND} -DDIRECTORY=${client} -DLIST=${list}
        -P ${CMAKE_CURRENT_FUNCTION_LIST_DIR}/list-files.cmake
      DEPENDS ${custom_targets} COMMENT "Files of the client of ${target}" VERBATIM)
    set(${result} ${list} PARENT_SCOPE)
  endif()
endfunction()

# quillmere_qt_directory(<result> <QT_INSTALL_...>): a directory of the Qt that is built with. It is kept in the
# cache as <result>, for the scripts too.
function(quillmere_qt_directory result property)
  get_target_property(qmake Qt5::qmake IMPORTED_LOCATION)
  execute_process(COMMAND ${qmake} -query ${property} OUTPUT_VARIABLE directory
                  OUTPUT_STRIP_TRAILING_WHITESPACE COMMAND_ERROR_IS_FATAL ANY)
  set(${result} ${directory} CACHE INTERNAL "Qt's ${property}")
endfunction()
