# CPack runs it after packing. Packs each package again, so that the bytes depend only on the content.
if(CPACK_GENERATOR STREQUAL "DEB")
  foreach(package IN LISTS CPACK_PACKAGE_FILES)
    execute_process(COMMAND ${CMAKE_CURRENT_LIST_DIR}/repack-deb ${package} COMMAND_ERROR_IS_FATAL ANY)
  endforeach()
elseif(CPACK_GENERATOR STREQUAL "TGZ")
  # CPack uses the order of the file system and the builder's name.
  get_filename_component(tree ${CPACK_TEMPORARY_DIRECTORY} NAME)
  get_filename_component(directory ${CPACK_TEMPORARY_DIRECTORY} DIRECTORY)
  execute_process(
    COMMAND tar --create --directory=${directory} --format=gnu --sort=name --owner=root:0 --group=root:0
      --mtime=@$ENV{SOURCE_DATE_EPOCH} ${tree}
    COMMAND gzip -9n
    OUTPUT_FILE ${CPACK_PACKAGE_FILES} COMMAND_ERROR_IS_FATAL ANY)
endif()
