# Run by CPack between installing into its folder and packing that.
if(CPACK_GENERATOR STREQUAL "DEB")
    include("${CPACK_ORTAKIT_SOURCE}/packaging/debian/Finish.cmake")
else()
    include("${CPACK_ORTAKIT_SOURCE}/packaging/archive/Finish.cmake")
endif()
