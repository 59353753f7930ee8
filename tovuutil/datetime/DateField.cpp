#include "tovuutil/datetime/DateField.h"

#include "tovuutil/datetime/detail/Calendar.h"
#include "tovuutil/text/StringUtil.h"

namespace {

using Codes = std::list<int>;

bool isDigit(unsigned char c) { return c >= '0' && c <= '9'; }

// 'D' a digit 0-9, anything else that literal character. Only the digits
// 0-9 count whatever the host's locale says about other bytes (superscript
// digits of Windows-1252 would make the values meaningless).
bool hasShape(std::string const& s, char const* shape, std::size_t length)
{
    if (s.size() < length)
        return false;
    for (std::size_t i = 0; i < length; ++i) {
        unsigned char const c = static_cast<unsigned char>(s[i]);
        if (shape[i] == 'D' ? !isDigit(c) : c != static_cast<unsigned char>(shape[i]))
            return false;
    }
    return true;
}

bool isShape(std::string const& s, char const* shape)
{
    std::string::size_type const length = std::char_traits<char>::length(shape);
    return s.size() == length && hasShape(s, shape, length);
}

// Length first, then shape: {1}, {2} or nothing.
Codes lengthAndShape(std::string const& s, char const* shape)
{
    if (s.size() != std::char_traits<char>::length(shape))
        return {1};
    if (!isShape(s, shape))
        return {2};
    return {};
}

int number(std::string const& s, std::size_t from, std::size_t count) { return string2Int(s.substr(from, count)); }

using tovu::detail::isLeapYear;
using tovu::detail::kMonthLengths;

int overflowCode(int maximum)
{
    switch (maximum) {
    case 31: return 9;
    case 30: return 8;
    case 29: return 7;
    case 28: return 6;
    default: return 3;
    }
}

// The shared day-and-month check of "DD.MM." with February at februaryDays.
Codes checkDayMonth(std::string const& s, int februaryDays)
{
    Codes codes = lengthAndShape(s, "DD.DD.");
    if (!codes.empty())
        return codes;
    int const day = number(s, 0, 2);
    int const month = number(s, 3, 2);
    bool const validMonth = month >= 1 && month <= 12;
    if (!validMonth)
        codes.push_back(4);
    if (day < 1)
        codes.push_back(9);
    int const maximum = !validMonth ? 31 : (month == 2 ? februaryDays : kMonthLengths[month - 1]);
    if (day > maximum)
        codes.push_back(overflowCode(maximum));
    return codes;
}

void appendShifted(Codes& to, Codes const& from, int offset)
{
    for (int code : from)
        to.push_back(offset + code);
}

// Start and end values of a valid range.
struct Range {
    long start, end;
};

char rangeVerdict(Range a, Range b)
{
    if (a.end < b.start)
        return '<';
    if (a.start > b.end)
        return '>';
    return 'c';
}

char valueVerdict(long a, long b) { return a < b ? '<' : (a == b ? '=' : '>'); }

} // namespace

std::list<int> checkDateFormatT(std::string const& s) { return checkDayMonth(s, 29); }

std::list<int> checkDateFormatT(std::string const& s, std::string const& year)
{
    Codes codes = lengthAndShape(s, "DD.DD.");
    return codes.empty() ? checkDateFormatD(s + year) : codes;
}

std::list<int> checkDateFormatD(std::string const& s)
{
    Codes codes = lengthAndShape(s, "DD.DD.DDDD");
    if (!codes.empty())
        return codes;
    int const year = number(s, 6, 4);
    if (year < 1890)
        codes.push_back(5);
    Codes dayMonth = checkDayMonth(s.substr(0, 6), isLeapYear(year) ? 29 : 28);
    codes.merge(dayMonth);
    return codes;
}

std::list<int> checkDateFormatE(std::string const& s)
{
    Codes codes = lengthAndShape(s, "DD.DD.DD");
    return codes.empty() ? checkDayMonth(s.substr(0, 6), 29) : codes;
}

std::list<int> checkDateFormatL(std::string const& s)
{
    Codes codes = lengthAndShape(s, "DD.DD");
    if (codes.empty()) {
        int const month = number(s, 0, 2);
        if (month < 1 || month > 12)
            codes.push_back(4);
    }
    return codes;
}

