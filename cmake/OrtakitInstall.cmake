# Where an installation has what, below its prefix, and how its parts are called. packaging/CMakeLists.txt has the rules.
#
# Components: runtime (the program and what a desktop wants of it), module (the plug-in with tools and help, for hosts),
# dev (what modules and hosts are built against), doc.
set(CMAKE_INSTALL_DOCDIR "share/doc/ortakit" CACHE PATH "Documents, below the prefix")
include(GNUInstallDirs)

# Libraries that are nobody else's business: the module and the host.
set(ORTAKIT_INSTALL_LIBDIR "${CMAKE_INSTALL_LIBDIR}/ortakit")
set(ORTAKIT_INSTALL_DATADIR "${CMAKE_INSTALL_DATADIR}/ortakit")

# The same two from the folder of the program, which finds them wherever the installation is moved to.
file(RELATIVE_PATH ORTAKIT_LIBDIR_FROM_PROGRAM "${CMAKE_INSTALL_FULL_BINDIR}"
     "${CMAKE_INSTALL_FULL_LIBDIR}/ortakit")
file(RELATIVE_PATH ORTAKIT_DATADIR_FROM_PROGRAM "${CMAKE_INSTALL_FULL_BINDIR}"
     "${CMAKE_INSTALL_FULL_DATADIR}/ortakit")

# In the build folder, too, nothing says where it stands: the same sources give the same bytes in every folder.
set(CMAKE_BUILD_RPATH_USE_ORIGIN ON)
