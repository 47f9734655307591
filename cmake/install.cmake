# What `cmake --install` puts where, of the CPU builds that were made.
#
#   <libdir>/            the baseline: the lowest 64-bit build, which is what programs link; and the companion
#   <libdir>/glibc-hwcaps/<level>/    the builds above it, which the dynamic linker takes instead on CPUs that have them
#   <libdir>/qvpi-any/   the archive of the build for every x86-64; and, of the component `any` alone, which is not
#                        installed unless it is asked for, its shared library with a companion of its own, for others
#                        to take along
#   <libdir32>/          the 32-bit build of x86, with a companion of its own
#
# The library folders also get the static archives, a CMake package and pkg-config files: <package> for the shared
# library, <package>-static-<code> for the archive of one build.
set(folder lib32)
if(CMAKE_INSTALL_LIBDIR MATCHES x86_64-linux-gnu)
  string(REPLACE x86_64 i386 folder ${CMAKE_INSTALL_LIBDIR})
endif()
set(QVPI_LIBDIR32 ${folder} CACHE STRING "Library folder of the 32-bit build, below the install prefix")

include(CMakePackageConfigHelpers)

# The further arguments of these functions go to install(): packages need EXCLUDE_FROM_ALL.
function(qvpi_install_headers component)
  install(DIRECTORY ${PROJECT_SOURCE_DIR}/include/ DESTINATION ${CMAKE_INSTALL_INCLUDEDIR} COMPONENT ${component}
    ${ARGN} FILES_MATCHING PATTERN *.h PATTERN *.hpp)
  install(DIRECTORY ${PROJECT_BINARY_DIR}/derived/cpp/qvpi DESTINATION ${CMAKE_INSTALL_INCLUDEDIR} COMPONENT ${component}
    ${ARGN} FILES_MATCHING PATTERN *.hpp)
endfunction()

function(qvpi_install_pkgconfig name requires description libdir component)
  file(RELATIVE_PATH up /prefix/${libdir}/pkgconfig /prefix)
  set(file ${PROJECT_BINARY_DIR}/install/${libdir}/${name}.pc)
  configure_file(${PROJECT_SOURCE_DIR}/cmake/pkgconfig.pc.in ${file} @ONLY)
  install(FILES ${file} DESTINATION ${libdir}/pkgconfig COMPONENT ${component} ${ARGN})
endfunction()

function(qvpi_install_archive_pkgconfig package code folder libdir component)
  set(name ${package}-static-${code})
  set(description "The archive of the build ${code} of qvpIP")
  file(RELATIVE_PATH up /prefix/${libdir}/pkgconfig /prefix)
  set(file ${PROJECT_BINARY_DIR}/install/${libdir}/${name}.pc)
  configure_file(${PROJECT_SOURCE_DIR}/cmake/archive.pc.in ${file} @ONLY)
  install(FILES ${file} DESTINATION ${libdir}/pkgconfig COMPONENT ${component} ${ARGN})
endfunction()

function(qvpi_install_cmake_package package bits exports libdir component)
  set(files ${PROJECT_BINARY_DIR}/install/${package}-config)
  string(TOUPPER ${CMAKE_BUILD_TYPE} configuration)
  configure_file(${PROJECT_SOURCE_DIR}/cmake/package-config.cmake.in ${files}.cmake @ONLY)
  # The version file refuses programs of another pointer width, and takes its own from this variable.
  math(EXPR CMAKE_SIZEOF_VOID_P "${bits} / 8")
  write_basic_package_version_file(${files}-version.cmake COMPATIBILITY SameMajorVersion)

  set(destination DESTINATION ${libdir}/cmake/${package} COMPONENT ${component} ${ARGN})
  install(FILES ${files}.cmake ${files}-version.cmake ${destination})
  install(EXPORT ${exports} FILE ${package}-targets.cmake NAMESPACE ${package}:: ${destination})
endfunction()

# The libraries that programs link. In CMake they are <package>::<package> and <package>::core, and the archives the
# same with the suffix _static, behind which those of higher levels have their code; the package has the name of the
# library.
function(qvpi_install_baseline code libdir runtime development)
  get_target_property(package qvpi_${code} OUTPUT_NAME)
  get_target_property(bits qvpi_${code} QVPI_BITS)
  foreach(suffix "" _static)
    set_target_properties(qvpi_${code}${suffix} PROPERTIES EXPORT_NAME ${package}${suffix})
    set_target_properties(qvpcore_${code}${suffix} PROPERTIES EXPORT_NAME core${suffix})
  endforeach()
  set_target_properties(qvpi_${code} PROPERTIES INSTALL_RPATH $ORIGIN)

  install(TARGETS qvpi_${code} qvpi_${code}_static qvpcore_${code} qvpcore_${code}_static EXPORT ${package}-${runtime}
    LIBRARY DESTINATION ${libdir} COMPONENT ${runtime} NAMELINK_COMPONENT ${development} ${ARGN}
    ARCHIVE DESTINATION ${libdir} COMPONENT ${development} ${ARGN}
    RUNTIME DESTINATION ${CMAKE_INSTALL_BINDIR} COMPONENT ${runtime} ${ARGN}
    INCLUDES DESTINATION ${CMAKE_INSTALL_INCLUDEDIR})
  qvpi_install_cmake_package(${package} ${bits} ${package}-${runtime} ${libdir} ${development} ${ARGN})
  qvpi_install_pkgconfig(${package} qvpcore "${PROJECT_DESCRIPTION}" ${libdir} ${development} ${ARGN})
  qvpi_install_pkgconfig(qvpcore "" "Companion library of qvpIP" ${libdir} ${development} ${ARGN})
  qvpi_install_archive_pkgconfig(${package} ${code} . ${libdir} ${development} ${ARGN})
