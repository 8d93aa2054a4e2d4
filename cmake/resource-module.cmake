# wex_resource_module(NAME n SOURCES file.rc … FOLDER f): a DLL of resources alone, n.dll in that folder.
function(wex_resource_module)
  cmake_parse_arguments(ARG "" "NAME;FOLDER" "SOURCES" ${ARGN})
  add_library(${ARG_NAME} SHARED ${ARG_SOURCES})
  set_target_properties(${ARG_NAME} PROPERTIES PREFIX "" LINKER_LANGUAGE C
                        RUNTIME_OUTPUT_DIRECTORY ${ARG_FOLDER} ARCHIVE_OUTPUT_DIRECTORY ${CMAKE_CURRENT_BINARY_DIR})
  target_link_options(${ARG_NAME} PRIVATE -nostdlib -Wl,--entry=0)
endfunction()
