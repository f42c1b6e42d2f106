# The Debian package, which tools/package builds.
set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGE_NAME wuffer)
set(CPACK_PACKAGE_CONTACT "${WUFFER_MAINTAINER}")
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "countdown timers for the desktop")
set(CPACK_PACKAGE_DESCRIPTION_FILE "${CMAKE_CURRENT_LIST_DIR}/description")
set(CPACK_STRIP_FILES ON)
# With DESTDIR, paths inside the installed files begin with the final prefix.
set(CPACK_SET_DESTDIR ON)
set(CPACK_INSTALL_PREFIX /usr)
set(CPACK_INSTALL_DEFAULT_DIRECTORY_PERMISSIONS
    OWNER_READ OWNER_WRITE OWNER_EXECUTE GROUP_READ GROUP_EXECUTE WORLD_READ WORLD_EXECUTE)

set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_RELEASE 1)
set(CPACK_DEBIAN_PACKAGE_SECTION utils)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
# The typeface of the display; the other one is what the display falls back to.
set(CPACK_DEBIAN_PACKAGE_DEPENDS "fonts-courier-prime | fonts-urw-base35")
# In this order: the session bus, a notification service, a sound server, the translations of Qt's
# own texts, windows without an X server, and the command that opens the web page.
string(JOIN ", " CPACK_DEBIAN_PACKAGE_RECOMMENDS
    "default-dbus-session-bus | dbus-session-bus"
    "notification-daemon"
    "pipewire-pulse | pulseaudio"
    "qt6-translations-l10n"
    "qt6-wayland"
    "xdg-utils")

set(CPACK_PRE_BUILD_SCRIPTS "${CMAKE_CURRENT_LIST_DIR}/finish.cmake")
set(CPACK_WUFFER_DEBIAN_FOLDER "${CMAKE_CURRENT_LIST_DIR}")
set(CPACK_WUFFER_LICENSE "${PROJECT_SOURCE_DIR}/LICENSE")
include(CPack)
