# What every room is built with, and the functions that make rooms and test programs out of folders.

add_library(velmora_settings INTERFACE)
target_include_directories(velmora_settings INTERFACE "${CMAKE_SOURCE_DIR}")
target_compile_options(velmora_settings INTERFACE -Wall -Wextra $<$<BOOL:${VELMORA_STRICT}>:-Werror> -Wshadow=local -Wnon-virtual-dtor -Woverloaded-virtual)
if(WIN32)
  # _WIN32_IE and WINVER open the declarations up to Windows 7, the oldest system that the manifest names.
  target_compile_definitions(velmora_settings INTERFACE UNICODE _UNICODE NOMINMAX WINVER=0x0601 _WIN32_WINNT=0x0601 _WIN32_IE=0x0900)
  # The program has one thread, so that a static needs no lock.
  target_compile_options(velmora_settings INTERFACE -ffunction-sections -fdata-sections -fno-threadsafe-statics)
  # The same sources give the same bytes, wherever and whenever they are built.
  target_compile_options(velmora_settings INTERFACE "-ffile-prefix-map=${CMAKE_SOURCE_DIR}=.")
  target_link_options(velmora_settings INTERFACE -Wl,--gc-sections,--no-insert-timestamp -s)
endif()

if(NOT WIN32)
  # The SDK's names, ours: the rooms are plain Windows code, and the include path decides which Windows they meet.
  target_include_directories(velmora_settings INTERFACE "${CMAKE_SOURCE_DIR}/platform/include")
endif()

# Headers that nearly every source includes are parsed once a build. Sources still include what they use: `./dev check` compiles without this.
file(WRITE "${CMAKE_BINARY_DIR}/prelude/Prelude.cpp" "")
add_library(velmora_prelude STATIC "${CMAKE_BINARY_DIR}/prelude/Prelude.cpp")
target_link_libraries(velmora_prelude PUBLIC velmora_settings)
target_precompile_headers(velmora_prelude PRIVATE <windows.h> <algorithm> <array> <functional> <map> <memory> <optional> <string> <string_view> <utility> <vector>)

# A room: every source below its folder, except rooms inside it.
function(velmora_room folder)
  string(REPLACE "/" "_" name "${folder}")
  file(GLOB_RECURSE sources CONFIGURE_DEPENDS RELATIVE "${CMAKE_SOURCE_DIR}" "${folder}/*.cpp")
  if(folder STREQUAL "app")
    list(FILTER sources EXCLUDE REGEX "^app/(helpers/|resources/|main\\.cpp$)")
  endif()
  if(sources)
    add_library(${name} STATIC ${sources})
    target_link_libraries(${name} PUBLIC velmora_settings ${ARGN})
    target_precompile_headers(${name} REUSE_FROM velmora_prelude)
  else()
    add_library(${name} INTERFACE)
    target_link_libraries(${name} INTERFACE velmora_settings ${ARGN})
  endif()
endfunction()

# Puts a text file into a room as `const char* <symbol>()`, zero-terminated.
function(velmora_embed room file symbol)
  set(output "${CMAKE_BINARY_DIR}/embedded/${symbol}.cpp")
  add_custom_command(OUTPUT "${output}"
    COMMAND ${CMAKE_COMMAND} -DINPUT=${CMAKE_SOURCE_DIR}/${file} -DOUTPUT=${output} -DSYMBOL=${symbol} -P ${CMAKE_SOURCE_DIR}/cmake/Embed.cmake
    DEPENDS "${CMAKE_SOURCE_DIR}/${file}" "${CMAKE_SOURCE_DIR}/cmake/Embed.cmake" VERBATIM)
  string(REPLACE "/" "_" name "${room}")
  target_sources(${name} PRIVATE "${output}")
endfunction()

# The tests' own code is built fast: it is run once a build, and it is not what the sanitizers are after.
function(velmora_test_settings name)
  target_compile_options(${name} PRIVATE -fno-sanitize=undefined)
  if(NOT name STREQUAL "test_prelude")
    target_precompile_headers(${name} REUSE_FROM test_prelude)
  endif()
endfunction()

# A test program out of tests/<folder>. Files named *.sim.cpp set scenes on the stand-in PC and are native only;
# *.win.cpp need a real Windows and are left out natively; all others run in both builds.
function(velmora_tests name folder)
  file(GLOB_RECURSE sources CONFIGURE_DEPENDS "${CMAKE_SOURCE_DIR}/tests/${folder}/*.cpp")
  if(WIN32)
    list(FILTER sources EXCLUDE REGEX "\\.sim\\.cpp$")
  else()
    list(FILTER sources EXCLUDE REGEX "\\.win\\.cpp$")
  endif()
  if(NOT sources)
    message(FATAL_ERROR "tests/${folder} holds no tests for ${name}")
  endif()
  add_executable(${name} ${sources})
  # The support comes first: its scenes use the rooms.
  target_link_libraries(${name} PRIVATE test_support ${ARGN})
  velmora_test_settings(${name})
  # The longest ones run as two halves, and first, so that no core waits for them at the end.
  if(name STREQUAL "test_faults" OR (WIN32 AND name STREQUAL "test_controls"))
    foreach(half 0 1)
      add_test(NAME ${name}_${half} COMMAND ${name})
      set_tests_properties(${name}_${half} PROPERTIES TIMEOUT 600 COST 100 ENVIRONMENT "GTEST_TOTAL_SHARDS=2;GTEST_SHARD_INDEX=${half}")
    endforeach()
  else()
    add_test(NAME ${name} COMMAND ${name})
    set_tests_properties(${name} PROPERTIES TIMEOUT 600)
  endif()
endfunction()