endfunction()

# The companion of the baseline, in the library folder, two folders up, serves every level.
function(qvpi_install_level code libdir runtime development)
  get_target_property(folder qvpi_${code} QVPI_FOLDER)
  set_target_properties(qvpi_${code} PROPERTIES INSTALL_RPATH $ORIGIN/../..)
  install(TARGETS qvpi_${code}
    LIBRARY DESTINATION ${libdir}/${folder} COMPONENT ${runtime} NAMELINK_SKIP ${ARGN})
  qvpi_install_archive(${code} ${libdir} ${runtime} ${development} ${ARGN})
endfunction()

# The archive of another build than the baseline, with whose companion it is linked.
function(qvpi_install_archive code libdir runtime development)
  get_target_property(folder qvpi_${code} QVPI_FOLDER)
  get_target_property(package qvpi_${code} OUTPUT_NAME)
  set_target_properties(qvpi_${code}_static PROPERTIES EXPORT_NAME ${package}_static_${code}
    INTERFACE_LINK_LIBRARIES qvpcore_${baseline}_static)
  install(TARGETS qvpi_${code}_static EXPORT ${package}-${runtime}
    ARCHIVE DESTINATION ${libdir}/${folder} COMPONENT ${development} ${ARGN}
    INCLUDES DESTINATION ${CMAKE_INSTALL_INCLUDEDIR})
  qvpi_install_archive_pkgconfig(${package} ${code} ${folder} ${libdir} ${development} ${ARGN})
endfunction()

# What somebody takes along who gives a program or a package to others.
function(qvpi_install_shared_union code libdir)
  get_target_property(folder qvpi_${code} QVPI_FOLDER)
  set_target_properties(qvpi_${code} PROPERTIES INSTALL_RPATH $ORIGIN)
  install(TARGETS qvpi_${code} qvpcore_${code} LIBRARY DESTINATION ${libdir}/${folder} COMPONENT ${code} EXCLUDE_FROM_ALL)
endfunction()

# All builds of one pointer width; the table of CPU builds lists the lowest level first.
function(qvpi_install_libraries bits)
  get_property(codes GLOBAL PROPERTY QVPI_CPU_BUILDS)
  get_property(unions GLOBAL PROPERTY QVPI_UNION_BUILDS)
  set(rule qvpi_install_baseline)
  foreach(code IN LISTS codes unions)
    if(code IN_LIST unions)
      set(rule qvpi_install_archive)
    endif()
    get_target_property(code_bits qvpi_${code} QVPI_BITS)
    if(code_bits EQUAL bits)
      cmake_language(CALL ${rule} ${code} ${ARGN})
      if(rule STREQUAL qvpi_install_baseline)
        set(baseline ${code})
        set(rule qvpi_install_level)
      endif()
    endif()
  endforeach()
endfunction()

# What `cpack` makes for machines without packages: one archive of all that is installed.
macro(qvpi_pack_archive machine generator)
  foreach(file README.md LICENSE CHANGELOG.md)
    install(FILES ${PROJECT_SOURCE_DIR}/${file} DESTINATION .)
  endforeach()
  set(CPACK_GENERATOR ${generator})
  set(CPACK_PACKAGE_FILE_NAME qvpi-${PROJECT_VERSION}-${machine})
  set(CPACK_PACKAGE_DIRECTORY ${PROJECT_BINARY_DIR}/packages)
  set(CPACK_PACKAGE_CONTACT "qvpIP maintainers <maintainers@qvpip.example>")
  set(CPACK_STRIP_FILES ON)
  include(CPack)
endmacro()

if(NOT QVPI_HAS_SHARED)
  include(cmake/module.cmake)
  return()
endif()
if(WIN32)  # the DLLs in bin/, import libraries and archives in lib/
  get_property(code GLOBAL PROPERTY QVPI_UNION_BUILDS)
  qvpi_install_headers(archive)
  qvpi_install_baseline(${code} lib archive archive)
  qvpi_pack_archive(windows ZIP)
  return()
endif()

qvpi_install_headers(development)
qvpi_install_libraries(64 ${CMAKE_INSTALL_LIBDIR} runtime development)
qvpi_install_libraries(32 ${QVPI_LIBDIR32} runtime32 development32)
get_property(unions GLOBAL PROPERTY QVPI_UNION_BUILDS)
foreach(code IN LISTS unions)
  qvpi_install_shared_union(${code} ${CMAKE_INSTALL_LIBDIR})
endforeach()
