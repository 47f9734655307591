# How the libraries of one CPU build are made. A new source file needs no line here.
set(QVPI_SOURCE_FOLDERS base core arith filter geometry stats transform feature signal volume)
set(QVPI_WARNINGS -Wall -Wextra -Wshadow -Wcast-qual -Wmissing-declarations -Werror)
# To look for sums of pointers that wrap, for null and for what lies behind objects takes most of the compiler's time, and
# what they lead to is seen by the watch over memory.
set(QVPI_SANITIZERS -fsanitize=address,undefined -fno-sanitize=vptr,function,pointer-overflow,null,object-size
                    -fno-sanitize-recover=all -fno-omit-frame-pointer -g1 -O1)
if(QVPI_SANITIZE STREQUAL threads)
  set(QVPI_SANITIZERS -fsanitize=thread -g1 -O1)
elseif(QVPI_SANITIZE STREQUAL coverage)
  set(QVPI_SANITIZERS -fprofile-instr-generate -fcoverage-mapping -O1)
endif()
set(QVPI_SOVERSION 10)

# No exceptions, no run-time type information and no C++ run-time library; float results must not depend on the CPU.
set(QVPI_FLAGS ${QVPI_WARNINGS} -fno-exceptions -fno-rtti -fno-threadsafe-statics -ffp-contract=off
               -fvisibility=hidden -fno-math-errno -ffunction-sections -fdata-sections)

if(CMAKE_CXX_COMPILER_ID MATCHES Clang)
  list(APPEND QVPI_FLAGS -fno-addrsig)  # tables of symbols that would not survive the archive's renames
endif()
if(CMAKE_CXX_COMPILER_ID STREQUAL GNU)  # GCC 12 warns of its own intrinsics; clang warns of ours
  list(APPEND QVPI_FLAGS -Wno-uninitialized -Wno-maybe-uninitialized)
endif()

# Highway is headers only and the same for every machine, so those of the machine that builds serve all, in a folder
# without that machine's other headers.
find_path(HWY_INCLUDE_DIR hwy/highway.h PATHS /usr/include REQUIRED NO_CMAKE_FIND_ROOT_PATH)
file(MAKE_DIRECTORY ${PROJECT_BINARY_DIR}/highway)
file(CREATE_LINK ${HWY_INCLUDE_DIR}/hwy ${PROJECT_BINARY_DIR}/highway/hwy SYMBOLIC)

# WebAssembly has none: there a library is its archive, whose functions have their exported names.
get_property(QVPI_HAS_SHARED GLOBAL PROPERTY TARGET_SUPPORTS_SHARED_LIBS)

# The format of objects, and the file that tells the linker what a shared library exports.
if(WIN32)
  set(QVPI_FORMAT coff)
  set(QVPI_EXPORTS exports.def)
else()
  set(QVPI_FORMAT elf)
  set(QVPI_EXPORTS exports.map)
endif()

# A row of the table of machines: of the machine that this folder builds for, it sets what the rest needs to know.
macro(qvpi_machine name processor cpus debian target protection emulator)
  if(CMAKE_SYSTEM_PROCESSOR STREQUAL "${processor}")
    set(QVPI_MACHINE ${name})
    set(QVPI_MACHINE_OF_CPUS ${cpus})
    set(QVPI_DEBIAN_ARCHITECTURE ${debian})
    set(QVPI_COMPILER_TARGET ${target})
    set(QVPI_PROTECTION ${protection})
  endif()
endmacro()

# Writes what is derived from the headers, and other files that ARGS name, to <folder>: FILES are outputs of
# tools/derive.py called with ARGS.
function(qvpi_derive folder)
  cmake_parse_arguments(PARSE_ARGV 1 D "" "" "FILES;ARGS;HEADERS;DEPENDS")
  list(TRANSFORM D_FILES PREPEND ${folder}/ OUTPUT_VARIABLE outputs)
  add_custom_command(OUTPUT ${outputs}
    COMMAND Python3::Interpreter ${PROJECT_SOURCE_DIR}/tools/derive.py ${D_ARGS} --out ${folder} ${D_HEADERS}
    DEPENDS ${PROJECT_SOURCE_DIR}/tools/derive.py ${D_HEADERS} ${D_DEPENDS}
    COMMENT "Deriving ${D_FILES}" VERBATIM)
endfunction()

