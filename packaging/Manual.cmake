# The manual as pages for a browser, made where the program in the build tree finds them, too.
find_program(CMARK_GFM cmark-gfm REQUIRED)

set(manual_dir ${PROJECT_BINARY_DIR}/share/kestedit/manual)
file(MAKE_DIRECTORY ${manual_dir})
file(CREATE_LINK ${PROJECT_SOURCE_DIR}/docs/pictures ${manual_dir}/pictures SYMBOLIC)

# The documents that the manual leads to, itself among them.
set(manual_pages)
foreach(document manual manual.de pages job-file)
  set(page ${manual_dir}/${document}.html)
  add_custom_command(OUTPUT ${page}
    COMMAND ${CMAKE_CURRENT_SOURCE_DIR}/page.sh ${CMARK_GFM} ${PROJECT_SOURCE_DIR}/docs/${document}.md ${page}
    DEPENDS page.sh ${PROJECT_SOURCE_DIR}/docs/${document}.md VERBATIM)
  list(APPEND manual_pages ${page})
endforeach()
add_custom_target(manual ALL DEPENDS ${manual_pages})

install(FILES ${manual_pages} DESTINATION ${CMAKE_INSTALL_DATADIR}/kestedit/manual COMPONENT kestedit-data)
install(DIRECTORY ${PROJECT_SOURCE_DIR}/docs/pictures DESTINATION ${CMAKE_INSTALL_DATADIR}/kestedit/manual
  COMPONENT kestedit-data)
