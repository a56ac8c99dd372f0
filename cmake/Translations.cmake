# The resource collection `texts`, with a .qm for each .ts file.

# quillmere_add_texts(<library> <directory of the .ts files>)
#
# Makes a library of the collection. Programs call qInitResources_texts(). Four languages are stored uncompressed, because
# compression saves little; the others are compressed by zlib.
function(quillmere_add_texts library directory)
  set(plain chs cht jpn krn)
  file(GLOB sources CONFIGURE_DEPENDS ${directory}/*.ts)
  set(compiled)
  set(entries "")
  foreach(source IN LISTS sources)
    get_filename_component(code ${source} NAME_WE)
    set(qm ${CMAKE_CURRENT_BINARY_DIR}/texts/${code}.qm)
    add_custom_command(
      OUTPUT ${qm}
      COMMAND ${CMAKE_COMMAND} -E make_directory ${CMAKE_CURRENT_BINARY_DIR}/texts
      COMMAND Qt${QUILLMERE_QT}::lrelease -silent -nounfinished ${source} -qm ${qm}
      DEPENDS ${source} VERBATIM)
    list(APPEND compiled ${qm})
    if(code IN_LIST plain)
      string(APPEND entries "    <file compression-algorithm=\"none\">${code}.qm</file>\n")
    else()
      string(APPEND entries "    <file threshold=\"0\" compress=\"9\" compression-algorithm=\"zlib\">${code}.qm</file>\n")
    endif()
  endforeach()
  set(qrc ${CMAKE_CURRENT_BINARY_DIR}/texts/texts.qrc)
  file(CONFIGURE OUTPUT ${qrc} CONTENT "<RCC>\n  <qresource prefix=\"/\">\n@entries@  </qresource>\n</RCC>\n" @ONLY)
  set(collection ${CMAKE_CURRENT_BINARY_DIR}/texts/qrc_texts.cpp)
  # Version 1 of the format has no time stamps, and zlib as its default.
  add_custom_command(
    OUTPUT ${collection}
    COMMAND Qt${QUILLMERE_QT}::rcc --format-version 1 --name texts --output ${collection} ${qrc}
    DEPENDS ${compiled} ${qrc} VERBATIM)
  add_library(${library} STATIC ${collection})
  target_link_libraries(${library} PRIVATE quillmere-build)
endfunction()
