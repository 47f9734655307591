# Toolchain file for another machine than the one that builds: QVPI_MACHINE is one of cmake/cpus.cmake. For CPUs clang
# compiles, with the libraries of Debian's cross compilers; for WebAssembly emscripten does.
list(APPEND CMAKE_TRY_COMPILE_PLATFORM_VARIABLES QVPI_MACHINE)

function(qvpi_cpu)
endfunction()
function(qvpi_union)
endfunction()

macro(qvpi_cross_clang target)
  set(CMAKE_SYSTEM_NAME Linux)
  set(CMAKE_C_COMPILER clang)
  set(CMAKE_CXX_COMPILER clang++)
  foreach(language C CXX ASM)
    set(CMAKE_${language}_COMPILER_TARGET ${target})
  endforeach()
  # Its headers instead of those of the machine that builds. The linker finds its libraries without being told.
  set(CMAKE_SYSROOT_COMPILE /usr/${target})
endmacro()

macro(qvpi_emscripten processor)
  execute_process(COMMAND em-config EMSCRIPTEN_ROOT OUTPUT_VARIABLE root OUTPUT_STRIP_TRAILING_WHITESPACE
    COMMAND_ERROR_IS_FATAL ANY)
  set(EMSCRIPTEN_SYSTEM_PROCESSOR ${processor})
  include(${root}/cmake/Modules/Platform/Emscripten.cmake)
  # Linking runs scripts that need Debian's packages for Node.js, which one that is not Debian's has to be told.
  foreach(language C CXX)
    set(CMAKE_${language}_LINKER_LAUNCHER ${CMAKE_COMMAND} -E env NODE_PATH=/usr/share/nodejs)
  endforeach()
endmacro()

macro(qvpi_machine name processor debian target protection emulator)
  if("${name}" STREQUAL "${QVPI_MACHINE}")
    separate_arguments(CMAKE_CROSSCOMPILING_EMULATOR UNIX_COMMAND "${emulator}")
    if("${target}" MATCHES emscripten)
      qvpi_emscripten(${processor})
    else()
      qvpi_cross_clang(${target})
    endif()
    set(CMAKE_SYSTEM_PROCESSOR ${processor})
  endif()
endmacro()

include(${CMAKE_CURRENT_LIST_DIR}/cpus.cmake)
