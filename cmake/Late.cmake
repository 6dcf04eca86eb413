# Libraries that are bound when a function of theirs is first called, not when the program starts: import libraries made from cmake/late/*.def.
# The numbers in those files are the bytes of the arguments, which belong to the name in 32-bit programs only. The parts of a library have the
# prefix in their names, which the tool else makes of its process's number.
function(velmora_late_libraries target)
  add_library(${target} INTERFACE)
  foreach(name ${ARGN})
    set(definition "${CMAKE_SOURCE_DIR}/cmake/late/${name}.def")
    set(library "${CMAKE_BINARY_DIR}/late/lib${name}.a")
    set(undecorated "${CMAKE_BINARY_DIR}/late/${name}.def")
    set_property(DIRECTORY APPEND PROPERTY CMAKE_CONFIGURE_DEPENDS "${definition}")
    file(READ "${definition}" text)
    if(CMAKE_SIZEOF_VOID_P EQUAL 8)
      string(REGEX REPLACE "@[0-9]+" "" text "${text}")
    endif()
    file(GENERATE OUTPUT "${undecorated}" CONTENT "${text}")
    add_custom_command(OUTPUT "${library}" COMMAND ${CMAKE_DLLTOOL} --kill-at --temp-prefix ${name}_ --input-def "${undecorated}"
      --output-delaylib "${library}" DEPENDS "${undecorated}" VERBATIM)
    add_custom_target(late_${name} DEPENDS "${library}")
    add_dependencies(${target} late_${name})
    target_link_libraries(${target} INTERFACE "${library}")
  endforeach()
  target_link_libraries(${target} INTERFACE delayimp)
endfunction()
