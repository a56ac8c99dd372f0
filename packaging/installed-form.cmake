# Run by CPack before it packs.

# Directories that only lead to what is installed have the umask of the builder.
execute_process(COMMAND find ${CPACK_TEMPORARY_DIRECTORY} -type d -exec chmod 755 {} + COMMAND_ERROR_IS_FATAL ANY)

# The form that Debian asks for.
if(CPACK_GENERATOR STREQUAL "DEB")
  # Links are relative within /usr. In a tar, which may be unpacked anywhere, they stay absolute.
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
  # The names of the compiler and of the linker; the rest of the symbols went with the installation.
  file(GLOB programs ${CPACK_TEMPORARY_DIRECTORY}/quillmere/usr/lib/quillmere/Quillmere.app/Contents/MacOS/*
       ${CPACK_TEMPORARY_DIRECTORY}/qpk/usr/bin/* ${CPACK_TEMPORARY_DIRECTORY}/qpk/usr/lib/qpk/launcher)
  execute_process(COMMAND ${CPACK_STRIP} --remove-section=.comment --remove-section=.note ${programs}
                  COMMAND_ERROR_IS_FATAL ANY)
endif()
