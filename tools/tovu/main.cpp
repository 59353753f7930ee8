// tovu: a small command-line host of the library.
#include <cstring>
#include <iostream>

#include "Commands.h"

namespace {
int usage(std::ostream& out, int status)
{
    out << "usage: tovu --version | info\n";
    return status;
}
} // namespace

int main(int argc, char** argv)
{
    if (argc != 2)
        return usage(std::cerr, 2);
    if (std::strcmp(argv[1], "--version") == 0)
        return runVersion(std::cout);
    if (std::strcmp(argv[1], "info") == 0)
        return runInfo(std::cout);
    if (std::strcmp(argv[1], "--help") == 0)
        return usage(std::cout, 0);
    return usage(std::cerr, 2);
}
