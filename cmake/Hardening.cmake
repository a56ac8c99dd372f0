# The flags of `dpkg-buildflags` with hardening=+all that the compiler and the linker support.
include(CheckCXXCompilerFlag)
include(CheckLinkerFlag)
include(CheckPIESupported)

check_pie_supported(LANGUAGES CXX)
set(CMAKE_POSITION_INDEPENDENT_CODE ON)

# quillmere_harden(<interface library>): for all targets that link it. Sanitizers have their own
# checks, which these flags would hide.
function(quillmere_harden target)
  target_compile_options(${target} INTERFACE -Wformat -Werror=format-security -Wdate-time)
  if(QUILLMERE_SANITIZE)
    return()
  endif()
  # The last two are for one processor family each; some compilers only warn about them.
  set(CMAKE_REQUIRED_FLAGS -Werror)
  foreach(flag -fstack-protector-strong -fstack-clash-protection -fcf-protection -mbranch-protection=standard)
    string(MAKE_C_IDENTIFIER QUILLMERE_HAS${flag} known)
    check_cxx_compiler_flag(${flag} ${known})
    target_compile_options(${target} INTERFACE $<$<BOOL:${${known}}>:${flag}>)
  endforeach()
  # The C library checks optimized code only. Some compilers set their own level.
  target_compile_options(${target} INTERFACE
    $<$<CONFIG:Release,RelWithDebInfo,MinSizeRel>:-U_FORTIFY_SOURCE$<SEMICOLON>-D_FORTIFY_SOURCE=2>)
  foreach(flag relro now)
    check_linker_flag(CXX LINKER:-z,${flag} QUILLMERE_HAS_z_${flag})
    target_link_options(${target} INTERFACE $<$<BOOL:${QUILLMERE_HAS_z_${flag}}>:LINKER:-z,${flag}>)
  endforeach()
endfunction()
