# 32-bit Windows by Debian's g++-mingw-w64-i686-posix.
#
#   cmake --preset windows        or        cmake --toolchain packaging/windows/toolchain.cmake ...
#
# QUORIN_WINDOWS_LIBRARIES is the folder that holds qt5-win32/, mpv-win32/ and curl-win32/, as build-qt, build-mpv and
# build-curl make them.
set(CMAKE_SYSTEM_NAME Windows)
set(CMAKE_SYSTEM_PROCESSOR i686)

# The posix flavour: the other one has no std::thread.
set(CMAKE_C_COMPILER i686-w64-mingw32-gcc-posix)
set(CMAKE_CXX_COMPILER i686-w64-mingw32-g++-posix)
set(CMAKE_RC_COMPILER i686-w64-mingw32-windres)

list(APPEND CMAKE_TRY_COMPILE_PLATFORM_VARIABLES QUORIN_WINDOWS_LIBRARIES)
if(NOT QUORIN_WINDOWS_LIBRARIES)
    get_filename_component(QUORIN_WINDOWS_LIBRARIES "${CMAKE_CURRENT_LIST_DIR}/../../build/windows" ABSOLUTE)
endif()
set(CMAKE_FIND_ROOT_PATH
    "${QUORIN_WINDOWS_LIBRARIES}/qt5-win32"
    "${QUORIN_WINDOWS_LIBRARIES}/mpv-win32"
    "${QUORIN_WINDOWS_LIBRARIES}/curl-win32"
    "${QUORIN_WINDOWS_LIBRARIES}/extra-win32"
    /usr/i686-w64-mingw32)
set(CMAKE_PREFIX_PATH "${QUORIN_WINDOWS_LIBRARIES}/qt5-win32")
set(CMAKE_FIND_ROOT_PATH_MODE_PROGRAM NEVER)
set(CMAKE_FIND_ROOT_PATH_MODE_LIBRARY ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_INCLUDE ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_PACKAGE ONLY)

# Only what was made for this target is looked at.
set(ENV{PKG_CONFIG_PATH} "")
set(ENV{PKG_CONFIG_LIBDIR}
    "${QUORIN_WINDOWS_LIBRARIES}/mpv-win32/lib/pkgconfig:${QUORIN_WINDOWS_LIBRARIES}/curl-win32/lib/pkgconfig:${QUORIN_WINDOWS_LIBRARIES}/extra-win32/lib/pkgconfig")

# Boost is used by its headers alone, and those are the same on every machine.
set(Boost_NO_BOOST_CMAKE ON)
set(Boost_INCLUDE_DIR "${QUORIN_WINDOWS_LIBRARIES}/boost-headers")
if(NOT EXISTS "${Boost_INCLUDE_DIR}/boost" AND EXISTS /usr/include/boost)
    file(MAKE_DIRECTORY "${Boost_INCLUDE_DIR}")
    file(CREATE_LINK /usr/include/boost "${Boost_INCLUDE_DIR}/boost" SYMBOLIC)
endif()
