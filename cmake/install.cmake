# What `cmake --install` puts in place under the prefix:
#   lib/libsibdecoder_umts.so.<version>, .so.<major> (the SONAME) and .so
#   lib/libsibdecoder_umts_summary.so...  the per-cell summary (sibdump --summary, Python)
#   include/sibdecoder_umts/        the public headers (C-compatible), the codec's umts_rrc.h among them
#   bin/sibdump
#   lib/cmake/sibdecoder_umts/      find_package(sibdecoder_umts) -> sibdecoder_umts::sibdecoder_umts
#                                   and sibdecoder_umts::sibdecoder_umts_summary
#   lib/pkgconfig/sibdecoder_umts.pc and sibdecoder_umts_summary.pc
# Every path is relative to the prefix, so that an install moved elsewhere (or made with
# `cmake --install <build> --prefix <dir>`) still finds its own files.
include(CMakePackageConfigHelpers)

set(UMTS_INSTALL_HEADER_DIR ${CMAKE_INSTALL_INCLUDEDIR}/sibdecoder_umts)
set(UMTS_INSTALL_CMAKE_DIR ${CMAKE_INSTALL_LIBDIR}/cmake/sibdecoder_umts)

install(TARGETS sibdecoder_umts sibdecoder_umts_summary EXPORT sibdecoder_umts_targets
  LIBRARY DESTINATION ${CMAKE_INSTALL_LIBDIR}
  ARCHIVE DESTINATION ${CMAKE_INSTALL_LIBDIR}
  RUNTIME DESTINATION ${CMAKE_INSTALL_BINDIR})
file(GLOB UMTS_PUBLIC_HEADERS CONFIGURE_DEPENDS ${PROJECT_SOURCE_DIR}/include/*.h)
install(FILES ${UMTS_PUBLIC_HEADERS} ${PROJECT_SOURCE_DIR}/src/codec/generated/umts_rrc.h
  DESTINATION ${UMTS_INSTALL_HEADER_DIR})

# sibdump finds the library beside it, in ../lib of its own directory.
file(RELATIVE_PATH UMTS_BIN_TO_LIB
  ${CMAKE_INSTALL_FULL_BINDIR} ${CMAKE_INSTALL_FULL_LIBDIR})
set_target_properties(sibdump PROPERTIES INSTALL_RPATH "$ORIGIN/${UMTS_BIN_TO_LIB}")
install(TARGETS sibdump RUNTIME DESTINATION ${CMAKE_INSTALL_BINDIR})
install(TARGETS libsibdump LIBRARY DESTINATION ${CMAKE_INSTALL_LIBDIR})

# The CMake package.
install(EXPORT sibdecoder_umts_targets
  NAMESPACE sibdecoder_umts::
  FILE sibdecoder_umtsTargets.cmake
  DESTINATION ${UMTS_INSTALL_CMAKE_DIR})
configure_package_config_file(${PROJECT_SOURCE_DIR}/cmake/sibdecoder_umtsConfig.cmake.in
  ${PROJECT_BINARY_DIR}/sibdecoder_umtsConfig.cmake
  INSTALL_DESTINATION ${UMTS_INSTALL_CMAKE_DIR})
write_basic_package_version_file(${PROJECT_BINARY_DIR}/sibdecoder_umtsConfigVersion.cmake
  VERSION ${PROJECT_VERSION}
  COMPATIBILITY SameMajorVersion)
install(FILES ${PROJECT_BINARY_DIR}/sibdecoder_umtsConfig.cmake
              ${PROJECT_BINARY_DIR}/sibdecoder_umtsConfigVersion.cmake
  DESTINATION ${UMTS_INSTALL_CMAKE_DIR})

# The pkg-config file: its prefix is found from its own place (${pcfiledir}).
file(RELATIVE_PATH UMTS_PC_TO_PREFIX
  ${CMAKE_INSTALL_FULL_LIBDIR}/pkgconfig ${CMAKE_INSTALL_PREFIX})
string(REGEX REPLACE "/$" "" UMTS_PC_TO_PREFIX "${UMTS_PC_TO_PREFIX}")
foreach(dir LIBDIR INCLUDEDIR)
  if(IS_ABSOLUTE "${CMAKE_INSTALL_${dir}}")
    set(UMTS_PC_${dir} "${CMAKE_INSTALL_${dir}}")
  else()
    set(UMTS_PC_${dir} "\${prefix}/${CMAKE_INSTALL_${dir}}")
  endif()
endforeach()
configure_file(${PROJECT_SOURCE_DIR}/cmake/sibdecoder_umts.pc.in
  ${PROJECT_BINARY_DIR}/sibdecoder_umts.pc @ONLY)
install(FILES ${PROJECT_BINARY_DIR}/sibdecoder_umts.pc
  DESTINATION ${CMAKE_INSTALL_LIBDIR}/pkgconfig)

# The summary library's pkg-config file, beside the decoder's (which it requires).
configure_file(${PROJECT_SOURCE_DIR}/cmake/sibdecoder_umts_summary.pc.in
  ${PROJECT_BINARY_DIR}/sibdecoder_umts_summary.pc @ONLY)
install(FILES ${PROJECT_BINARY_DIR}/sibdecoder_umts_summary.pc
  DESTINATION ${CMAKE_INSTALL_LIBDIR}/pkgconfig)
