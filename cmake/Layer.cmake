# Defines a layer: the library wuffer_<name> of the current folder, which is src/<name>.
#
#   wuffer_layer(<name> SOURCES <file>... LINKS <library>... [PRIVATE_LINKS <library>...]
#       [LINUX_SOURCES <file>...] [GENERIC_SOURCES <file>...] PRECOMPILED_HEADERS <set>)
#
# WUFFER_PLATFORM selects LINUX_SOURCES or GENERIC_SOURCES.
# Headers are included as "<name>/<header>". Each layer has its own include folder, which only the
# targets that link the layer see. So no layer can include a header of one that it does not link.
function(wuffer_layer name)
    cmake_parse_arguments(PARSE_ARGV 1 arg "" "PRECOMPILED_HEADERS"
        "SOURCES;LINKS;PRIVATE_LINKS;LINUX_SOURCES;GENERIC_SOURCES")
    string(TOUPPER "${WUFFER_PLATFORM}" system)
    set(target "wuffer_${name}")
    set(include_folder "${PROJECT_BINARY_DIR}/layers/${name}")
    file(MAKE_DIRECTORY "${include_folder}")
    file(CREATE_LINK "${CMAKE_CURRENT_SOURCE_DIR}" "${include_folder}/${name}" SYMBOLIC)

    add_library(${target} ${arg_SOURCES} ${arg_${system}_SOURCES})
    target_include_directories(${target} PUBLIC "${include_folder}")
    target_link_libraries(${target}
        PUBLIC ${arg_LINKS} wuffer_build_options
        PRIVATE ${arg_PRIVATE_LINKS})
    set_target_properties(${target} PROPERTIES
        AUTOUIC ON
        AUTOUIC_SEARCH_PATHS "${PROJECT_SOURCE_DIR}/resources")
    wuffer_use_precompiled_headers(${target} "${arg_PRECOMPILED_HEADERS}")
endfunction()
