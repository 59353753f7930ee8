#include <tovuutil/tovuutil.h>

#include <algorithm>
#include <cctype>
#include <list>

#include "CommandLine.h"
#include "Commands.h"

namespace tovu::cli {

namespace {

constexpr char kHelp[] =
    "usage: tovu check CODE VALUE...\n"
    "       tovu check T|B --year YYYY VALUE...\n\n"
    "Checks each VALUE against the format code of a form field and prints\n"
    "\"VALUE: valid\" or \"VALUE: invalid\". Exits 0 when every value is valid, 1\n"
    "otherwise. Codes (upper or lower case):\n\n"
    "  number fields  N whole number       U whole number, no minus  O digits only\n"
    "                 G positive number    M non-zero number         Y 1 or 2\n"
    "                 J 1                  P amount (two decimals)   R amount > 0\n"
    "                 S non-zero amount    PROZENT amount >= 0\n"
    "                 F number >= 0, at most four decimals\n"
    "                 V number with at most four decimals; without a comma at most\n"
    "                   four characters, sign included\n"
    "  date fields    T DD.MM.    D DD.MM.YYYY    E DD.MM.YY    L MM.YY    K MM\n"
    "                 B DD.MM-DD.MM    Z DD.MM.YYYY-DD.MM.YYYY\n\n"
    "Numbers are written the German way: a comma separates the decimals, a point\n"
    "is never accepted. For an invalid date every error is listed with its code;\n"
    "the codes of a range's first date are 10 higher, of its second date 20\n"
    "higher. --year checks T and B within that year (February by the leap rule).\n"
    "Values that start with \"-\" and a letter follow \"--\".\n\n"
    "examples: tovu check P 12,50 12,5\n"
    "          tovu check D 29.02.2024 31.04.2023\n";

using Predicate = bool (*)(std::string const&);

struct FieldCode {
    char const* name;
    Predicate accepts;
};

constexpr FieldCode kFieldCodes[] = {
    {"N", isFormatN}, {"U", isFormatU}, {"O", isFormatO}, {"G", isFormatG}, {"M", isFormatM},
    {"Y", isFormatY}, {"J", isFormatJ}, {"P", isFormatP}, {"R", isFormatR}, {"S", isFormatS},
    {"PROZENT", isFormatPROZENT}, {"F", isFormatF}, {"V", isFormatV},
};

using DateCheck = std::list<int> (*)(std::string const&);

// K answers with one code instead of a list; this gives it the others' form.
std::list<int> checkMonth(std::string const& s)
{
    int const code = checkDateFormatK(s);
    return code == 0 ? std::list<int>() : std::list<int>{code};
}

std::list<int> checkT(std::string const& s) { return checkDateFormatT(s); }
std::list<int> checkB(std::string const& s) { return checkDateFormatB(s); }

struct DateCode {
    char const* name;
    DateCheck check;
    std::list<int> (*checkInYear)(std::string const&, std::string const&);
};

constexpr DateCode kDateCodes[] = {
    {"T", checkT, checkDateFormatT},
    {"D", checkDateFormatD, nullptr},
    {"E", checkDateFormatE, nullptr},
    {"L", checkDateFormatL, nullptr},
    {"K", checkMonth, nullptr},
    {"B", checkB, checkDateFormatB},
    {"Z", checkDateFormatZ, nullptr},
};

// What each error code of a date check means; a range adds 10 or 20.
char const* const kDateErrors[] = {
    nullptr,
    "wrong length",
    "wrong shape: a digit or separator out of place",
    "day beyond the length of the month",
    "month not in 1..12",
    "year before 1890",
    "day after the 28th of February in a common year",
    "day after the 29th of February",
    "day after the 30th of April, June, September or November",
    "day before the 1st or after the 31st",
};

std::string meaningOf(int code)
{
    if (code == 100)
        return "the range ends before it starts";
    if (code > 0 && code < 10)
        return kDateErrors[code];
    if (code > 10 && code < 20)
        return std::string("first date: ") + kDateErrors[code - 10];
    if (code > 20 && code < 30)
        return std::string("second date: ") + kDateErrors[code - 20];
    return "unknown error";
}

bool isYear(std::string const& text)
{
    return text.size() == 4 &&
           std::all_of(text.begin(), text.end(), [](unsigned char c) { return c >= '0' && c <= '9'; });
}

std::string upper(std::string text)
{
    for (char& c : text)
        c = static_cast<char>(std::toupper(static_cast<unsigned char>(c)));
    return text;
}

} // namespace

int runCheck(Args const& args)
{
    CommandLine line;
    if (auto const done = parseCommandLine("check", kHelp, args, {{"--year", "year"}}, line))
        return *done;
    Args const& positional = line.operands;
    std::optional<std::string> const year = line.value("--year");
    if (year && !isYear(*year))
        return usageError("check", "'" + *year + "' is not a year of four digits");
    if (positional.empty())
        return usageError("check", "no format code given");
    std::string const code = upper(positional[0]);
    if (positional.size() < 2)
        return usageError("check", "no value to check");

    FieldCode const* field = nullptr;
    for (auto const& candidate : kFieldCodes)
        if (code == candidate.name)
            field = &candidate;
    DateCode const* date = nullptr;
    for (auto const& candidate : kDateCodes)
        if (code == candidate.name)
            date = &candidate;
    if (field == nullptr && date == nullptr)
        return usageError("check", "unknown format code '" + positional[0] + "'");
    if (year && (date == nullptr || date->checkInYear == nullptr))
        return usageError("check", "--year applies to the codes T and B only");

    int status = kOk;
    for (std::size_t i = 1; i < positional.size(); ++i) {
        std::string const& value = positional[i];
        std::string const text = fromTerminal(value);
        std::list<int> errors;
        if (date != nullptr)
            errors = year ? date->checkInYear(text, *year) : date->check(text);
        bool const valid = date != nullptr ? errors.empty() : field->accepts(text);
        out() << value << (valid ? ": valid\n" : ": invalid\n");
        for (int error : errors)
            out() << "  " << error << ": " << meaningOf(error) << '\n';
        if (!valid)
            status = kInvalid;
    }
    return status;
}

} // namespace tovu::cli
