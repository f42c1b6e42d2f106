# Writes the metainfo to FILE, with the web addresses that the command line defines.
set(WUFFER_APPLICATION_ID org.wuffer.Wuffer)
include("${SOURCE}/packaging/Metainfo.cmake")
wuffer_write_metainfo("${FILE}")
