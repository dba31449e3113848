# The control fields of the Debian packages. What Finish.cmake adds are the files that only such packages have.
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_RELEASE 1)
set(CPACK_DEBIAN_PACKAGE_MAINTAINER "${ORTAKIT_MAINTAINER}")
set(CPACK_DEBIAN_COMPRESSION_TYPE xz)
set(CPACK_DEBIAN_PACKAGE_CONTROL_STRICT_PERMISSION ON)

set(CPACK_DEBIAN_PROGRAM_PACKAGE_NAME ortakit)
set(CPACK_DEBIAN_PROGRAM_PACKAGE_SECTION graphics)
set(CPACK_DEBIAN_PROGRAM_PACKAGE_SHLIBDEPS ON)
# The program's own library comes with it.
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS_PRIVATE_DIRS "${CMAKE_LIBRARY_OUTPUT_DIRECTORY}")
set(CPACK_DEBIAN_PROGRAM_PACKAGE_RECOMMENDS
    "fonts-dejavu-core, qt6-image-formats-plugins, qt6-translations-l10n, qt6-wayland, xdg-utils")
set(CPACK_DEBIAN_PROGRAM_PACKAGE_SUGGESTS "ortakit-doc")
set(CPACK_DEBIAN_PROGRAM_DESCRIPTION "CAD workbench for DXF drawings with Lisp tools
Views, drafts and revises DXF drawings of every version from R12 to 2018, as
text and in the binary form; what no command touched is written back byte for
byte. Tools with dialogs break lines, number and mask texts, replace blocks,
bring attributes to tables and back, and merge and set up sheets.

Programs in Lisp draft with dialogs of their own, recorded sessions are played
over many drawings without a window, and drawings become PNG, SVG and PDF.")

set(CPACK_DEBIAN_DEV_PACKAGE_NAME ortakit-dev)
set(CPACK_DEBIAN_DEV_PACKAGE_SECTION libdevel)
set(CPACK_DEBIAN_DEV_PACKAGE_DEPENDS "ortakit (= ${PROJECT_VERSION}-${CPACK_DEBIAN_PACKAGE_RELEASE}), qt6-base-dev")
set(CPACK_DEBIAN_DEV_DESCRIPTION "CAD workbench with Lisp tools (development files)
Headers of what a CAD host offers to the plug-in module of Ortakit, and the
files by which CMake finds them: for hosts that load the module.")

set(CPACK_DEBIAN_DOC_PACKAGE_NAME ortakit-doc)
set(CPACK_DEBIAN_DOC_PACKAGE_SECTION doc)
set(CPACK_DEBIAN_DOC_PACKAGE_ARCHITECTURE all)
set(CPACK_DEBIAN_DOC_DESCRIPTION "CAD workbench with Lisp tools (documents)
The manual for browsers, and as text in Markdown the Lisp reference, recorded
sessions, dialog files, the command line and what hosts have to supply.")
