#include "tovuutil/text/BaseN.h"

#include <algorithm>
#include <array>
#include <cmath>

#include "tovuutil/text/StringUtil.h"

namespace {

constexpr char kBase10[] = "0123456789";
constexpr char kBaseHex[] = "0123456789ABCDEF";
constexpr char kBase34[] = "123456789ABCDEFGHIJKLMNPQRSTUVWXYZ";
constexpr char kBase36[] = "0123456789ABCDEFGHIJKLMNOPQRSTUVWXYZ";

} // namespace

double basen2double(std::string const& s, std::string const& alphabet)
{
    // The last position of every byte in the alphabet, -1 when absent: the
    // value getcharpos() gives, looked up once per byte.
    std::array<int, 256> position;
    position.fill(-1);
    for (std::size_t i = 0; i < alphabet.size(); ++i)
        position[static_cast<unsigned char>(alphabet[i])] = static_cast<int>(i);

    double const base = static_cast<double>(alphabet.size());
    std::size_t const length = std::min(s.size(), s.find('\0'));
    double result = 0;
    for (std::size_t i = 0; i < length; ++i) {
        double const power = std::pow(base, static_cast<double>(length - 1 - i));
        result += position[static_cast<unsigned char>(s[i])] * power;
    }
    return result;
}

std::string double2basen(double v, std::string const& alphabet)
{
    if (alphabet.empty() || std::isnan(v) || std::isinf(v) || v < 0)
        return std::string();
    if (alphabet.size() < 2 && v != 0)
        return std::string(); // base 1 would never reach 0
    double const base = static_cast<double>(alphabet.size());
    std::string reversed;
    do {
        double const digit = std::floor(std::fmod(v, base));
        reversed += alphabet[static_cast<std::size_t>(digit)];
        v = (v - digit) / base;
    } while (v != 0);
    return std::string(reversed.rbegin(), reversed.rend());
}

double string2doubleBase10(std::string const& s) { return basen2double(s, kBase10); }
double string2doubleBaseHex(std::string const& s) { return basen2double(toupper(s), kBaseHex); }
double string2doubleBase34(std::string const& s) { return basen2double(s, kBase34); }
double string2doubleBase36(std::string const& s) { return basen2double(s, kBase36); }
std::string double2StringBase10(double v) { return double2basen(v, kBase10); }
std::string double2StringBaseHex(double v) { return double2basen(v, kBaseHex); }
std::string double2StringBase34(double v) { return double2basen(v, kBase34); }
std::string double2StringBase36(double v) { return double2basen(v, kBase36); }

int checkSum(std::string const& s)
{
    // Unsigned, so that even a text of a billion nines wraps instead of overflowing.
    unsigned sum = 0;
    for (unsigned char c : s)
        if (c >= '0' && c <= '9')
            sum += static_cast<unsigned>(c - '0');
    return static_cast<int>(sum);
}
