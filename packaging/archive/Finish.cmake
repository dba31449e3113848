# Makes of what was installed below CPACK_TEMPORARY_DIRECTORY a folder that runs wherever it is unpacked: Qt and what else
# not every desktop has comes along, with the licences of each package it was taken from.
find_program(patchelf patchelf REQUIRED)
find_program(dpkg_query dpkg-query REQUIRED)

file(GLOB root "${CPACK_TEMPORARY_DIRECTORY}/ortakit-*")
if(NOT EXISTS "${root}/bin/ortakit")
    set(root "${CPACK_TEMPORARY_DIRECTORY}")
endif()
set(libraries "${root}/${CPACK_ORTAKIT_LIBDIR}")
set(plugins "${libraries}/plugins")

# What stays the system's: the C and C++ runtimes, what speaks to the screen, and fonts, whose settings are the system's.
set(of_system "^(ld-linux.*|lib(c|m|dl|rt|pthread|resolv|util|stdc[+][+]|gcc_s|GL|GLX|GLdispatch|EGL|OpenGL|X11|X11-xcb|xcb|fontconfig|freetype|expat|z|udev|dbus-1|cups))[.]so")

# The plugins that a workbench on a screen, and one without, ask for.
foreach(plugin platforms/libqxcb platforms/libqoffscreen platforms/libqminimal
               platforminputcontexts/libcomposeplatforminputcontextplugin
               platforminputcontexts/libibusplatforminputcontextplugin iconengines/libqsvgicon imageformats/libqsvg
               imageformats/libqjpeg imageformats/libqgif imageformats/libqico imageformats/libqtiff
               imageformats/libqwebp printsupport/libcupsprintersupport)
    get_filename_component(kind "${plugin}" DIRECTORY)
    if(EXISTS "${CPACK_ORTAKIT_QT_PLUGINS}/${plugin}.so")
        file(COPY "${CPACK_ORTAKIT_QT_PLUGINS}/${plugin}.so" DESTINATION "${plugins}/${kind}")
        list(APPEND taken "${CPACK_ORTAKIT_QT_PLUGINS}/${plugin}.so")
    endif()
endforeach()

# What the toolkit says itself, on buttons and in its file dialogs, in the languages of the program.
foreach(language de es fr it)
    set(texts "${CPACK_ORTAKIT_QT_TRANSLATIONS}/qtbase_${language}.qm")
    if(EXISTS "${texts}")
        file(COPY "${texts}" DESTINATION "${libraries}/translations")
        list(APPEND taken "${texts}")
    endif()
endforeach()

file(GLOB_RECURSE copied "${plugins}/*.so")
file(GET_RUNTIME_DEPENDENCIES
    EXECUTABLES "${root}/bin/ortakit"
    LIBRARIES "${libraries}/Ortakit.so" "${libraries}/libortakit_host.so" ${copied}
    RESOLVED_DEPENDENCIES_VAR found
    UNRESOLVED_DEPENDENCIES_VAR missing
    PRE_EXCLUDE_REGEXES "${of_system}"
    POST_EXCLUDE_REGEXES "${root}/.*")
if(missing)
    message(FATAL_ERROR "not found on this machine: ${missing}")
endif()
foreach(library ${found})
    file(COPY "${library}" DESTINATION "${libraries}" FOLLOW_SYMLINK_CHAIN)
endforeach()

# A library's own dependencies are looked for by the program's old kind of path, which counts for all that it loads, and by
# none of the libraries' newer ones.
execute_process(COMMAND "${patchelf}" --print-rpath "${root}/bin/ortakit" OUTPUT_VARIABLE path
                OUTPUT_STRIP_TRAILING_WHITESPACE COMMAND_ERROR_IS_FATAL ANY)
execute_process(COMMAND "${patchelf}" --force-rpath --set-rpath "${path}" "${root}/bin/ortakit"
                COMMAND_ERROR_IS_FATAL ANY)
file(WRITE "${root}/bin/qt.conf" "[Paths]\nPrefix = ..\nPlugins = ${CPACK_ORTAKIT_LIBDIR}/plugins\n"
                                 "Translations = ${CPACK_ORTAKIT_LIBDIR}/translations\n")

# The licences, and which package's sources each file was built of.
set(table "")
foreach(file ${found} ${taken})
    # On a system whose /lib is a link, the packages' lists have either name.
    file(REAL_PATH "${file}" real)
    string(REGEX REPLACE "^/usr/lib/" "/lib/" short "${real}")
    execute_process(COMMAND "${dpkg_query}" -S "${real}" "${short}" OUTPUT_VARIABLE owner ERROR_QUIET)
    string(REGEX MATCH "^[^:,\n]+" package "${owner}")
    if(NOT package)
        message(FATAL_ERROR "${file} is of no package, so there is no licence to go with it")
    endif()
    get_filename_component(name "${real}" NAME)
    execute_process(COMMAND "${dpkg_query}" -W -f "\${source:Package} \${source:Version}" "${package}"
                    OUTPUT_VARIABLE source COMMAND_ERROR_IS_FATAL ANY)
    string(APPEND table "${name}: ${package}, of the source package ${source}\n")
    file(COPY "/usr/share/doc/${package}/copyright" DESTINATION "${root}/share/doc/ortakit/libraries/${package}"
         FOLLOW_SYMLINK_CHAIN)
endforeach()
file(WRITE "${root}/share/doc/ortakit/libraries/README"
"These libraries are Debian's, unchanged. Each folder has the licence of one; the sources are Debian's source packages of
these versions. Any of them may be replaced by one of your own in ${CPACK_ORTAKIT_LIBDIR}.\n\n${table}")
configure_file("${CPACK_ORTAKIT_SOURCE}/packaging/archive/README" "${root}/README" COPYONLY)
configure_file("${CPACK_ORTAKIT_SOURCE}/packaging/archive/desktop" "${root}/desktop" COPYONLY)

# Each file has the time of the release, so that the archive has the same bytes each time.
if(DEFINED ENV{SOURCE_DATE_EPOCH})
    execute_process(COMMAND find "${root}" -exec touch --no-dereference --date=@$ENV{SOURCE_DATE_EPOCH} "{}" "+"
                    COMMAND_ERROR_IS_FATAL ANY)
endif()
