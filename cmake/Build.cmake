# Warnings, hardening, sanitizers and coverage, for all targets that link quillmere-build.
option(QUILLMERE_WERROR "Treat warnings as errors" OFF)
option(QUILLMERE_COVERAGE "Instrument for gcov" OFF)
set(QUILLMERE_SANITIZE "" CACHE STRING "Sanitizers, comma separated: address,undefined or thread")

add_library(quillmere-build INTERFACE)
target_include_directories(quillmere-build INTERFACE ${PROJECT_SOURCE_DIR} ${PROJECT_SOURCE_DIR}/include)
target_compile_options(quillmere-build INTERFACE -Wall -Wextra -Wpedantic -Wshadow
                       $<$<BOOL:${QUILLMERE_WERROR}>:-Werror>)
# A 32-bit system has files beyond 2 GiB and times beyond 2038 too.
include(CheckTypeSize)
set(CMAKE_EXTRA_INCLUDE_FILES time.h)
check_type_size(time_t QUILLMERE_SYSTEM_TIME LANGUAGE CXX)
set(CMAKE_EXTRA_INCLUDE_FILES)
target_compile_definitions(quillmere-build INTERFACE _FILE_OFFSET_BITS=64)
if(QUILLMERE_SYSTEM_TIME LESS 8)
  target_compile_definitions(quillmere-build INTERFACE _TIME_BITS=64)
endif()
include(Hardening)
quillmere_harden(quillmere-build)
# Removes paths of this machine from the output. The last match counts.
target_compile_options(quillmere-build INTERFACE
  -ffile-prefix-map=${PROJECT_SOURCE_DIR}=. -ffile-prefix-map=${PROJECT_BINARY_DIR}=./build)

if(QUILLMERE_SANITIZE)
  target_compile_options(quillmere-build INTERFACE -fsanitize=${QUILLMERE_SANITIZE}
                         -fno-omit-frame-pointer -fno-sanitize-recover=all)
  target_link_options(quillmere-build INTERFACE -fsanitize=${QUILLMERE_SANITIZE})
  target_sources(quillmere-build INTERFACE
    $<$<STREQUAL:$<TARGET_PROPERTY:TYPE>,EXECUTABLE>:${PROJECT_SOURCE_DIR}/cmake/sanitizer-options.cpp>)
endif()
if(QUILLMERE_COVERAGE)
  target_compile_options(quillmere-build INTERFACE --coverage)
  target_link_options(quillmere-build INTERFACE --coverage)
endif()
