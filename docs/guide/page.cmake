# One page of the guide: cmake -DCMARK_GFM= -DSOURCE=FILE.md -DTEMPLATE= -DINTO= -P page.cmake
get_filename_component(page ${SOURCE} NAME_WE)
execute_process(
  COMMAND ${CMARK_GFM} --extension table ${SOURCE}
  OUTPUT_VARIABLE BODY
  RESULT_VARIABLE failed)
if(failed)
  message(FATAL_ERROR "${SOURCE} could not be read")
endif()
# The pages link to one another as they stand in the source tree.
string(REGEX REPLACE "href=\"(guide/)?([a-z-]+)\\.md([\"#])" "href=\"\\2.html\\3" BODY "${BODY}")
# Headings are led to by their words.
while(BODY MATCHES "<h2>([^<]*)</h2>")
  set(words "${CMAKE_MATCH_1}")
  string(TOLOWER "${words}" anchor)
  string(REGEX REPLACE "[^a-z0-9]+" "-" anchor "${anchor}")
  string(REPLACE "<h2>${words}</h2>" "<h2 id=\"${anchor}\">${words}</h2>" BODY "${BODY}")
endwhile()
string(REGEX MATCH "<h1>([^<]*)</h1>" heading "${BODY}")
set(TITLE "${CMAKE_MATCH_1}")
configure_file(${TEMPLATE} ${INTO}/${page}.html @ONLY)