int checkDateFormatK(std::string const& s)
{
    if (s.size() != 2)
        return 1;
    if (!isShape(s, "DD"))
        return 2;
    int const month = string2Int(s);
    return month < 1 || month > 12 ? 4 : 0;
}

std::list<int> checkDateFormatB(std::string const& s)
{
    Codes codes = lengthAndShape(s, "DD.DD-DD.DD");
    if (!codes.empty())
        return codes;
    std::string const first = s.substr(0, 5);
    std::string const second = s.substr(6, 5);
    appendShifted(codes, checkDateFormatT(first + "."), 10);
    appendShifted(codes, checkDateFormatT(second + "."), 20);
    if (calcValue4FormatT(second) < calcValue4FormatT(first))
        codes.push_back(100);
    return codes;
}

std::list<int> checkDateFormatB(std::string const& s, std::string const& year)
{
    Codes codes = lengthAndShape(s, "DD.DD-DD.DD");
    if (!codes.empty())
        return codes;
    return checkDateFormatZ(s.substr(0, 5) + "." + year + "-" + s.substr(6, 5) + "." + year);
}

std::list<int> checkDateFormatZ(std::string const& s)
{
    Codes codes = lengthAndShape(s, "DD.DD.DDDD-DD.DD.DDDD");
    if (!codes.empty())
        return codes;
    std::string const first = s.substr(0, 10);
    std::string const second = s.substr(11, 10);
    appendShifted(codes, checkDateFormatD(first), 10);
    appendShifted(codes, checkDateFormatD(second), 20);
    if (calcValue4FormatD(second) < calcValue4FormatD(first))
        codes.push_back(100);
    return codes;
}

long calcValue4FormatT(std::string const& s)
{
    if (!hasShape(s, "DD.DD", 5))
        return -1;
    return number(s, 0, 2) + 100L * number(s, 3, 2);
}

long calcValue4FormatD(std::string const& s)
{
    if (!hasShape(s, "DD.DD.DDDD", 10))
        return -1;
    return calcValue4FormatT(s.substr(0, 6)) + 10000L * number(s, 6, 4);
}

long calcValue4FormatE(std::string const& s)
{
    if (!hasShape(s, "DD.DD.DD", 8))
        return -1;
    return calcValue4FormatT(s.substr(0, 6)) + 10000L * number(s, 6, 2);
}

char compareFormatD(std::string const& a, std::string const& b)
{
    if (!checkDateFormatD(a).empty() || !checkDateFormatD(b).empty())
        return ' ';
    return valueVerdict(calcValue4FormatD(a), calcValue4FormatD(b));
}

char compareFormatT(std::string const& a, std::string const& b)
{
    if (!checkDateFormatT(a).empty() || !checkDateFormatT(b).empty())
        return ' ';
    return valueVerdict(calcValue4FormatT(a), calcValue4FormatT(b));
}

char compareRangeFormatK(std::string const& a, std::string const& b)
{
    if (checkDateFormatK(a) != 0 || checkDateFormatK(b) != 0)
        return ' ';
    return valueVerdict(string2Int(a), string2Int(b));
}

char compareRangeFormatB(std::string const& a, std::string const& b)
{
    if (!checkDateFormatB(a).empty() || !checkDateFormatB(b).empty())
        return ' ';
    if (a == b)
        return '=';
    return rangeVerdict({calcValue4FormatT(a.substr(0, 5)), calcValue4FormatT(a.substr(6, 5))},
                        {calcValue4FormatT(b.substr(0, 5)), calcValue4FormatT(b.substr(6, 5))});
}

char compareRangeFormatZ(std::string const& a, std::string const& b)
{
    if (!checkDateFormatZ(a).empty() || !checkDateFormatZ(b).empty())
        return ' ';
    if (a == b)
        return '=';
    return rangeVerdict({calcValue4FormatD(a.substr(0, 10)), calcValue4FormatD(a.substr(11, 10))},
                        {calcValue4FormatD(b.substr(0, 10)), calcValue4FormatD(b.substr(11, 10))});
}
