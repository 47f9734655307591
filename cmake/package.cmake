# Debian packages, made by `cpack -G DEB` in the build folder. They use Debian's library folders, whatever those of the
# install prefix are; so each package is a component of its own that a plain install leaves out.
qvpi_install_headers(libqvpi-dev EXCLUDE_FROM_ALL)
qvpi_install_libraries(64 lib/${QVPI_COMPILER_TARGET} libqvpi10 libqvpi-dev EXCLUDE_FROM_ALL)
qvpi_install_libraries(32 lib/i386-linux-gnu libqvpig9-10 libqvpi-dev EXCLUDE_FROM_ALL)

# The Python package lies where Debian's Python looks, for its version and machine.
if(TARGET python)
  install(DIRECTORY ${QVPI_PYTHON_LIB}/qvpi DESTINATION lib/python3/dist-packages COMPONENT python3-qvpi EXCLUDE_FROM_ALL
    PATTERN __pycache__ EXCLUDE)
endif()

# Without a CPU build for it, a package has no files and is not made.
get_cmake_property(CPACK_COMPONENTS_ALL COMPONENTS)
list(FILTER CPACK_COMPONENTS_ALL INCLUDE REGEX "^(libqvp|python3-qvpi)")

# Every package, named like its component, says what changed and who may do what.
set(changelog ${PROJECT_BINARY_DIR}/install/changelog.gz)
file(ARCHIVE_CREATE OUTPUT ${changelog} PATHS ${PROJECT_SOURCE_DIR}/CHANGELOG.md FORMAT raw COMPRESSION GZip)
set_property(DIRECTORY APPEND PROPERTY CMAKE_CONFIGURE_DEPENDS ${PROJECT_SOURCE_DIR}/CHANGELOG.md)
foreach(component IN LISTS CPACK_COMPONENTS_ALL)
  install(FILES ${PROJECT_SOURCE_DIR}/docs/copyright ${changelog} DESTINATION share/doc/${component}
    COMPONENT ${component} EXCLUDE_FROM_ALL)
endforeach()

