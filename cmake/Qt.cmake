# The version of Qt. Targets are named Qt${QUILLMERE_QT}::<module>.
set(QUILLMERE_QT 5 CACHE STRING "Major version of Qt, 5 or 6")
set_property(CACHE QUILLMERE_QT PROPERTY STRINGS 5 6)
set(oldest_qt5 5.3)
set(oldest_qt6 6.2)
if(NOT DEFINED oldest_qt${QUILLMERE_QT})
  message(FATAL_ERROR "QUILLMERE_QT is ${QUILLMERE_QT}: set it to 5 or 6")
endif()

find_package(Qt${QUILLMERE_QT} ${oldest_qt${QUILLMERE_QT}} REQUIRED COMPONENTS Core Gui Widgets LinguistTools)
