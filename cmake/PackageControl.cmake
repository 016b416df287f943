# CPack runs this when the files of all packages lie in their places, before it packs them: what the package of the library
# says about other packages follows from the libraries in it.
set(root ${CPACK_TEMPORARY_DIRECTORY}/library)
set(control ${CPACK_TOPLEVEL_DIRECTORY}/control)

# What they need. On a 64-bit system 32-bit libraries are in packages of other names than on a 32-bit one, from the same
# sources and with the same symbols.
file(GLOB_RECURSE libraries ${root}/*.so.${CPACK_PACKAGE_VERSION})
file(WRITE ${CPACK_TEMPORARY_DIRECTORY}/debian/control "Source: tarns\n\nPackage: libtarns\nArchitecture: any\n")
file(MAKE_DIRECTORY ${CPACK_TEMPORARY_DIRECTORY}/DEBIAN) # says that packages are put together here
execute_process(COMMAND dpkg-shlibdeps -O ${libraries} WORKING_DIRECTORY ${CPACK_TEMPORARY_DIRECTORY}
    OUTPUT_VARIABLE depends OUTPUT_STRIP_TRAILING_WHITESPACE COMMAND_ERROR_IS_FATAL ANY)
file(REMOVE_RECURSE ${CPACK_TEMPORARY_DIRECTORY}/debian ${CPACK_TEMPORARY_DIRECTORY}/DEBIAN)
string(REGEX REPLACE "^shlibs:Depends=" "" depends "${depends}")
if(CPACK_DEBIAN_PACKAGE_ARCHITECTURE STREQUAL "i386")
    string(REGEX REPLACE "lib32([a-z])" "lib\\1" depends "${depends}")
    string(REPLACE "libc6-i386" "libc6" depends "${depends}")
endif()
set(CPACK_DEBIAN_LIBRARY_PACKAGE_DEPENDS "${depends}")

# What packages of programs need of them: for each library once, in however many folders it is.
file(GLOB names RELATIVE ${root}/usr/${CPACK_TARNS_LIBDIR} ${root}/usr/${CPACK_TARNS_LIBDIR}/*.so.${CPACK_PACKAGE_VERSION_MAJOR})
list(TRANSFORM names REPLACE "[.]so[.]" " ")
list(TRANSFORM names APPEND " libtarns (>= ${CPACK_PACKAGE_VERSION})\n")
list(JOIN names "" shlibs)
file(WRITE ${control}/shlibs "${shlibs}")
file(WRITE ${control}/triggers "activate-noawait ldconfig\n")
set(CPACK_DEBIAN_LIBRARY_PACKAGE_CONTROL_EXTRA ${control}/shlibs ${control}/triggers)
