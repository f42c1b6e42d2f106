# Writes the metainfo to FILE, with the addresses that are given on the command line.
set(WUFFER_APPLICATION_ID org.wuffer.Wuffer)
include("${SOURCE}/packaging/Metainfo.cmake")
wuffer_write_metainfo("${FILE}")
