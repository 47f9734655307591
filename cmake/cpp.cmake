# The C++ headers: those of include/qvpi/, and qvpi/operations/, which is derived from the C headers. They are for
# images, not for volumes.
set(derived ${PROJECT_BINARY_DIR}/derived/cpp)
file(GLOB headers CONFIGURE_DEPENDS ${PROJECT_SOURCE_DIR}/include/qvpi_*.h)
list(FILTER headers EXCLUDE REGEX qvpi_volume)
list(TRANSFORM headers REPLACE ".*/qvpi_(.*).h" "${derived}/qvpi/operations/\\1.hpp" OUTPUT_VARIABLE operations)
list(APPEND operations ${derived}/qvpi/operations/selectors.hpp)
set(types ${PROJECT_SOURCE_DIR}/include/qvptypes.h)
set(tools ${PROJECT_SOURCE_DIR}/tools)
add_custom_command(OUTPUT ${operations} ${derived}/forms.cpp
  COMMAND Python3::Interpreter ${tools}/derive_cpp.py --out ${derived} --types ${types} ${headers}
  DEPENDS ${tools}/derive_cpp.py ${tools}/cpp_forms.py ${tools}/cpp_names.py ${tools}/derive.py ${types} ${headers}
  COMMENT "Deriving the C++ headers" VERBATIM)
add_custom_target(cpp_headers ALL DEPENDS ${operations})

# What a program has to be told that uses them in the build folder.
add_library(qvpi_cpp INTERFACE)
target_include_directories(qvpi_cpp INTERFACE ${PROJECT_SOURCE_DIR}/include ${derived})
add_dependencies(qvpi_cpp cpp_headers)
