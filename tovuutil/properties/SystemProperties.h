#ifndef TOVUUTIL_PROPERTIES_SYSTEMPROPERTIES_H
#define TOVUUTIL_PROPERTIES_SYSTEMPROPERTIES_H

#include <string>

#include <tovuutil/export.h>

// The built-in system property keys. Note the deliberate asymmetry: the INI,
// log, temporary and data homes put the product word before "PROPERTY", the
// installation home puts it after.
constexpr char TOVU_PROPERTY_INI_HOME[] = "_TOVU_intern.TOVU_PROPERTY_INI_HOME";
constexpr char TOVU_PROPERTY_LOG_HOME[] = "_TOVU_intern.TOVU_PROPERTY_LOG_HOME";
constexpr char TOVU_PROPERTY_TEMP_HOME[] = "_TOVU_intern.TOVU_PROPERTY_TEMP_HOME";
constexpr char TOVU_PROPERTY_DATA_HOME[] = "_TOVU_intern.TOVU_PROPERTY_DATA_HOME";
constexpr char PROPERTY_TOVU_HOME[] = "_TOVU_intern.PROPERTY_TOVU_HOME";
constexpr char PROPERTY_COMPUTER_NAME[] = "_TOVU_intern.PROPERTY_COMPUTER_NAME";
constexpr char PROPERTY_COMPUTER_IP_ADDRESS[] = "_TOVU_intern.PROPERTY_COMPUTER_IP_ADDRESS";
constexpr char PROPERTY_COMPUTER_MAC_ADDRESS[] = "_TOVU_intern.PROPERTY_COMPUTER_MAC_ADDRESS";
constexpr char PROPERTY_PLATFORM[] = "_TOVU_intern.PROPERTY_PLATFORM";
constexpr char TOVU_TOTAL_MEM[] = "_TOVU_intern.TOTAL_MEM";
constexpr char TOVU_FREE_MEM[] = "_TOVU_intern.FREE_MEM";
constexpr char PROPERTY_USER_NAME[] = "_TOVU_intern.PROPERTY_USER_NAME";
constexpr char PROPERTY_SYSTEM_HOME[] = "_TOVU_intern.PROPERTY_SYSTEM_HOME";
constexpr char PROPERTY_CURRENT_HOME[] = "_TOVU_intern.PROPERTY_CURRENT_HOME";

// The system properties as free functions: each fetches service 0 from the
// factory and forwards to it. After shutdown, when there is no service, reads
// give "" (false), writes do nothing and the home setters give 1.
//
// When the library has loaded, the table holds, filled in this order:
//   INI home       "SystemRoot", else "TOVU_HOME", else the working directory
//   log home       the working directory ("tovu.log" is written there)
//   temporary home "TEMP", else "TMP", else the working directory
//   data home      the working directory
//   installation   "TOVU_HOME", else the working directory
//   computer name, IP address, MAC address (see NetworkIdentity.h),
//   platform (the operating system's name), total and free memory in bytes
//   as decimal text, the user name (only when the host tells one), the system
//   home ("SystemRoot") and the current home (the working directory).
// Homes pass their setter: a directory that is not writable stays unset.
//
// Example:
//   std::string ini = getSystemPropertyIniHome();   // "/opt/app/etc"
//   if (setSystemPropertyLogHome("/var/log/app") == 0) ...  // log moved

// When the key exists: value = its value and true; else value stays, false.
TOVU_API bool getSystemProperty(std::string const& key, std::string& value);
// The value, or "".
TOVU_API std::string getSystemProperty(std::string const& key);
// Adds or replaces.
TOVU_API void setSystemProperty(std::string const& key, std::string const& value);

TOVU_API std::string getSystemPropertyIniHome();
TOVU_API std::string getSystemPropertyLogHome();
TOVU_API std::string getSystemPropertyTempHome();
TOVU_API std::string getSystemPropertyDataHome();
TOVU_API std::string getSystemPropertyTovuHome();

// 0 set, 1 directory not writable, 2 empty argument (see SystemPropertiesServiceImpl).
TOVU_API int setSystemPropertyIniHome(std::string const& home);
TOVU_API int setSystemPropertyLogHome(std::string const& home);
TOVU_API int setSystemPropertyTempHome(std::string const& home);
TOVU_API int setSystemPropertyDataHome(std::string const& home);
TOVU_API int setSystemPropertyTovuHome(std::string const& home);

#endif
