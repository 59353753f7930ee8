#ifndef TOVUUTIL_PLATFORM_VERSIONINFO_H
#define TOVUUTIL_PLATFORM_VERSIONINFO_H

#include <string>

#include <tovuutil/export.h>

// getSharedLibVersionInfo()
//
// The product and file version texts of a library or program file. A file
// without a version block gives, in both outputs, its name followed by
// " nicht gefunden oder kein Versionsinfoblock"; a block without the entry
// gives "Keine Produktversion vorhanden" / "Keine Fileversion vorhanden".
// Windows reads the file's version resource (German Unicode table first).
// ELF files have none: a library whose real file name ends in a numeric
// ".so.X[.Y[.Z]]" suffix reports that number as both versions.
//
// Example (Linux): "/lib/x86_64-linux-gnu/libm.so.6" gives "6" and "6".
TOVU_API void getSharedLibVersionInfo(std::string const& fileName, std::string& productVersion,
                                      std::string& fileVersion);

// splitVersionInfo() (numeric)
//
// Splits a version text at "," or "." into up to four parts and converts each
// into a number (string2Int, so " 4" is 4 and a non-number is 0). Missing parts
// give 0. Returns the number of parts found (0 to 4); rest receives what
// follows the fourth part's separator (empty when there is none). version is
// left unchanged; null part pointers are skipped.
//
// Example: "2007, 4, 2, 8255" gives 2007, 4, 2, 8255, result 4, rest "".
TOVU_API int splitVersionInfo(std::string& version, unsigned short* part1, unsigned short* part2,
                              unsigned short* part3, unsigned short* part4, std::string& rest);

// splitVersionInfo() (text)
//
// Splits at "," or "." into four parts, each trimmed of " \t\r\n". The fourth
// part takes the rest of the text. True when the text has at least four parts;
// missing parts are empty.
//
// Example: "1. 2 ,3,4" gives "1", "2", "3", "4" and true.
TOVU_API bool splitVersionInfo(std::string const& version, std::string& part1, std::string& part2,
                               std::string& part3, std::string& part4);

extern "C" {
// Copies "2007, 4, 2, 8255" and its terminating zero into buffer (17 bytes).
TOVU_API void getTovuSharedLibProductversion(char* buffer);
// Copies "2007, 11, 22, 0" and its terminating zero into buffer (16 bytes).
TOVU_API void getTovuSharedLibFileversion(char* buffer);
}

#endif
