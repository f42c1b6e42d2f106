# The translations: translations/wuffer_<language>.ts, which lrelease compiles into the program.
find_package(Qt6 6.4 REQUIRED COMPONENTS LinguistTools)

# The only list of the languages beside English, which is the language of the sources.
set(WUFFER_LANGUAGES de es fr it ja nl pl pt_BR)
list(TRANSFORM WUFFER_LANGUAGES PREPEND "${PROJECT_SOURCE_DIR}/translations/wuffer_"
    OUTPUT_VARIABLE WUFFER_TRANSLATIONS)
list(TRANSFORM WUFFER_TRANSLATIONS APPEND ".ts")

# Reads the texts out of the sources into the .ts files that follow. Line numbers would change with
# every edit of a source. With the heuristic for numbers, one row of a table would take over the
# translation of another.
set(WUFFER_EXTRACT_TEXTS
    "$<TARGET_FILE:Qt6::lupdate>" -silent -locations none -no-obsolete -disable-heuristic number
    -extensions cpp,h,ui
    "${PROJECT_SOURCE_DIR}/src" "${PROJECT_SOURCE_DIR}/resources" -ts)
# The files that it reads.
file(GLOB_RECURSE WUFFER_FILES_WITH_TEXTS CONFIGURE_DEPENDS
    "${PROJECT_SOURCE_DIR}/src/*.cpp" "${PROJECT_SOURCE_DIR}/src/*.h"
    "${PROJECT_SOURCE_DIR}/resources/*.ui")

# Brings the .ts files up to date with the sources.
add_custom_target(update_translations
    COMMAND ${WUFFER_EXTRACT_TEXTS} ${WUFFER_TRANSLATIONS}
    COMMENT "Updating the translations"
    VERBATIM)

# Compiles a .ts file; a damaged one ends the build.
function(wuffer_compile_translation ts qm)
    add_custom_command(OUTPUT "${qm}"
        COMMAND Qt6::lrelease -silent "${ts}" -qm "${qm}"
        DEPENDS "${ts}"
        COMMENT "Compiling the translation ${qm}"
        VERBATIM)
endfunction()

# Compiles all translations into a target, as resources below :/translations. They are read from
# where they lie in the program, so they are not compressed.
function(wuffer_add_translations target)
    set(folder "${CMAKE_CURRENT_BINARY_DIR}/translations")
    set(entries)
    set(compiled)
    foreach(ts IN LISTS WUFFER_TRANSLATIONS)
        cmake_path(GET ts STEM name)
        wuffer_compile_translation("${ts}" "${folder}/${name}.qm")
        list(APPEND compiled "${folder}/${name}.qm")
        string(APPEND entries "        <file>${name}.qm</file>\n")
    endforeach()
    file(CONFIGURE OUTPUT "${folder}/translations.qrc" @ONLY CONTENT
"<RCC version=\"1.0\">
    <qresource prefix=\"/translations\">
@entries@    </qresource>
</RCC>
")
    set(source "${folder}/qrc_translations.cpp")
    add_custom_command(OUTPUT "${source}"
        COMMAND Qt6::rcc --no-compress --name translations --output "${source}"
            "${folder}/translations.qrc"
        DEPENDS "${folder}/translations.qrc" ${compiled}
        COMMENT "Making resources of the translations"
        VERBATIM)
    set_source_files_properties("${source}" PROPERTIES SKIP_AUTOGEN ON)
    target_sources(${target} PRIVATE "${source}")
endfunction()
