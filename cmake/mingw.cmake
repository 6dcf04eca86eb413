# What both cross-compilers to Windows share; each names its processor first. The posix thread model is the one whose library has std::mutex
# and std::thread, which the tests need.
set(CMAKE_SYSTEM_NAME Windows)
set(compiler ${CMAKE_SYSTEM_PROCESSOR}-w64-mingw32)
set(CMAKE_CXX_COMPILER ${compiler}-g++-posix)
set(CMAKE_C_COMPILER ${compiler}-gcc-posix)
set(CMAKE_RC_COMPILER ${compiler}-windres)
set(CMAKE_FIND_ROOT_PATH /usr/${compiler})
set(CMAKE_FIND_ROOT_PATH_MODE_PROGRAM NEVER)
set(CMAKE_FIND_ROOT_PATH_MODE_LIBRARY ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_INCLUDE ONLY)
set(CMAKE_EXE_LINKER_FLAGS_INIT "-static")
