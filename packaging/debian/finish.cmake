# CPack runs this script. It brings the installed files into the form that Debian requires: a
# compressed manual pages and changelog, and the licence in a machine-readable file.
set(doc "${CPACK_TEMPORARY_INSTALL_DIRECTORY}/usr/share/doc/wuffer")
file(GLOB_RECURSE manuals "${CPACK_TEMPORARY_INSTALL_DIRECTORY}/usr/share/man/*.1")

# The text of the licence, as the value of a field: indented, with a dot for an empty line.
file(READ "${CPACK_WUFFER_LICENSE}" license)
if(NOT license MATCHES "\nCopyright \\(c\\) ([^\n]+)\n\n(.*)")
    message(FATAL_ERROR "${CPACK_WUFFER_LICENSE} has no copyright line")
endif()
set(copyright "${CMAKE_MATCH_1}")
string(STRIP "${CMAKE_MATCH_2}" license)
string(REPLACE "\n\n" "\n.\n" license "${license}")
string(REPLACE "\n" "\n " license " ${license}")
configure_file("${CPACK_WUFFER_DEBIAN_FOLDER}/copyright.in" "${doc}/copyright" @ONLY)
file(REMOVE "${doc}/LICENSE")

# The release date is the one in the heading of this version.
string(REPLACE "." "\\." version "${CPACK_PACKAGE_VERSION}")
file(STRINGS "${doc}/CHANGELOG.md" heading REGEX "^## ${version} \\(")
if(NOT heading MATCHES "\\(([0-9-]+)\\)$")
    message(FATAL_ERROR "CHANGELOG.md does not say when ${CPACK_PACKAGE_VERSION} was released")
endif()
execute_process(COMMAND date --utc --rfc-email --date "${CMAKE_MATCH_1}"
    OUTPUT_VARIABLE date OUTPUT_STRIP_TRAILING_WHITESPACE COMMAND_ERROR_IS_FATAL ANY)
configure_file("${CPACK_WUFFER_DEBIAN_FOLDER}/changelog.in" "${doc}/changelog.Debian" @ONLY)
file(RENAME "${doc}/CHANGELOG.md" "${doc}/changelog")

execute_process(
    COMMAND gzip --best --no-name "${doc}/changelog" "${doc}/changelog.Debian" ${manuals}
    COMMAND_ERROR_IS_FATAL ANY)
file(CHMOD "${doc}/copyright" PERMISSIONS OWNER_READ OWNER_WRITE GROUP_READ WORLD_READ)
