# Makes Debian packages of what was installed below CPACK_TEMPORARY_DIRECTORY, a folder a package: the documents that
# each must have, compressed where the policy wants it, and what lintian is asked to overlook.
find_program(gzip gzip REQUIRED)
find_program(strip strip REQUIRED)
set(here "${CPACK_ORTAKIT_SOURCE}/packaging/debian")

# Neither the name nor the time of the file that was compressed, so that the bytes are the same each time.
function(compress)
    execute_process(COMMAND "${gzip}" -9nf ${ARGN} COMMAND_ERROR_IS_FATAL ANY)
endfunction()

# The time of the release: what SOURCE_DATE_EPOCH says, else now.
string(TIMESTAMP date "%a, %d %b %Y %H:%M:%S +0000" UTC)
set(version "${CPACK_PACKAGE_VERSION}-${CPACK_DEBIAN_PACKAGE_RELEASE}")

file(GLOB roots "${CPACK_TEMPORARY_DIRECTORY}/*/usr")
foreach(root ${roots})
    get_filename_component(group "${root}" DIRECTORY)
    get_filename_component(group "${group}" NAME)
    string(TOUPPER "${group}" group)
    set(package "${CPACK_DEBIAN_${group}_PACKAGE_NAME}")

    set(documents "${root}/share/doc/${package}")
    configure_file("${here}/changelog.in" "${documents}/changelog.Debian" @ONLY)
    compress("${documents}/changelog.Debian")
    file(COPY "${here}/copyright" DESTINATION "${documents}")
    file(REMOVE "${documents}/LICENSE")
    if(EXISTS "${documents}/CHANGELOG.md")
        file(RENAME "${documents}/CHANGELOG.md" "${documents}/changelog")
        compress("${documents}/changelog")
    endif()

    # The compiler's name is of no use to anybody.
    file(GLOB programs "${root}/bin/*" "${root}/lib/*/ortakit/*.so")
    foreach(program ${programs})
        execute_process(COMMAND "${strip}" --remove-section=.comment "${program}" COMMAND_ERROR_IS_FATAL ANY)
    endforeach()

    file(GLOB_RECURSE pages "${root}/share/man/*.[1-8]")
    if(pages)
        compress(${pages})
    endif()
    if(EXISTS "${here}/${package}.lintian-overrides")
        configure_file("${here}/${package}.lintian-overrides" "${root}/share/lintian/overrides/${package}" COPYONLY)
    endif()
endforeach()
