# Precompiles the headers that most files include, which makes a build several times as fast. A file
# then compiles even if it does not include all that it uses. Therefore only the dev preset does so;
# the others detect missing includes.
option(WUFFER_PRECOMPILED_HEADERS "Compile the headers that most files include only once" OFF)

# Defines a set of precompiled headers.
function(wuffer_precompiled_headers set)
    cmake_parse_arguments(PARSE_ARGV 1 arg "" "" "LINKS;HEADERS")
    if(NOT WUFFER_PRECOMPILED_HEADERS)
        return()
    endif()
    # CMake precompiles headers for a target only, so this library exists just for that.
    set(library "wuffer_precompiled_${set}")
    file(WRITE "${CMAKE_CURRENT_BINARY_DIR}/${library}.cpp" "")
    add_library(${library} OBJECT "${CMAKE_CURRENT_BINARY_DIR}/${library}.cpp")
    set_target_properties(${library} PROPERTIES AUTOMOC OFF AUTORCC OFF)
    target_link_libraries(${library} PRIVATE wuffer_build_options ${arg_LINKS})
    list(TRANSFORM arg_HEADERS REPLACE "(.+)" "<\\1>")
    target_precompile_headers(${library} PRIVATE ${arg_HEADERS})
endfunction()

# Makes a target use a set. Its files must be compiled with the same options as the set.
function(wuffer_use_precompiled_headers target set)
    if(WUFFER_PRECOMPILED_HEADERS)
        target_precompile_headers(${target} REUSE_FROM "wuffer_precompiled_${set}")
        # Lets ccache see which headers such a file includes.
        target_compile_options(${target} PRIVATE $<$<CXX_COMPILER_ID:GNU>:-fpch-preprocess>)
    endif()
endfunction()

set(WUFFER_COMMON_CORE_HEADERS
    algorithm array cmath functional limits memory optional utility vector
    QCoreApplication QHash QList QObject QPointer QString QStringList QVariant)
set(WUFFER_COMMON_WIDGETS_HEADERS
    ${WUFFER_COMMON_CORE_HEADERS}
    QAction QApplication QIcon QKeyEvent QMainWindow QMenu QPainter QWidget QWindow)

# One set for targets without windows, one for targets with them.
wuffer_precompiled_headers(core LINKS Qt6::Core HEADERS ${WUFFER_COMMON_CORE_HEADERS})
wuffer_precompiled_headers(widgets LINKS Qt6::Widgets HEADERS ${WUFFER_COMMON_WIDGETS_HEADERS})
