#ifndef TOVU_TESTS_SYSPROPS_HOSTCOMMAND_H
#define TOVU_TESTS_SYSPROPS_HOSTCOMMAND_H

// What the host itself reports, read independently of the library.

#include <cstdio>
#include <fstream>
#include <sstream>
#include <string>
#include <vector>

namespace tovutest {

// The standard output of a shell command without its final line end.
inline std::string hostCommand(std::string const& command)
{
    std::string out;
    if (FILE* pipe = popen(command.c_str(), "r")) {
        char buffer[4096];
        std::size_t n;
        while ((n = std::fread(buffer, 1, sizeof buffer, pipe)) > 0)
            out.append(buffer, n);
        pclose(pipe);
    }
    while (!out.empty() && (out.back() == '\n' || out.back() == '\r'))
        out.pop_back();
    return out;
}

// A field of /proc/meminfo in bytes ("MemTotal"), or -1.
inline long long memInfoBytes(std::string const& field)
{
    std::ifstream in("/proc/meminfo");
    std::string line;
    while (std::getline(in, line)) {
        if (line.compare(0, field.size() + 1, field + ":") == 0) {
            std::istringstream value(line.substr(field.size() + 1));
            long long kib = -1;
            value >> kib;
            return kib * 1024;
        }
    }
    return -1;
}

inline std::vector<std::string> splitWords(std::string const& text)
{
    std::istringstream in(text);
    std::vector<std::string> words;
    std::string word;
    while (in >> word)
        words.push_back(word);
    return words;
}

} // namespace tovutest

#endif
