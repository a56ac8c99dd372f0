# CPack runs it before packing.

# CPack creates parent directories with the builder's umask.
execute_process(COMMAND find ${CPACK_TEMPORARY_DIRECTORY} -type d -exec chmod 755 {} + COMMAND_ERROR_IS_FATAL ANY)

# Debian's policy.
if(CPACK_GENERATOR STREQUAL "DEB")
  # Links within /usr are relative. In the tar, which may be unpacked anywhere, they stay absolute.
  file(GLOB links LIST_DIRECTORIES true
       ${CPACK_TEMPORARY_DIRECTORY}/quillmere/usr/lib/quillmere/Quillmere.app/Contents/Frameworks/plugins/*)
  foreach(link IN LISTS links)
    if(IS_SYMLINK ${link})
      file(READ_SYMLINK ${link} target)
      string(REPLACE ${CPACK_TEMPORARY_DIRECTORY}/quillmere "" directory ${link})
      get_filename_component(directory ${directory} DIRECTORY)
      file(RELATIVE_PATH relative ${directory} ${target})
      file(CREATE_LINK ${relative} ${link} SYMBOLIC)
    endif()
  endforeach()
  # Removes the names of compiler and linker. The installation has removed the symbols.
  file(GLOB programs ${CPACK_TEMPORARY_DIRECTORY}/quillmere/usr/lib/quillmere/Quillmere.app/Contents/MacOS/*
       ${CPACK_TEMPORARY_DIRECTORY}/qpk/usr/bin/* ${CPACK_TEMPORARY_DIRECTORY}/qpk/usr/lib/qpk/launcher)
  execute_process(COMMAND ${CPACK_STRIP} --remove-section=.comment --remove-section=.note ${programs}
                  COMMAND_ERROR_IS_FATAL ANY)
endif()
