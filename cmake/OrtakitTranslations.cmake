find_package(Qt6 6.4 REQUIRED COMPONENTS LinguistTools)

# The languages that texts are translated into, beside the English of the sources. Another one is named here and in
# host/kernel/languages/Languages.cpp; scripts/translate makes its files.
set(ORTAKIT_LANGUAGES de fr es it)

# ortakit_translations(TARGET CATALOGUE)
#
# Compiles resources/translations/CATALOGUE_<language>.ts and puts what comes of it into the target, as the resources
# ":/translations/CATALOGUE_<language>.qm".
function(ortakit_translations target catalogue)
    set(folder "${CMAKE_BINARY_DIR}/translations")
    file(MAKE_DIRECTORY "${folder}")
    set(entries "")
    set(compiled "")
    foreach(language ${ORTAKIT_LANGUAGES})
        set(source "${CMAKE_SOURCE_DIR}/resources/translations/${catalogue}_${language}.ts")
        set(result "${folder}/${catalogue}_${language}.qm")
        add_custom_command(
            OUTPUT "${result}"
            COMMAND Qt6::lrelease -silent "${source}" -qm "${result}"
            DEPENDS "${source}")
        list(APPEND compiled "${result}")
        string(APPEND entries "        <file alias=\"${catalogue}_${language}.qm\">${result}</file>\n")
    endforeach()
    file(CONFIGURE OUTPUT "${folder}/${catalogue}.qrc" @ONLY
         CONTENT "<RCC>\n    <qresource prefix=\"/translations\">\n@entries@    </qresource>\n</RCC>\n")
    add_custom_target(ortakit_${catalogue}_texts DEPENDS ${compiled})
    add_library(ortakit_${catalogue}_translations OBJECT "${folder}/${catalogue}.qrc")
    set_property(SOURCE "${folder}/${catalogue}.qrc" PROPERTY OBJECT_DEPENDS "${compiled}")
    target_link_libraries(ortakit_${catalogue}_translations PRIVATE Qt6::Core)
    add_dependencies(ortakit_${catalogue}_translations ortakit_${catalogue}_texts)
    target_link_libraries(${target} PRIVATE ortakit_${catalogue}_translations)
endfunction()
