# Compiles the headers that most files include once for all of them, which makes a build several
# times as fast. A file then sees more than it includes. That is why only the build that is made
# most often does so: every other one finds out what includes too little.
option(WUFFER_PRECOMPILED_HEADERS "Compile the headers that most files include only once" OFF)

# Defines a set of precompiled headers.
function(wuffer_precompiled_headers set)
    cmake_parse_arguments(PARSE_ARGV 1 arg "" "" "LINKS;HEADERS")
    if(NOT WUFFER_PRECOMPILED_HEADERS)
        return()
    endif()
    # Headers are compiled for a library only, so here is one of nothing else.
    set(library "wuffer_precompiled_${set}")
    file(WRITE "${CMAKE_CURRENT_BINARY_DIR}/${library}.cpp" "")
    add_library(${library} OBJECT "${CMAKE_CURRENT_BINARY_DIR}/${library}.cpp")
    set_target_properties(${library} PROPERTIES AUTOMOC OFF AUTORCC OFF)
    target_link_libraries(${library} PRIVATE wuffer_build_options ${arg_LINKS})
    list(TRANSFORM arg_HEADERS REPLACE "(.+)" "<\\1>")
    target_precompile_headers(${library} PRIVATE ${arg_HEADERS})
endfunction()

# Lets a target use a set. Its files must be compiled like all others of the project.
function(wuffer_use_precompiled_headers target set)
    if(WUFFER_PRECOMPILED_HEADERS)
        target_precompile_headers(${target} REUSE_FROM "wuffer_precompiled_${set}")
        # Lets ccache look at what such a file includes.
        target_compile_options(${target} PRIVATE $<$<CXX_COMPILER_ID:GNU>:-fpch-preprocess>)
    endif()
endfunction()

set(WUFFER_COMMON_CORE_HEADERS
    algorithm array cmath functional limits memory optional utility vector
    QCoreApplication QHash QList QObject QPointer QString QStringList QVariant)
set(WUFFER_COMMON_WIDGETS_HEADERS
    ${WUFFER_COMMON_CORE_HEADERS}
    QAction QApplication QIcon QKeyEvent QMainWindow QMenu QPainter QWidget QWindow)

# For what knows nothing of windows, and for what does.
wuffer_precompiled_headers(core LINKS Qt6::Core HEADERS ${WUFFER_COMMON_CORE_HEADERS})
wuffer_precompiled_headers(widgets LINKS Qt6::Widgets HEADERS ${WUFFER_COMMON_WIDGETS_HEADERS})
