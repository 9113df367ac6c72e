# Builds for Windows x86-64 on a Debian machine: with the distribution's MinGW-w64, in the variant whose std::thread is
# made of POSIX threads, with what is in CMAKE_PREFIX_PATH, a Qt for Windows above all, and with Wine to run it.
#
# scripts/test-windows does everything that has to be done around it.

set(CMAKE_SYSTEM_NAME Windows)
set(CMAKE_SYSTEM_PROCESSOR x86_64)

set(CMAKE_C_COMPILER x86_64-w64-mingw32-gcc-posix)
set(CMAKE_CXX_COMPILER x86_64-w64-mingw32-g++-posix)
set(CMAKE_RC_COMPILER x86_64-w64-mingw32-windres)
set(CMAKE_CROSSCOMPILING_EMULATOR ${CMAKE_CURRENT_LIST_DIR}/run-in-wine)

# moc, rcc and their like run on this machine, and are this machine's.
set(QT_HOST_PATH /usr CACHE PATH "Where the Qt of this machine is")
set(QT_HOST_PATH_CMAKE_DIR /usr/lib/${CMAKE_HOST_SYSTEM_PROCESSOR}-linux-gnu/cmake CACHE PATH "Its CMake packages")

# This machine's rcc compresses resources in a way that the Qt for Windows has not been built to read.
set(CMAKE_AUTORCC_OPTIONS --no-zstd)

# Libraries that are headers only are the same for every platform, but stand in /usr/include beside the headers of this
# machine's C library. So the few that are needed get a directory in which there is nothing else.
set(header_only_root ${CMAKE_BINARY_DIR}/header-only)
foreach(header CLI qcustomplot.h rapidjson valijson)
    if(EXISTS /usr/include/${header} AND NOT EXISTS ${header_only_root}/include/${header})
        file(MAKE_DIRECTORY ${header_only_root}/include)
        file(CREATE_LINK /usr/include/${header} ${header_only_root}/include/${header} SYMBOLIC)
    endif()
endforeach()
foreach(package CLI11)
    if(EXISTS /usr/share/cmake/${package} AND NOT EXISTS ${header_only_root}/share/cmake/${package})
        file(MAKE_DIRECTORY ${header_only_root}/share/cmake)
        file(CREATE_LINK /usr/share/cmake/${package} ${header_only_root}/share/cmake/${package} SYMBOLIC)
    endif()
endforeach()

# Everything else of this machine is for Linux: only its programs are of use.
set(CMAKE_FIND_ROOT_PATH ${header_only_root} ${CMAKE_PREFIX_PATH} /usr/x86_64-w64-mingw32)
set(CMAKE_FIND_ROOT_PATH_MODE_PROGRAM NEVER)
set(CMAKE_FIND_ROOT_PATH_MODE_LIBRARY ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_INCLUDE ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_PACKAGE ONLY)
