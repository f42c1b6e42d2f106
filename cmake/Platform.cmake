# Selects the system whose services the program uses, and finds the libraries for them.
#
# linux uses the services of Linux desktops; generic uses only Qt and standard C++. A layer that
# depends on the system has a folder of each name; both define the same functions and classes.
if(CMAKE_SYSTEM_NAME STREQUAL "Linux")
    set(default_platform linux)
else()
    set(default_platform generic)
endif()
set(WUFFER_PLATFORM ${default_platform} CACHE STRING
    "The system whose services the program uses: linux, or generic for any other")
set_property(CACHE WUFFER_PLATFORM PROPERTY STRINGS linux generic)

if(WUFFER_PLATFORM STREQUAL "linux")
    set(WUFFER_FOR_LINUX ON)
    find_package(Qt6 6.4 REQUIRED COMPONENTS DBus)
    pkg_check_modules(Xcb REQUIRED IMPORTED_TARGET xcb)
    pkg_check_modules(XcbScreenSaver REQUIRED IMPORTED_TARGET xcb-screensaver)
    set(WUFFER_PLATFORM_LIBRARIES Qt6::DBus PkgConfig::Xcb PkgConfig::XcbScreenSaver)
elseif(WUFFER_PLATFORM STREQUAL "generic")
    set(WUFFER_FOR_LINUX OFF)
    set(WUFFER_PLATFORM_LIBRARIES)
else()
    message(FATAL_ERROR "WUFFER_PLATFORM is \"${WUFFER_PLATFORM}\"; it must be linux or generic.")
endif()
