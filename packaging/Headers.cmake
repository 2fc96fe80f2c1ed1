# The public headers. In the project they name one another from its root ("platform/Clock.h"), which could meet a header
# of the host's own; installed, they say <kestEdit/platform/Clock.h>.
set(public_headers
  # for hosts
  component/LinuxPlatform.h
  component/ModalRun.h
  component/clsEdit.h
  component/kestEdit.h
  platform/Clock.h
  platform/CodePage.h
  platform/DataFolder.h
  platform/DateFormat.h
  platform/DateTime.h
  platform/Export.h
  platform/FileSystem.h
  platform/IniStore.h
  platform/Platform.h
  platform/Prompts.h
  platform/StagedFile.h
  platform/TimeFormat.h
  platform/UserSettings.h
  # for drivers of the form
  component/FrontEnd.h
  form/Choices.h
  form/ComponentValues.h
  form/EditorControl.h
  form/FormModel.h
  form/OptionNames.h
  editor/ImageMeaning.h
  editor/JobCharacters.h
  editor/JobFolders.h
  editor/NumberRanges.h
  editor/dlgNewFolder.h
  editor/modSpinButtons.h
  editor/frmEdit.h
  i18n/Texts.h
  persistence/JobStore.h
  persistence/modIniHandler.h
)

set(public_include_dir ${PROJECT_BINARY_DIR}/include)

function(install_public_header header component)
  set_property(DIRECTORY APPEND PROPERTY CMAKE_CONFIGURE_DEPENDS ${PROJECT_SOURCE_DIR}/${header})
  file(READ ${PROJECT_SOURCE_DIR}/${header} content)
  string(REGEX REPLACE "#include \"([^\"]+)\"" "#include <kestEdit/\\1>" content "${content}")
  # The C headers (kestEdit.h, kestEditDesktop.h) stand where hosts look first.
  string(REGEX REPLACE "<kestEdit/[a-z]+/kestEdit" "<kestEdit/kestEdit" content "${content}")
  string(REGEX REPLACE "^[a-z]+/kestEdit" "kestEdit" place ${header})
  file(CONFIGURE OUTPUT ${public_include_dir}/kestEdit/${place} CONTENT "${content}" @ONLY)
  cmake_path(GET place PARENT_PATH folder)
  install(FILES ${public_include_dir}/kestEdit/${place}
    DESTINATION ${CMAKE_INSTALL_INCLUDEDIR}/kestEdit/${folder} COMPONENT ${component})
endfunction()

foreach(header IN LISTS public_headers)
  install_public_header(${header} libkestedit-dev)
endforeach()
