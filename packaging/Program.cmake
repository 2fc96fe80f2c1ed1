# The program and what belongs to it. Its language files serve hosts of the component, too.
install(TARGETS kestedit RUNTIME DESTINATION ${CMAKE_INSTALL_BINDIR} COMPONENT kestedit)
install(DIRECTORY ${PROJECT_SOURCE_DIR}/lang/ DESTINATION ${kestEdit_lang_dir} COMPONENT kestedit-data
  FILES_MATCHING PATTERN *.lng)
install(FILES ${CMAKE_CURRENT_BINARY_DIR}/kestedit.1.gz DESTINATION ${CMAKE_INSTALL_MANDIR}/man1 COMPONENT kestedit)
install(FILES completion.bash RENAME kestedit
  DESTINATION ${CMAKE_INSTALL_DATADIR}/bash-completion/completions COMPONENT kestedit)
install(FILES ${PROJECT_SOURCE_DIR}/desktop/icons/kestedit.svg
  DESTINATION ${CMAKE_INSTALL_DATADIR}/icons/hicolor/scalable/apps COMPONENT kestedit-data)
install(FILES kestedit.xml DESTINATION ${CMAKE_INSTALL_DATADIR}/mime/packages COMPONENT kestedit-data)

# Without the window there is nothing that a double click on a job could open.
if(TARGET kestEdit_desktop)
  install(FILES kestedit.desktop kestedit-open.desktop DESTINATION ${CMAKE_INSTALL_DATADIR}/applications COMPONENT kestedit)
endif()
