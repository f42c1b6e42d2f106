# Warnings, defines and instrumentation that every target of the project shares.
add_library(wuffer_build_options INTERFACE)

target_compile_definitions(wuffer_build_options INTERFACE
    QT_NO_CAST_FROM_ASCII
    QT_NO_CAST_TO_ASCII
    QT_NO_URL_CAST_FROM_STRING
    QT_NO_FOREACH
    QT_NO_KEYWORDS
    QT_STRICT_ITERATORS
    QT_NO_NARROWING_CONVERSIONS_IN_CONNECT
    QT_DISABLE_DEPRECATED_BEFORE=0x060400)

if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU")
    target_compile_options(wuffer_build_options INTERFACE
        -Wall -Wextra -Wpedantic -Wshadow -Wconversion -Wsign-conversion -Wold-style-cast
        -Woverloaded-virtual -Wnon-virtual-dtor -Wcast-qual -Wformat=2 -Wnull-dereference
        -Wduplicated-cond -Wduplicated-branches -Wlogical-op -Wextra-semi -Wsuggest-override
        -Wdouble-promotion -Wimplicit-fallthrough -Wzero-as-null-pointer-constant)
    # With optimisation, GCC warns of null pointers in Qt's headers where there are none.
    target_compile_options(wuffer_build_options INTERFACE
        $<$<CONFIG:Release>:-Wno-null-dereference>)
elseif(NOT MSVC)
    target_compile_options(wuffer_build_options INTERFACE -Wall -Wextra -Wpedantic -Wshadow)
endif()

if(WUFFER_WARNINGS_AS_ERRORS AND NOT MSVC)
    target_compile_options(wuffer_build_options INTERFACE -Werror)
endif()

# Hardening: a memory error ends the program, so that a crafted file, such as a sound, cannot run
# code. The sanitizers bring checks of their own, which these would disturb.
if(CMAKE_SYSTEM_NAME STREQUAL "Linux" AND NOT WUFFER_SANITIZE)
    include(CheckPIESupported)
    check_pie_supported(LANGUAGES CXX)
    set(CMAKE_POSITION_INDEPENDENT_CODE ON)
    target_compile_options(wuffer_build_options INTERFACE
        -fstack-protector-strong
        # Has no effect without optimisation.
        $<$<NOT:$<CONFIG:Debug>>:-U_FORTIFY_SOURCE> $<$<NOT:$<CONFIG:Debug>>:-D_FORTIFY_SOURCE=2>)
    target_link_options(wuffer_build_options INTERFACE -Wl,-z,relro -Wl,-z,now)
endif()

if(WUFFER_SANITIZE)
    set(sanitizers -fsanitize=address,undefined -fno-sanitize-recover=all -fno-omit-frame-pointer)
    target_compile_options(wuffer_build_options INTERFACE ${sanitizers})
    target_link_options(wuffer_build_options INTERFACE ${sanitizers})
    # With the instrumentation, GCC warns of null pointers that cannot occur.
    target_compile_options(wuffer_build_options INTERFACE
        $<$<CXX_COMPILER_ID:GNU>:-Wno-null-dereference>)
endif()

if(WUFFER_FUZZERS)
    target_compile_options(wuffer_build_options INTERFACE -fsanitize=fuzzer-no-link)
endif()

if(WUFFER_COVERAGE)
    target_compile_options(wuffer_build_options INTERFACE --coverage)
    target_link_options(wuffer_build_options INTERFACE --coverage)
endif()

# The parts of the program as shared libraries, so that test programs hold no copies of them.
if(BUILD_SHARED_LIBS)
    # A program of such a build that is installed loads its libraries from the build folder.
    set(CMAKE_LIBRARY_OUTPUT_DIRECTORY "${PROJECT_BINARY_DIR}/libraries")
    set(CMAKE_INSTALL_RPATH "${CMAKE_LIBRARY_OUTPUT_DIRECTORY}")
    set(CMAKE_BUILD_WITH_INSTALL_RPATH ON)
    # Makes a program and its libraries share the static members of templates, such as Service.
    set(CMAKE_ENABLE_EXPORTS ON)
    # Each library must link all that it uses. Clang links its sanitizers into programs only.
    if(CMAKE_SYSTEM_NAME STREQUAL "Linux" AND NOT WUFFER_SANITIZE)
        string(APPEND CMAKE_SHARED_LINKER_FLAGS " -Wl,-z,defs")
    endif()
endif()
