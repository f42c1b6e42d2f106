# Writes the metainfo, which software centres show, to the given file.
#
# The releases are taken from the headings of CHANGELOG.md. The web page and the screenshots are
# named only if their addresses are set: WUFFER_WEB_PAGE, and WUFFER_SCREENSHOTS_URL for a web
# folder with the same files as docs/screenshots.
function(wuffer_write_metainfo file)
    set(root "${CMAKE_CURRENT_FUNCTION_LIST_DIR}/..")
    wuffer_metainfo_releases(releases "${root}/CHANGELOG.md")
    set(homepage "")
    if(WUFFER_WEB_PAGE)
        string(REPLACE "&" "&amp;" address "${WUFFER_WEB_PAGE}")
        set(homepage "  <url type=\"homepage\">${address}</url>\n")
    endif()
    set(screenshots "")
    if(WUFFER_SCREENSHOTS_URL)
        wuffer_metainfo_screenshots(screenshots "${WUFFER_SCREENSHOTS_URL}")
    endif()
    configure_file("${CMAKE_CURRENT_FUNCTION_LIST_DIR}/org.wuffer.Wuffer.metainfo.xml.in"
        "${file}" @ONLY)
endfunction()

# A heading reads "## 1.2.3 (2026-01-31)".
function(wuffer_metainfo_releases result changelog)
    file(STRINGS "${changelog}" headings REGEX "^## [0-9]")
    set(releases "")
    foreach(heading IN LISTS headings)
        if(NOT heading MATCHES "^## ([0-9.]+) \\(([0-9-]+)\\)$")
            message(FATAL_ERROR "A release needs a version and a date in CHANGELOG.md: ${heading}")
        endif()
        string(APPEND releases
            "    <release version=\"${CMAKE_MATCH_1}\" date=\"${CMAKE_MATCH_2}\"/>\n")
    endforeach()
    set(${result} "${releases}" PARENT_SCOPE)
endfunction()

function(wuffer_metainfo_screenshots result address)
    string(REPLACE "&" "&amp;" address "${address}")
    set(${result}
"  <screenshots>
    <screenshot type=\"default\">
      <caption>Several timers at once</caption>
      <image>${address}/timers.png</image>
    </screenshot>
    <screenshot>
      <caption>The options of a timer</caption>
      <image>${address}/options.png</image>
    </screenshot>
    <screenshot>
      <caption>Several timers on a dark desktop</caption>
      <image>${address}/timers-dark.png</image>
    </screenshot>
    <screenshot>
      <caption>The options of a timer on a dark desktop</caption>
      <image>${address}/options-dark.png</image>
    </screenshot>
  </screenshots>
" PARENT_SCOPE)
endfunction()
