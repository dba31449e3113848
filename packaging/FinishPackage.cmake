# Run by CPack between installing into its folder and packing that.
if(CPACK_GENERATOR STREQUAL "DEB")
    include("${CPACK_ORTAKIT_SOURCE}/packaging/debian/Finish.cmake")
else()
    include("${CPACK_ORTAKIT_SOURCE}/packaging/archive/Finish.cmake")
endif()

# Whatever the umask of who packs.
execute_process(COMMAND chmod -R u=rwX,go=rX "${CPACK_TEMPORARY_DIRECTORY}" COMMAND_ERROR_IS_FATAL ANY)