# The settings that every library of ours shares.
function(qvpi_settings target bits)
  target_include_directories(${target} PUBLIC $<BUILD_INTERFACE:${PROJECT_SOURCE_DIR}/include>)
  set_target_properties(${target} PROPERTIES POSITION_INDEPENDENT_CODE ${QVPI_HAS_SHARED} LINKER_LANGUAGE C)
  if(QVPI_SANITIZE)
    target_compile_options(${target} PRIVATE ${QVPI_SANITIZERS}
      $<$<AND:$<CXX_COMPILER_ID:Clang>,$<STREQUAL:${QVPI_SANITIZE},memory>>:-fsanitize-coverage=inline-8bit-counters,pc-table>)  # the fuzzer sees what it reaches
    target_link_options(${target} PRIVATE ${QVPI_SANITIZERS})
  endif()
  if(bits EQUAL 32 AND QVPI_MACHINE STREQUAL x86)
    target_compile_options(${target} PRIVATE -m32)
    target_link_options(${target} PRIVATE -m32)
  endif()
endfunction()

# A static library from a set of objects, <output>.a in <build>/<code>/.
function(qvpi_static_alone name objects output code bits)
  add_library(${name}_static STATIC $<TARGET_OBJECTS:${objects}>)
  qvpi_settings(${name}_static ${bits})
  set_target_properties(${name}_static PROPERTIES OUTPUT_NAME ${output}
    ARCHIVE_OUTPUT_DIRECTORY ${PROJECT_BINARY_DIR}/${code})
  add_library(${name} INTERFACE)
  target_link_libraries(${name} INTERFACE ${name}_static)
endfunction()

# What the linker is told of a shared library: what it exports, that it is read-only once loaded, and that nothing may
# be missing or in it for nothing.
function(qvpi_link_options name exports)
  target_sources(${name} PRIVATE ${exports})  # which is all that the linker for Windows has to be told of it
  if(WIN32)
    target_link_options(${name} PRIVATE LINKER:--gc-sections,--no-insert-timestamp)
  else()
    target_link_options(${name} PRIVATE LINKER:--version-script=${exports},-z,relro,-z,now,--as-needed,--gc-sections)
    if(NOT QVPI_SANITIZE)
      # A library needs no start files, and Debian's are not marked as protected: with them no library would be.
      target_link_options(${name} PRIVATE -nostartfiles LINKER:-z,defs)
    endif()
  endif()
endfunction()

# A shared library and its static twin from one set of objects: <output>.so.10 or <output>.dll, and <output>.a, in
# <build>/<code>/. Further arguments are objects that only the shared one has.
function(qvpi_shared_and_static name object_libraries output code bits exports)
  list(TRANSFORM object_libraries REPLACE "(.+)" "$<TARGET_OBJECTS:\\1>" OUTPUT_VARIABLE objects)
  add_library(${name} SHARED ${objects} ${ARGN})
  add_library(${name}_static STATIC ${objects})
  foreach(target ${name} ${name}_static)
    qvpi_settings(${target} ${bits})
    set(folder ${PROJECT_BINARY_DIR}/${code})
    set_target_properties(${target} PROPERTIES OUTPUT_NAME ${output} BUILD_RPATH_USE_ORIGIN ON
      LIBRARY_OUTPUT_DIRECTORY ${folder} ARCHIVE_OUTPUT_DIRECTORY ${folder} RUNTIME_OUTPUT_DIRECTORY ${folder})
  endforeach()
  set_target_properties(${name} PROPERTIES VERSION ${QVPI_SOVERSION} SOVERSION ${QVPI_SOVERSION}
    LINK_DEPENDS ${exports})
  if(WIN32)
    set_target_properties(${name} PROPERTIES PREFIX "")
  endif()
  qvpi_link_options(${name} ${exports})
  target_link_options(${name}_static INTERFACE LINKER:--gc-sections)  # a program gets the functions that it calls
endfunction()

