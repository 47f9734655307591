# Toolchain file for another machine than the one that builds: QVPI_MACHINE is one of cmake/cpus.cmake. clang compiles for
# all of them; the libraries are those of Debian's cross compilers.
list(APPEND CMAKE_TRY_COMPILE_PLATFORM_VARIABLES QVPI_MACHINE)

function(qvpi_cpu)
endfunction()
function(qvpi_union)
endfunction()

macro(qvpi_machine name processor debian target protection emulator)
  if("${name}" STREQUAL "${QVPI_MACHINE}")
    set(CMAKE_SYSTEM_NAME Linux)
    set(CMAKE_SYSTEM_PROCESSOR ${processor})
    foreach(language C CXX ASM)
      set(CMAKE_${language}_COMPILER_TARGET ${target})
    endforeach()
    # Its headers instead of those of the machine that builds. The linker finds its libraries without being told.
    set(CMAKE_SYSROOT_COMPILE /usr/${target})
    separate_arguments(CMAKE_CROSSCOMPILING_EMULATOR UNIX_COMMAND "${emulator}")
  endif()
endmacro()

set(CMAKE_C_COMPILER clang)
set(CMAKE_CXX_COMPILER clang++)
include(${CMAKE_CURRENT_LIST_DIR}/cpus.cmake)
