# The module for JavaScript, <build>/module/, that of the page in the browser, and the archive for users of WebAssembly,
# made by `cpack`.
get_property(cpu GLOBAL PROPERTY QVPI_CPU_BUILDS)
file(GLOB headers CONFIGURE_DEPENDS ${PROJECT_SOURCE_DIR}/include/qvpi_*.h)

# qvpi.wasm in <build>/<folder>/, from the archives, with all functions, or those that the scripts name which follow.
#
# A module has no JavaScript of emscripten's, and so needs of its surroundings only that they hear when memory grows.
# Calls take up to 48 KiB of its stack, as a test knows.
function(qvpi_module target folder)
  set(derived ${PROJECT_BINARY_DIR}/derived/${folder})
  set(used)
  if(ARGN)
    set(used --used-in ${ARGN})
  endif()
  qvpi_derive(${derived} FILES exports.txt ARGS --module ${used} DEPENDS ${ARGN}
    HEADERS ${headers} ${PROJECT_SOURCE_DIR}/include/qvpcore.h)
  file(CONFIGURE OUTPUT ${derived}/module.c CONTENT "// Nothing but the exports of the archives.\n")
  add_executable(${target} ${derived}/module.c ${derived}/exports.txt)
  target_link_libraries(${target} PRIVATE qvpi_${cpu})
  target_link_options(${target} PRIVATE -O3 --no-entry -sALLOW_MEMORY_GROWTH=1 -sTOTAL_STACK=131072
    -sEXPORTED_FUNCTIONS=@${derived}/exports.txt)
  set_target_properties(${target} PROPERTIES OUTPUT_NAME qvpi SUFFIX .wasm LINK_DEPENDS ${derived}/exports.txt
    RUNTIME_OUTPUT_DIRECTORY ${PROJECT_BINARY_DIR}/${folder})
endfunction()

qvpi_module(qvpi_module module)
file(GLOB scripts CONFIGURE_DEPENDS ${PROJECT_SOURCE_DIR}/web/*.js)
qvpi_module(qvpi_page page ${scripts})
configure_file(${PROJECT_SOURCE_DIR}/platform/wasm/qvpi.mjs ${PROJECT_BINARY_DIR}/module/qvpi.mjs COPYONLY)

qvpi_install_headers(archive)
set_target_properties(qvpi_${cpu}_static PROPERTIES EXPORT_NAME qvpi_static)
set_target_properties(qvpcore_${cpu}_static PROPERTIES EXPORT_NAME core_static)
install(TARGETS qvpi_${cpu}_static qvpcore_${cpu}_static EXPORT qvpi-archive ARCHIVE DESTINATION lib
  INCLUDES DESTINATION ${CMAKE_INSTALL_INCLUDEDIR})
set(baseline ${cpu})
qvpi_install_cmake_package(qvpi 32 qvpi-archive lib archive)
install(FILES ${PROJECT_BINARY_DIR}/module/qvpi.mjs ${PROJECT_BINARY_DIR}/module/qvpi.wasm DESTINATION module)
qvpi_pack_archive(wasm TXZ)
