# A Windows build: the DLLs tovuutil.dll needs at run time (the compiler's
# runtime and the dependencies') are copied beside it into ${TOVU_RUNTIME_DIR},
# for the package and for running. A cross build runs its programs under Wine
# with that folder on WINEPATH.
set(TOVU_RUNTIME_DIR ${PROJECT_BINARY_DIR}/bin)
file(MAKE_DIRECTORY ${TOVU_RUNTIME_DIR})

set(TOVU_RUNTIME_DLLS "")
foreach(dll libstdc++-6.dll libgcc_s_seh-1.dll libgcc_s_dw2-1.dll libwinpthread-1.dll)
  execute_process(COMMAND ${CMAKE_CXX_COMPILER} -print-file-name=${dll}
                  OUTPUT_VARIABLE found OUTPUT_STRIP_TRAILING_WHITESPACE)
  if(IS_ABSOLUTE "${found}" AND EXISTS "${found}")
    list(APPEND TOVU_RUNTIME_DLLS ${found})
  endif()
endforeach()
# log4cpp's DLL, wherever its package put it.
pkg_get_variable(LOG4CPP_PREFIX log4cpp prefix)
file(GLOB log4cpp_dlls ${LOG4CPP_PREFIX}/bin/*log4cpp*.dll)
list(APPEND TOVU_RUNTIME_DLLS ${log4cpp_dlls})
if(NOT log4cpp_dlls)
  message(WARNING "no log4cpp DLL under ${LOG4CPP_PREFIX}/bin")
endif()
file(COPY ${TOVU_RUNTIME_DLLS} DESTINATION ${TOVU_RUNTIME_DIR})
install(FILES ${TOVU_RUNTIME_DLLS} DESTINATION ${CMAKE_INSTALL_BINDIR})

if(CMAKE_CROSSCOMPILING AND NOT CMAKE_CROSSCOMPILING_EMULATOR)
  if(CMAKE_SYSTEM_PROCESSOR STREQUAL "x86_64")
    find_program(TOVU_WINE NAMES wine64 wine PATHS /usr/lib/wine)
  else()
    find_program(TOVU_WINE NAMES wine PATHS /usr/lib/wine)
  endif()
  if(TOVU_WINE)
    string(REPLACE "/" "\\" runtime_dir "Z:${TOVU_RUNTIME_DIR}")
    set(CMAKE_CROSSCOMPILING_EMULATOR env "WINEPATH=${runtime_dir}" WINEDEBUG=-all ${TOVU_WINE})
  endif()
endif()
