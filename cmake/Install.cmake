# What an installed copy consists of: headers, library, CMake package, pkg-config file.
include(CMakePackageConfigHelpers)

set(TARNS_CMAKE_DIR ${CMAKE_INSTALL_LIBDIR}/cmake/tarns)
install(TARGETS tarns EXPORT tarnsTargets
    LIBRARY DESTINATION ${CMAKE_INSTALL_LIBDIR}
    INCLUDES DESTINATION ${CMAKE_INSTALL_INCLUDEDIR})
install(DIRECTORY ${PROJECT_SOURCE_DIR}/include/ DESTINATION ${CMAKE_INSTALL_INCLUDEDIR} FILES_MATCHING PATTERN "*.h"
    PATTERN "*.hpp")
install(EXPORT tarnsTargets NAMESPACE tarns:: DESTINATION ${TARNS_CMAKE_DIR})

configure_package_config_file(${CMAKE_CURRENT_LIST_DIR}/tarnsConfig.cmake.in ${PROJECT_BINARY_DIR}/tarnsConfig.cmake
    INSTALL_DESTINATION ${TARNS_CMAKE_DIR})
write_basic_package_version_file(${PROJECT_BINARY_DIR}/tarnsConfigVersion.cmake COMPATIBILITY SameMajorVersion)
install(FILES ${PROJECT_BINARY_DIR}/tarnsConfig.cmake ${PROJECT_BINARY_DIR}/tarnsConfigVersion.cmake
    DESTINATION ${TARNS_CMAKE_DIR})

# The paths in tarns.pc are relative to the file, so that an installed tree can be moved.
file(RELATIVE_PATH TARNS_PC_PREFIX /${CMAKE_INSTALL_LIBDIR}/pkgconfig /)
string(REGEX REPLACE "/$" "" TARNS_PC_PREFIX "${TARNS_PC_PREFIX}")
configure_file(${CMAKE_CURRENT_LIST_DIR}/tarns.pc.in ${PROJECT_BINARY_DIR}/tarns.pc @ONLY)
install(FILES ${PROJECT_BINARY_DIR}/tarns.pc DESTINATION ${CMAKE_INSTALL_LIBDIR}/pkgconfig)
