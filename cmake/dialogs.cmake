# wex_dialogs(TARGET SOURCES file.rc … FOLDER f FILES NAME.dlg …): makes keylists.rc, templates.rc and dialog-ids.h in the folder
# from dialogs that are written one a file, for those resource files of the target to include. See docs/dialogs.md.
find_package(Python3 3.7 REQUIRED COMPONENTS Interpreter)
set(WEX_DIALOG_TOOLS ${CMAKE_CURRENT_LIST_DIR}/../tools/dialogs)

function(wex_dialogs target)
  cmake_parse_arguments(ARG "" "FOLDER" "SOURCES;FILES" ${ARGN})
  file(GLOB tools ${WEX_DIALOG_TOOLS}/*.py)
  set(made ${ARG_FOLDER}/keylists.rc ${ARG_FOLDER}/templates.rc ${ARG_FOLDER}/dialog-ids.h)
  add_custom_command(
    OUTPUT ${made}
    COMMAND Python3::Interpreter -B ${WEX_DIALOG_TOOLS}/make-dialogs.py ${ARG_FOLDER} ${ARG_FILES}
    DEPENDS ${ARG_FILES} ${tools}
    COMMENT "Making ${target}'s dialogs"
    VERBATIM)
  # windres tells nothing about what it has read: any change of a dialog compiles its sources again.
  set_property(SOURCE ${ARG_SOURCES} APPEND PROPERTY OBJECT_DEPENDS ${made} ${ARG_FILES})
  target_include_directories(${target} PRIVATE ${ARG_FOLDER})
endfunction()
