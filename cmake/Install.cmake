# What an installed copy consists of: headers, library, CMake package, pkg-config file.
#
# The base level brings all of it. The wider ones add their libraries to an installed base, side by side with it, for
# programs that link or open the level they want; and on x86-64 once more under the base library's name, in the folder in
# which the dynamic linker looks first where the processor has such vectors, so that every program gets them.
include(CMakePackageConfigHelpers)

if(NOT TARNS_LEVEL STREQUAL "T7")
    install(TARGETS tarns LIBRARY DESTINATION ${CMAKE_INSTALL_LIBDIR}
        COMPONENT library NAMELINK_COMPONENT development)
    if(CMAKE_SIZEOF_VOID_P EQUAL 8)
        if(TARNS_LEVEL STREQUAL "Y8")
            set(TARNS_HWCAPS_DIR glibc-hwcaps/x86-64-v3)
        else()
            set(TARNS_HWCAPS_DIR glibc-hwcaps/x86-64-v4)
        endif()
        add_library(tarns_by_processor SHARED $<TARGET_OBJECTS:tarns>)
        set_target_properties(tarns_by_processor PROPERTIES
            OUTPUT_NAME tarnst7 VERSION ${PROJECT_VERSION} SOVERSION ${PROJECT_VERSION_MAJOR}
            LINKER_LANGUAGE CXX LIBRARY_OUTPUT_DIRECTORY ${PROJECT_BINARY_DIR}/${TARNS_HWCAPS_DIR})
        tarns_link_library(tarns_by_processor)
        install(TARGETS tarns_by_processor LIBRARY DESTINATION ${CMAKE_INSTALL_LIBDIR}/${TARNS_HWCAPS_DIR}
            COMPONENT library NAMELINK_SKIP)
    endif()
    return()
endif()

set(TARNS_CMAKE_DIR ${CMAKE_INSTALL_LIBDIR}/cmake/tarns)
install(TARGETS tarns EXPORT tarnsTargets
    LIBRARY DESTINATION ${CMAKE_INSTALL_LIBDIR} COMPONENT library NAMELINK_COMPONENT development
    INCLUDES DESTINATION ${CMAKE_INSTALL_INCLUDEDIR})
install(DIRECTORY ${PROJECT_SOURCE_DIR}/include/ DESTINATION ${CMAKE_INSTALL_INCLUDEDIR} COMPONENT development
    FILES_MATCHING PATTERN "*.h" PATTERN "*.hpp")
install(EXPORT tarnsTargets NAMESPACE tarns:: DESTINATION ${TARNS_CMAKE_DIR} COMPONENT development)

configure_package_config_file(${CMAKE_CURRENT_LIST_DIR}/tarnsConfig.cmake.in ${PROJECT_BINARY_DIR}/tarnsConfig.cmake
    INSTALL_DESTINATION ${TARNS_CMAKE_DIR})
write_basic_package_version_file(${PROJECT_BINARY_DIR}/tarnsConfigVersion.cmake COMPATIBILITY SameMajorVersion)
install(FILES ${PROJECT_BINARY_DIR}/tarnsConfig.cmake ${PROJECT_BINARY_DIR}/tarnsConfigVersion.cmake
    DESTINATION ${TARNS_CMAKE_DIR} COMPONENT development)

# The paths in tarns.pc are relative to the file, so that an installed tree can be moved.
file(RELATIVE_PATH TARNS_PC_PREFIX /${CMAKE_INSTALL_LIBDIR}/pkgconfig /)
string(REGEX REPLACE "/$" "" TARNS_PC_PREFIX "${TARNS_PC_PREFIX}")
configure_file(${CMAKE_CURRENT_LIST_DIR}/tarns.pc.in ${PROJECT_BINARY_DIR}/tarns.pc @ONLY)
install(FILES ${PROJECT_BINARY_DIR}/tarns.pc DESTINATION ${CMAKE_INSTALL_LIBDIR}/pkgconfig COMPONENT development)