# The companion runs on any CPU of the machine: it gets no flags for a level, and on i386 no vector registers either.
function(qvpi_companion code bits)
  set(derived ${PROJECT_BINARY_DIR}/derived/${code}/core)
  set(header ${PROJECT_SOURCE_DIR}/include/qvpcore.h)
  qvpi_derive(${derived} FILES ${QVPI_EXPORTS} ARGS --format ${QVPI_FORMAT} HEADERS ${header})
  file(GLOB sources CONFIGURE_DEPENDS ${PROJECT_SOURCE_DIR}/platform/*.cpp
    ${PROJECT_SOURCE_DIR}/platform/${QVPI_MACHINE_OF_CPUS}/*.cpp)
  add_library(qvpcore_${code}_objects OBJECT ${sources})
  qvpi_settings(qvpcore_${code}_objects ${bits})
  target_include_directories(qvpcore_${code}_objects PRIVATE ${PROJECT_SOURCE_DIR})
  target_compile_options(qvpcore_${code}_objects PRIVATE ${QVPI_FLAGS} ${QVPI_PROTECTION} -fvisibility=default -fvisibility-inlines-hidden
    $<$<AND:$<EQUAL:${bits},32>,$<STREQUAL:${QVPI_MACHINE},x86>>:-march=i686>)
  if(QVPI_HAS_SHARED)
    qvpi_shared_and_static(qvpcore_${code} qvpcore_${code}_objects qvpcore ${code} ${bits}
      ${derived}/${QVPI_EXPORTS})
  else()
    qvpi_static_alone(qvpcore_${code} qvpcore_${code}_objects qvpcore ${code} ${bits})
  endif()
endfunction()

# Whether the machine that builds can run what needs a CPU feature. Emulators have them all; wine is none.
file(READ /proc/cpuinfo QVPI_CPUINFO)
function(qvpi_runs_here feature result)
  if((CMAKE_CROSSCOMPILING AND NOT WIN32) OR QVPI_CPUINFO MATCHES " ${feature} ")
    set(${result} TRUE PARENT_SCOPE)
  else()
    set(${result} FALSE PARENT_SCOPE)
  endif()
endfunction()

# What a build has of its own: the sources compiled for its CPUs, with the flags that follow.
function(qvpi_cpu_objects code machine bits feature vectors name)
  set(derived ${PROJECT_BINARY_DIR}/derived/${code})
  file(GLOB headers CONFIGURE_DEPENDS ${PROJECT_SOURCE_DIR}/include/qvpi_*.h)
  set(derivatives rename.h)
  if(QVPI_HAS_SHARED AND machine STREQUAL QVPI_MACHINE)
    list(APPEND derivatives entries.S exports.map static.syms)
  endif()
  qvpi_derive(${derived} FILES ${derivatives} ARGS --cpu ${code} --machine ${machine} --bits ${bits}
    HEADERS ${headers})

  list(TRANSFORM QVPI_SOURCE_FOLDERS REPLACE "(.+)" "${PROJECT_SOURCE_DIR}/\\1/*.cpp" OUTPUT_VARIABLE patterns)
  file(GLOB sources CONFIGURE_DEPENDS ${patterns})
  set(objects qvpi_${code}_objects)
  add_library(${objects} OBJECT ${sources} ${derived}/rename.h)
  qvpi_settings(${objects} ${bits})
  set_target_properties(${objects} PROPERTIES QVPI_FEATURE ${feature})
  # What a source of this build, or a test of headers with vectors, is compiled with.
  set(vector_settings qvpi_${code}_vectors)
  add_library(${vector_settings} INTERFACE)
  target_include_directories(${vector_settings} INTERFACE ${PROJECT_SOURCE_DIR} ${PROJECT_SOURCE_DIR}/include)
  target_include_directories(${vector_settings} SYSTEM INTERFACE ${PROJECT_BINARY_DIR}/highway)
  target_compile_definitions(${vector_settings} INTERFACE HWY_COMPILE_ONLY_STATIC HWY_DISABLE_PCLMUL_AES
    HWY_IS_DEBUG_BUILD=0  # its checks would need its library
    QVP_VECTOR_TARGET=${vectors})
  target_compile_options(${vector_settings} INTERFACE ${ARGN})

  target_link_libraries(${objects} PRIVATE ${vector_settings})
  target_compile_definitions(${objects} PRIVATE QVP_CPU_CODE="${code}" "QVP_BUILD_NAME=\"${name}\"")
  target_compile_options(${objects} PRIVATE ${QVPI_FLAGS} ${QVPI_PROTECTION})
  # Every source begins with the precompiled header, and so with the renames.
  target_precompile_headers(${objects} PRIVATE <hwy/highway.h> ${derived}/rename.h)
endfunction()

function(qvpi_cpu code machine bits feature tests vectors output folder name)
  if(NOT machine STREQUAL QVPI_MACHINE_OF_CPUS OR (QVPI_CPUS AND NOT code IN_LIST QVPI_CPUS))
    return()
  endif()
  if(machine STREQUAL QVPI_MACHINE)
    qvpi_cpu_objects(${code} ${machine} ${bits} ${feature} ${vectors} ${name} ${ARGN})
    qvpi_cpu_libraries(${code} ${bits} ${feature} ${tests} ${output} ${folder})
  elseif(bits EQUAL 64)  # another machine with these CPUs has unions alone
    qvpi_cpu_objects(${code} ${machine} ${bits} ${feature} ${vectors} ${name} ${ARGN})
  endif()
endfunction()

function(qvpi_cpu_libraries code bits feature tests output folder)
  qvpi_companion(${code} ${bits})
  set(derived ${PROJECT_BINARY_DIR}/derived/${code})
  set(objects qvpi_${code}_objects)
  set(library qvpi_${code})
  if(QVPI_HAS_SHARED)
    set(entries qvpi_${code}_entries)
    add_library(${entries} OBJECT ${derived}/entries.S)
    qvpi_settings(${entries} ${bits})
    target_compile_options(${entries} PRIVATE ${QVPI_PROTECTION})
    qvpi_shared_and_static(${library} ${objects} ${output} ${code} ${bits} ${derived}/exports.map
      $<TARGET_OBJECTS:${entries}>)
    add_custom_command(TARGET ${library}_static POST_BUILD VERBATIM
      COMMAND ${CMAKE_OBJCOPY} --redefine-syms=${derived}/static.syms $<TARGET_FILE:${library}_static>)
    target_link_libraries(${library} PUBLIC qvpcore_${code})
  else()
    qvpi_static_alone(${library} ${objects} ${output} ${code} ${bits})
  endif()
  target_link_libraries(${library}_static INTERFACE qvpcore_${code}_static)
  set_target_properties(${library} PROPERTIES QVPI_BITS ${bits} QVPI_TESTS ${tests} QVPI_FOLDER ${folder})
  set_property(GLOBAL APPEND PROPERTY QVPI_CPU_BUILDS ${code})
  qvpi_runs_here(${feature} runs)
  if(runs AND bits EQUAL 64)  # rows go upwards: the best one stays
    set_property(GLOBAL PROPERTY QVPI_HOST_BUILD ${code})
  endif()
  add_custom_target(${code} DEPENDS ${library} ${library}_static)
endfunction()

# A build that holds the code of others, its levels, and chooses between them at load. Their objects are taken as they
# are; only what chooses is compiled, for any CPU of the machine.
function(qvpi_union code machine bits feature tests output folder)
  if(QVPI_SANITIZE OR NOT machine STREQUAL QVPI_MACHINE OR (QVPI_CPUS AND NOT code IN_LIST QVPI_CPUS))
    return()
  endif()
  foreach(level IN LISTS ARGN)
    if(NOT TARGET qvpi_${level}_objects)
      message(FATAL_ERROR "The build ${code} holds ${level}, which QVPI_CPUS does not name")
    endif()
  endforeach()
  qvpi_companion(${code} ${bits})

  set(derived ${PROJECT_BINARY_DIR}/derived/${code})
  file(GLOB headers CONFIGURE_DEPENDS ${PROJECT_SOURCE_DIR}/include/qvpi_*.h)
  qvpi_derive(${derived} FILES entries.S entry.S ${QVPI_EXPORTS} ARGS --machine ${QVPI_MACHINE_OF_CPUS} --bits ${bits}
    --format ${QVPI_FORMAT} --levels ${ARGN} HEADERS ${headers})
  set(library qvpi_${code})
  file(GLOB sources CONFIGURE_DEPENDS ${PROJECT_SOURCE_DIR}/platform/${QVPI_MACHINE_OF_CPUS}/any/*.cpp)
  set_source_files_properties(${sources} PROPERTIES OBJECT_DEPENDS ${derived}/entry.S)  # a new archive for new entries
  add_library(${library}_objects OBJECT ${sources})
  add_library(${library}_entries OBJECT ${derived}/entries.S)
  add_library(${library}_entry OBJECT ${derived}/entry.S)
  foreach(objects ${library}_objects ${library}_entries ${library}_entry)
    qvpi_settings(${objects} ${bits})
    target_compile_options(${objects} PRIVATE ${QVPI_PROTECTION})
  endforeach()
  target_include_directories(${library}_objects PRIVATE ${PROJECT_SOURCE_DIR})
  target_compile_options(${library}_objects PRIVATE ${QVPI_FLAGS}
    $<$<CXX_COMPILER_ID:GNU>:-Wno-prio-ctor-dtor>)  # it comes before what programs may ask for

  list(TRANSFORM ARGN REPLACE "(.+)" "qvpi_\\1_objects" OUTPUT_VARIABLE levels)
  qvpi_shared_and_static(${library} "${library}_objects;${levels}" ${output} ${code} ${bits}
    ${derived}/${QVPI_EXPORTS} $<TARGET_OBJECTS:${library}_entries>)
  set(tool ${PROJECT_SOURCE_DIR}/tools/entry_objects.py)
  add_dependencies(${library}_static ${library}_entry)
  add_custom_command(TARGET ${library}_static POST_BUILD VERBATIM
    COMMAND Python3::Interpreter ${tool} --template $<TARGET_OBJECTS:${library}_entry> --ar ${CMAKE_AR}
      --archive $<TARGET_FILE:${library}_static> --out ${derived}/objects ${headers})
  target_link_libraries(${library} PUBLIC qvpcore_${code})
  target_link_libraries(${library}_static INTERFACE qvpcore_${code}_static)
  set_target_properties(${library} PROPERTIES QVPI_BITS ${bits} QVPI_TESTS ${tests} QVPI_FOLDER ${folder}
    QVPI_LEVELS "${ARGN}")
  set_property(GLOBAL APPEND PROPERTY QVPI_UNION_BUILDS ${code})
  add_custom_target(${code} DEPENDS ${library} ${library}_static)
endfunction()
