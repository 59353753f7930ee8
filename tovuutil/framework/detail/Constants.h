#ifndef TOVUUTIL_FRAMEWORK_DETAIL_CONSTANTS_H
#define TOVUUTIL_FRAMEWORK_DETAIL_CONSTANTS_H

// Library-wide texts. Character arrays, so they exist before any static
// initialiser of the library runs.
namespace tovu {
namespace text {
constexpr char kReturncodeLabel[] = "\tReturncode = ";
constexpr char kCreateService[] = "Erzeuge Service: ";
constexpr char kDeleteService[] = "Loesche Service: ";
} // namespace text
} // namespace tovu

#endif
