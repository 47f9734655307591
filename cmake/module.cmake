# The module for JavaScript, <build>/module/, and the archive for users of WebAssembly, made by `cpack`.
#
# The module has no JavaScript of emscripten's, and so needs of its surroundings only that they hear when memory grows.
# Calls take up to 48 KiB of its stack, as a test knows.
set(derived ${PROJECT_BINARY_DIR}/derived/module)
file(GLOB headers CONFIGURE_DEPENDS ${PROJECT_SOURCE_DIR}/include/qvpi_*.h)
qvpi_derive(${derived} FILES exports.txt ARGS --module HEADERS ${headers} ${PROJECT_SOURCE_DIR}/include/qvpcore.h)
file(CONFIGURE OUTPUT ${derived}/module.c CONTENT "// Nothing but the exports of the archives.\n")

get_property(cpu GLOBAL PROPERTY QVPI_CPU_BUILDS)
add_executable(qvpi_module ${derived}/module.c ${derived}/exports.txt)
target_link_libraries(qvpi_module PRIVATE qvpi_${cpu})
target_link_options(qvpi_module PRIVATE -O3 --no-entry -sALLOW_MEMORY_GROWTH=1 -sTOTAL_STACK=131072
  -sEXPORTED_FUNCTIONS=@${derived}/exports.txt)
set_target_properties(qvpi_module PROPERTIES OUTPUT_NAME qvpi SUFFIX .wasm LINK_DEPENDS ${derived}/exports.txt
  RUNTIME_OUTPUT_DIRECTORY ${PROJECT_BINARY_DIR}/module)
configure_file(${PROJECT_SOURCE_DIR}/platform/wasm/qvpi.mjs ${PROJECT_BINARY_DIR}/module/qvpi.mjs COPYONLY)

qvpi_install_headers(archive)
set_target_properties(qvpi_${cpu}_static PROPERTIES EXPORT_NAME qvpi_static)
set_target_properties(qvpcore_${cpu}_static PROPERTIES EXPORT_NAME core_static)
install(TARGETS qvpi_${cpu}_static qvpcore_${cpu}_static EXPORT qvpi-archive ARCHIVE DESTINATION lib
  INCLUDES DESTINATION ${CMAKE_INSTALL_INCLUDEDIR})
set(baseline ${cpu})
qvpi_install_cmake_package(qvpi 32 qvpi-archive lib archive)
install(FILES ${PROJECT_BINARY_DIR}/module/qvpi.mjs ${PROJECT_BINARY_DIR}/module/qvpi.wasm DESTINATION module)
foreach(file README.md LICENSE CHANGELOG.md)
  install(FILES ${PROJECT_SOURCE_DIR}/${file} DESTINATION .)
endforeach()

set(CPACK_GENERATOR TXZ)
set(CPACK_PACKAGE_FILE_NAME qvpi-${PROJECT_VERSION}-wasm)
set(CPACK_PACKAGE_DIRECTORY ${PROJECT_BINARY_DIR}/packages)
set(CPACK_PACKAGE_CONTACT "qvpIP maintainers <maintainers@qvpip.example>")
include(CPack)
