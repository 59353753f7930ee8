# `cpack -G DEB` (or `make package` at the top): one Debian package with the
# library, its headers, the CMake and pkg-config files and `tovu`.
set(CPACK_PACKAGE_NAME tovuutil)
set(CPACK_PACKAGE_VENDOR "tovuutil developers")
set(CPACK_PACKAGE_CONTACT "tovuutil developers <tovuutil@localhost>")
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "Common services of the form-checking client library")
string(CONCAT CPACK_PACKAGE_DESCRIPTION
       "Start-up and shutdown of process-wide services, logging, system properties,\n"
       "INI and properties files, shared libraries, host callbacks, path and file\n"
       "operations, string helpers, validators, codecs and times of day; with the\n"
       "tovu command-line tool.")
set(CPACK_PACKAGE_VERSION ${PROJECT_VERSION})
set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGING_INSTALL_PREFIX /usr)
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_SECTION libs)
# The runtime dependencies (log4cpp's library among them) are computed by
# dpkg-shlibdeps; building against the headers also needs these.
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
set(CPACK_DEBIAN_PACKAGE_DEPENDS "liblog4cpp5-dev, libboost-dev, pkg-config")
set(CPACK_STRIP_FILES ON)
if(WIN32)
  # `make windows-package`: a ZIP with the DLL, its import library, the
  # runtime DLLs beside it, headers, CMake files and tovu.exe.
  set(CPACK_GENERATOR ZIP)
  set(CPACK_SYSTEM_NAME ${CMAKE_SYSTEM_PROCESSOR}-w64-mingw32)
  set(CPACK_STRIP_FILES OFF)
  set(CPACK_PACKAGING_INSTALL_PREFIX "")
endif()
include(CPack)
