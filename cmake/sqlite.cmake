# The target wex_sqlite: for Windows its amalgamation from the npm registry, natively Debian's library.
if(WIN32)
  set(sqlite_folder ${CMAKE_BINARY_DIR}/sqlite)
  execute_process(COMMAND ${CMAKE_SOURCE_DIR}/tools/get-sqlite.sh ${sqlite_folder} COMMAND_ERROR_IS_FATAL ANY)
  add_library(wex_sqlite STATIC ${sqlite_folder}/sqlite3.c)
  target_include_directories(wex_sqlite SYSTEM PUBLIC ${sqlite_folder})
  # One thread uses it.
  target_compile_definitions(wex_sqlite PRIVATE SQLITE_THREADSAFE=0 SQLITE_DEFAULT_MEMSTATUS=0 SQLITE_OMIT_LOAD_EXTENSION)
  target_compile_options(wex_sqlite PRIVATE -w -O2)
else()
  add_library(wex_sqlite INTERFACE)
  target_link_libraries(wex_sqlite INTERFACE sqlite3)
endif()
