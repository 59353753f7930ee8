#ifndef TOVU_TOOL_WRAPLINES_H
#define TOVU_TOOL_WRAPLINES_H

#include <cstddef>
#include <functional>

namespace tovu::cli {

// Passes text on to write in lines of width characters: a line feed goes in
// before a character that would make the line longer. A line feed in text
// ends the line. column carries the current line's length from call to call.
void wrapLines(char const* text, std::size_t size, std::size_t width, std::size_t& column,
               std::function<void(char const*, std::size_t)> const& write);

} // namespace tovu::cli

#endif
