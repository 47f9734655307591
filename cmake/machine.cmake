# Toolchain file for another machine than the one that builds: QVPI_MACHINE is one of cmake/cpus.cmake. For CPUs clang
# compiles, with the libraries of Debian's cross compilers, for Windows too, where GCC does not align the stack for
# vectors of 32 bytes; for WebAssembly emscripten does.
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

# What clang does not find by itself: the folder of the cross compiler, whose name is more than a version. LLVM's linker
# drops functions that nothing calls, and needs no order of libraries.
macro(qvpi_mingw target)
  set(CMAKE_SYSTEM_NAME Windows)
  execute_process(COMMAND ${target}-g++-posix -print-libgcc-file-name OUTPUT_VARIABLE libgcc COMMAND_ERROR_IS_FATAL ANY)
  get_filename_component(libgcc ${libgcc} DIRECTORY)
  set(CMAKE_CXX_STANDARD_INCLUDE_DIRECTORIES ${libgcc}/include/c++ ${libgcc}/include/c++/${target})
  foreach(kind EXE SHARED MODULE)
    set(CMAKE_${kind}_LINKER_FLAGS_INIT "-fuse-ld=lld -B${libgcc} -L${libgcc}")
  endforeach()
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

macro(qvpi_machine name processor cpus debian target protection emulator)
  if("${name}" STREQUAL "${QVPI_MACHINE}")
    separate_arguments(CMAKE_CROSSCOMPILING_EMULATOR UNIX_COMMAND "${emulator}")
    if("${target}" MATCHES emscripten)
      qvpi_emscripten(${processor})
    else()
      qvpi_cross_clang(${target})
    endif()
    if("${target}" MATCHES mingw)
      qvpi_mingw(${target})
    endif()
    set(CMAKE_SYSTEM_PROCESSOR ${processor})
  endif()
endmacro()

include(${CMAKE_CURRENT_LIST_DIR}/cpus.cmake)
