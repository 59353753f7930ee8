#include "tovuutil/text/FormatValidator.h"

#include <algorithm>
#include <cctype>

#include <boost/lexical_cast.hpp>

#include "tovuutil/text/StringUtil.h"

namespace {

bool isDigit(char c) { return std::isdigit(static_cast<unsigned char>(c)) != 0; }

bool beginsWithChar(std::string const& s, char c) { return !s.empty() && s[0] == c; }

// "-" when the trimmed text begins with a minus, else "".
std::string minusOf(std::string const& trimmed) { return beginsWithChar(trimmed, '-') ? "-" : ""; }

// The value as a float, or nothing when the text cannot be converted; the
// predicates answer, they never throw.
bool toFloat(std::string const& s, float& value)
{
    try {
        value = string2Float(s);
        return true;
    } catch (boost::bad_lexical_cast const&) {
        return false;
    }
}

} // namespace

std::string formatRemoveSign(std::string const& s)
{
    std::string t = trim(s);
    if (beginsWithChar(t, '+') || beginsWithChar(t, '-'))
        t = trim(t.substr(1));
    return t;
}

std::string erasePlus(std::string const& s)
{
    std::string t = trim(s);
    if (beginsWithChar(t, '+'))
        t = trim(t.substr(1));
    return t;
}

std::string formatNumericUnsigned(std::string const& s)
{
    std::string t = formatRemoveSign(trim(s));
    return t.empty() ? "0" : t;
}

std::string formatNumericUnsigned(std::string const& s, int n)
{
    return formatRight(formatNumericUnsigned(s), n, '0');
}

std::string formatNumeric(std::string const& s)
{
    std::string const t = trim(s);
    return minusOf(t) + formatNumericUnsigned(t);
}

std::string formatNumeric(std::string const& s, int n)
{
    std::string const t = trim(s);
    return minusOf(t) + formatNumericUnsigned(t, n);
}

std::string trimLeadingZero(std::string const& s)
{
    std::string const t = trim(s);
    std::string u = formatNumericUnsigned(t);
    if (beginsWithChar(u, '0')) {
        u.erase(0, u.find_first_not_of('0') == std::string::npos ? u.size() : u.find_first_not_of('0'));
        if (u.empty() || u[0] == ',')
            u.insert(0, "0");
    }
    return minusOf(t) + u;
}

std::string formatFloat(std::string const& s)
{
    std::string t = trim(s);
    std::string const sign = minusOf(t);
    if (beginsWithChar(t, '+') || beginsWithChar(t, '-'))
        t = trim(t.substr(1));
    if (beginsWithChar(t, ','))
        t.insert(0, "0");
    return sign + t;
}

bool isOnlyDigits(std::string const& s) { return std::all_of(s.begin(), s.end(), isDigit); }

bool isNumeric(std::string const& s)
{
    std::string const t = formatRemoveSign(trim(s));
    return !t.empty() && isOnlyDigits(t);
}

bool isFloat(std::string const& s)
{
    if (trim(s).empty())
        return false;
    std::string const t = formatRemoveSign(s);
    return std::all_of(t.begin(), t.end(), [](char c) { return isDigit(c) || c == ','; }) &&
           std::count(t.begin(), t.end(), ',') <= 1;
}

bool isAmount(std::string const& s)
{
    if (!isFloat(s))
        return false;
    std::string const t = trim(s);
    return t.size() >= 3 && t[t.size() - 3] == ',';
}

bool isFormatN(std::string const& s) { return isNumeric(s); }

bool isFormatU(std::string const& s) { return isNumeric(s) && !beginsWithChar(formatNumeric(s), '-'); }

bool isFormatO(std::string const& s)
{
    std::string const t = trim(s);
    return !beginsWithChar(t, '+') && !beginsWithChar(t, '-') && isNumeric(s);
}

bool isFormatG(std::string const& s) { return isFormatU(s) && static_cast<double>(string2Int64(s)) > 0; }

bool isFormatM(std::string const& s)
{
    return isFormatU(formatNumericUnsigned(s)) && static_cast<double>(string2Int64(s)) != 0;
}

bool isFormatY(std::string const& s)
{
    std::string const t = trim(s);
    return isFormatG(s) && (t == "1" || t == "2");
}

bool isFormatJ(std::string const& s) { return isFormatG(s) && trim(s) == "1"; }

bool isFormatP(std::string const& s) { return isAmount(s); }

bool isFormatR(std::string const& s)
{
    float value = 0;
    return isAmount(s) && toFloat(s, value) && value > 0;
}

bool isFormatS(std::string const& s)
{
    float value = 0;
    return isAmount(s) && toFloat(s, value) && value != 0;
}

bool isFormatPROZENT(std::string const& s)
{
    float value = 0;
    return isAmount(s) && toFloat(trim(s), value) && value >= 0;
}

bool isFormatF(std::string const& s)
{
    if (isFormatU(s))
        return true;
    float value = 0;
    return isFloat(s) && right(trim(s), ",").size() < 5 && toFloat(s, value) && value >= 0;
}

bool isFormatV(std::string const& s) { return isFloat(s) && right(trim(s), ",").size() < 5; }
