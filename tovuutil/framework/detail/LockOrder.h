#ifndef TOVUUTIL_FRAMEWORK_DETAIL_LOCKORDER_H
#define TOVUUTIL_FRAMEWORK_DETAIL_LOCKORDER_H

// The library's locks, in the one order they may nest (a thread holding one
// takes only locks further down the list):
//
//   1. a resource cache: the properties files' or the shared libraries'
//      (ResourceManager.cpp; recursive, held for each cache operation,
//      including load, unload and working out the key)
//   2. one cached object (CachedResource: a properties file or a library),
//      held by the services for each operation on it
//   3. the system properties table (SystemPropertiesServiceImpl; recursive,
//      held across a home setter and the move of the log it causes)
//   4. creating a fresh lifetime manager (ObjectLifetimeManager.cpp; held
//      while it starts up, so others see it only with its services)
//   5. the lifetime manager's registries of objects and loggers
//      (ObjectLifetimeManager.cpp; never held while an object is deleted)
//   6. the logging set-up (Log4cxx.cpp; building it and relocateLog)
//   7. the small look-up of a map's cache (ResourceManager.cpp), a leaf
//   8. log4cpp's own locks, innermost: log4cpp never calls back into us
//
// No lock is held while a host callback runs (GUIServiceImpl copies the
// callback pointer and calls it unlocked), so a callback may call anything.
// Objects are deleted outside the registry lock (5) because their
// destructors log and may ask for loggers; the logging set-up is built
// before a logger is registered, so 5 never waits for 6.

#endif
