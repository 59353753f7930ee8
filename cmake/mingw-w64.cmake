# Cross build for Windows with MinGW-w64 (posix thread model):
#   cmake -S . -B build-win -DCMAKE_TOOLCHAIN_FILE=cmake/mingw-w64.cmake \
#         -DTOVU_MINGW_ARCH=x86_64 -DTOVU_DEPS_PREFIX=/path/to/prefix/x86_64
# TOVU_MINGW_ARCH is i686 (the default) or x86_64. TOVU_DEPS_PREFIX holds the
# dependencies cross-built for that architecture (log4cpp, GoogleTest, a boost
# include folder); nothing of the build machine's own libraries is searched.
if(NOT TOVU_MINGW_ARCH)
  set(TOVU_MINGW_ARCH i686)
endif()
if(NOT TOVU_DEPS_PREFIX)
  message(FATAL_ERROR "mingw-w64.cmake: set TOVU_DEPS_PREFIX to the cross-built dependencies")
endif()
# try_compile projects read this file again; pass the options on to them.
list(APPEND CMAKE_TRY_COMPILE_PLATFORM_VARIABLES TOVU_MINGW_ARCH TOVU_DEPS_PREFIX)

set(CMAKE_SYSTEM_NAME Windows)
set(CMAKE_SYSTEM_PROCESSOR ${TOVU_MINGW_ARCH})
set(CMAKE_C_COMPILER ${TOVU_MINGW_ARCH}-w64-mingw32-gcc-posix)
set(CMAKE_CXX_COMPILER ${TOVU_MINGW_ARCH}-w64-mingw32-g++-posix)
set(CMAKE_RC_COMPILER ${TOVU_MINGW_ARCH}-w64-mingw32-windres)

set(CMAKE_FIND_ROOT_PATH ${TOVU_DEPS_PREFIX})
set(CMAKE_FIND_ROOT_PATH_MODE_PROGRAM NEVER)
set(CMAKE_FIND_ROOT_PATH_MODE_LIBRARY ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_INCLUDE ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_PACKAGE ONLY)
# Boost is used header-only: FindBoost's search of the include folder, not the
# build machine's BoostConfig.cmake.
set(Boost_NO_BOOST_CMAKE ON)

# pkg-config sees only the prefix's .pc files.
set(ENV{PKG_CONFIG_LIBDIR} ${TOVU_DEPS_PREFIX}/lib/pkgconfig)
set(ENV{PKG_CONFIG_PATH} "")
unset(ENV{PKG_CONFIG_SYSROOT_DIR})
