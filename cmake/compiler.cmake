# Warnings are errors in all of our code. All Windows modules carry their run-time with them.
option(WEX_SANITIZE "Build with AddressSanitizer and UndefinedBehaviorSanitizer" OFF)
option(WEX_FUZZ "Build the fuzz targets; needs clang" OFF)

add_compile_options(-Wall -Wextra -Werror -Wno-missing-field-initializers)
if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU")
  # gcc 12 sees uninitialized members in its own std::wstring moves.
  add_compile_options(-Wno-maybe-uninitialized)
endif()
if(WEX_SANITIZE)
  add_compile_options(-fsanitize=address,undefined -fno-sanitize-recover=all -fno-omit-frame-pointer)
  add_link_options(-fsanitize=address,undefined)
endif()
if(WEX_FUZZ)
  # Without the comparisons, which cost half of the time and lead to little that the paths don't.
  add_compile_options(-fsanitize=fuzzer-no-link -fno-sanitize-coverage=trace-cmp)
endif()
if(WIN32)
  # 0x0A00: the per-monitor display scale is asked for. Handlers of windows take parameters they don't use.
  add_compile_definitions(UNICODE _UNICODE WINVER=0x0A00 _WIN32_WINNT=0x0A00 NOMINMAX WIN32_LEAN_AND_MEAN)
  # The linker makes modules that lie anywhere and whose data can't run; the compiler guards what lies on the stack.
  add_compile_options(-fstack-protector-strong)
  add_link_options(-static -static-libgcc -static-libstdc++ -fstack-protector-strong)
  # In files, too, sections begin where pages do: Wine then maps them, and reads of the debuggers' ones only what is asked for.
  add_link_options(-Wl,--file-alignment,4096)
  # Handles of tree items, which are addresses, cross Lisp as integers of 32 bits: the system may not spread a
  # program's memory over all 64.
  string(APPEND CMAKE_EXE_LINKER_FLAGS " -Wl,--disable-high-entropy-va")
  # The cast of GetProcAddress's answer is the platform's own way.
  add_compile_options(-Wno-cast-function-type)
endif()