# The list of a package's files with their hashes is made of the files as they are packed, so it comes last.
foreach(component IN LISTS CPACK_COMPONENTS_ALL)
  install(CODE "
    set(root \"\$ENV{DESTDIR}\${CMAKE_INSTALL_PREFIX}\")
    execute_process(COMMAND ${Python3_EXECUTABLE} ${PROJECT_SOURCE_DIR}/tools/sbom.py --name ${component}
      --version ${PROJECT_VERSION} --highway ${PROJECT_BINARY_DIR}/highway --root \"\${root}\"
      --out \"\${root}/share/doc/${component}/${component}.spdx.json\" COMMAND_ERROR_IS_FATAL ANY)"
    COMPONENT ${component} EXCLUDE_FROM_ALL)
endforeach()

set(CPACK_DEBIAN_LIBQVPI10_PACKAGE_NAME libqvpi10)
set(CPACK_DEBIAN_LIBQVPI10_PACKAGE_SECTION libs)
set(CPACK_DEBIAN_LIBQVPI10_PACKAGE_ARCHITECTURE ${QVPI_DEBIAN_ARCHITECTURE})
if(QVPI_MACHINE STREQUAL x86)
  set(CPACK_DEBIAN_LIBQVPI10_DESCRIPTION
"The shared library, in builds for several levels of the x86-64 instruction set.
The dynamic linker loads the best one that the CPU has.")
else()
  set(CPACK_DEBIAN_LIBQVPI10_DESCRIPTION "The shared library.")
endif()

# Scanning for dependencies finds the package of a cross compiler's C library, and for i386 amd64's package of the 32-bit
# one, which other machines lack; so the dependency is named there, on the C library of Debian 12.
set(c_library "libc6 (>= 2.36)")
if(CMAKE_CROSSCOMPILING)
  set(CPACK_DEBIAN_LIBQVPI10_PACKAGE_DEPENDS ${c_library})
else()
  set(CPACK_DEBIAN_LIBQVPI10_PACKAGE_SHLIBDEPS ON)
endif()
set(CPACK_DEBIAN_LIBQVPIG9-10_PACKAGE_NAME libqvpig9-10)
set(CPACK_DEBIAN_LIBQVPIG9-10_PACKAGE_SECTION libs)
set(CPACK_DEBIAN_LIBQVPIG9-10_PACKAGE_ARCHITECTURE i386)
set(CPACK_DEBIAN_LIBQVPIG9-10_PACKAGE_DEPENDS ${c_library})
set(CPACK_DEBIAN_LIBQVPIG9-10_DESCRIPTION "The shared library for 32-bit programs, on CPUs that have AVX.")

set(CPACK_DEBIAN_LIBQVPI-DEV_PACKAGE_NAME libqvpi-dev)
set(CPACK_DEBIAN_LIBQVPI-DEV_PACKAGE_SECTION libdevel)
set(CPACK_DEBIAN_LIBQVPI-DEV_PACKAGE_ARCHITECTURE ${QVPI_DEBIAN_ARCHITECTURE})
if(libqvpi10 IN_LIST CPACK_COMPONENTS_ALL)
  set(CPACK_DEBIAN_LIBQVPI-DEV_PACKAGE_DEPENDS "libqvpi10 (= ${PROJECT_VERSION})")
endif()
if(QVPI_MACHINE STREQUAL x86)
  set(CPACK_DEBIAN_LIBQVPI-DEV_PACKAGE_SUGGESTS "libqvpig9-10:i386 (= ${PROJECT_VERSION}), libtbb-dev")
  set(CPACK_DEBIAN_LIBQVPI-DEV_DESCRIPTION
"Headers for C and C++, static archives, and files for CMake and pkg-config.
They serve 64-bit and 32-bit programs. To link the 32-bit shared library,
install its package too.")
else()
  set(CPACK_DEBIAN_LIBQVPI-DEV_DESCRIPTION "Headers for C and C++, static archives, and files for CMake and pkg-config.")
endif()

set(CPACK_DEBIAN_PYTHON3-QVPI_PACKAGE_NAME python3-qvpi)
set(CPACK_DEBIAN_PYTHON3-QVPI_PACKAGE_SECTION python)
set(CPACK_DEBIAN_PYTHON3-QVPI_PACKAGE_ARCHITECTURE ${QVPI_DEBIAN_ARCHITECTURE})
set(CPACK_DEBIAN_PYTHON3-QVPI_PACKAGE_DEPENDS
  "libqvpi10 (>= ${PROJECT_VERSION}), ${QVPI_PYTHON_DEPENDS}, python3-numpy, python3-cffi-backend, ${c_library}")
set(CPACK_DEBIAN_PYTHON3-QVPI_PACKAGE_SUGGESTS "python3-dask, python3-distributed, python3-zarr")
set(CPACK_DEBIAN_PYTHON3-QVPI_DESCRIPTION
"The functions over numpy arrays, for Python 3.
Every exported function too, as the module qvpi.raw.")
set(CPACK_DEBIAN_PYTHON3-QVPI_PACKAGE_SHLIBDEPS OFF)

set(CPACK_PACKAGE_NAME qvpi)
set(CPACK_PACKAGE_CONTACT "qvpIP maintainers <maintainers@qvpip.example>")
# The manual's package is made by `./dev package` with dpkg-deb: CPack would ask of each of its 4,000 files what it is.
configure_file(cmake/doc-control.in ${PROJECT_BINARY_DIR}/install/doc-control @ONLY)
set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGE_DIRECTORY ${PROJECT_BINARY_DIR}/packages)
set(CPACK_STRIP_FILES ON)
set(CPACK_DEB_COMPONENT_INSTALL ON)
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_GENERATE_SHLIBS ON)
set(CPACK_DEBIAN_PACKAGE_GENERATE_SHLIBS_POLICY >=)
include(CPack)
