# What CPack packs: Debian packages (a program with its module, ortakit-dev, ortakit-doc) and an archive that runs from
# wherever it is unpacked. scripts/package makes both.
set(ORTAKIT_MAINTAINER "Ortakit developers <developers@ortakit.example>" CACHE STRING "Whom the packages name")

set(CPACK_PACKAGE_NAME ortakit)
set(CPACK_PACKAGE_VERSION "${PROJECT_VERSION}")
set(CPACK_PACKAGE_CONTACT "${ORTAKIT_MAINTAINER}")
set(CPACK_RESOURCE_FILE_LICENSE "${CMAKE_SOURCE_DIR}/LICENSE")
set(CPACK_GENERATOR DEB TXZ)
set(CPACK_STRIP_FILES ON)
set(CPACK_PACKAGE_FILE_NAME "ortakit-${PROJECT_VERSION}-linux-${CMAKE_SYSTEM_PROCESSOR}")
# Whatever the umask of who packs.
set(CPACK_INSTALL_DEFAULT_DIRECTORY_PERMISSIONS OWNER_READ OWNER_WRITE OWNER_EXECUTE GROUP_READ GROUP_EXECUTE
                                                WORLD_READ WORLD_EXECUTE)
# Generator by generator: the prefix, and what is done to the files before they are packed.
set(CPACK_PROJECT_CONFIG_FILE "${CMAKE_CURRENT_LIST_DIR}/GeneratorOptions.cmake")
set(CPACK_ORTAKIT_SOURCE "${CMAKE_SOURCE_DIR}")
set(CPACK_ORTAKIT_LIBDIR "${ORTAKIT_INSTALL_LIBDIR}")
set(CPACK_ORTAKIT_QT_PLUGINS "${QT6_INSTALL_PREFIX}/${QT6_INSTALL_PLUGINS}")
set(CPACK_ORTAKIT_QT_TRANSLATIONS "${QT6_INSTALL_PREFIX}/${QT6_INSTALL_TRANSLATIONS}")
set(CPACK_PRE_BUILD_SCRIPTS "${CMAKE_CURRENT_LIST_DIR}/FinishPackage.cmake")

set(CPACK_COMPONENTS_ALL runtime module dev doc)
set(CPACK_COMPONENTS_GROUPING ONE_PER_GROUP)
set(CPACK_COMPONENT_RUNTIME_GROUP program)
set(CPACK_COMPONENT_MODULE_GROUP program)
set(CPACK_COMPONENT_DEV_GROUP dev)
set(CPACK_COMPONENT_DOC_GROUP doc)

include(debian/Packages.cmake)
include(CPack)
