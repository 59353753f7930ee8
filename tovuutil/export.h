#ifndef TOVUUTIL_EXPORT_H
#define TOVUUTIL_EXPORT_H

// TOVU_API marks the library's interface; everything else stays hidden.
#if defined(_WIN32)
#  if defined(TOVU_BUILDING_LIBRARY)
#    define TOVU_API __declspec(dllexport)
#  else
#    define TOVU_API __declspec(dllimport)
#  endif
#else
#  define TOVU_API __attribute__((visibility("default")))
#endif

// Calling convention of the host's callbacks: stdcall on 32-bit Windows.
#if defined(_WIN32) && !defined(_WIN64)
#  define TOVU_CALLBACK __stdcall
#else
#  define TOVU_CALLBACK
#endif

#endif
