#include "lib/expression/ExprFunctions.h"

#include "lib/calendar/CalDate.h"
#include "lib/calendar/Calendar.h"
#include "lib/expression/ExprTokens.h"
#include "lib/expression/ExprValues.h"
#include "lib/text/ErrCode.h"

#include <cmath>
#include <cstdlib>

namespace {

constexpr ExprFunction kFunctions[] = {
    {"abs", 1, 1018},   {"acos", 1, 1010},    {"ascii", 1, kIdAscii}, {"asin", 1, 1011},
    {"atan", 1, 1012},  {"bin", 1, kIdBin},   {"ceil", 1, 1017},      {"cosh", 1, 1013},
    {"cos", 1, 1004},   {"date", 3, kIdDate}, {"day", 1, 1102},       {"exp", 1, 1006},
    {"e", 0, 1001},     {"floor", 1, 1016},   {"hex", 1, kIdHex},     {"int", 1, 1020},
    {"log10", 1, 1008}, {"log", 1, 1007},     {"max", 2, 3003},       {"mem", 1, kIdMem},
    {"min", 2, 3002},   {"mod", 1, kIdMod},   {"month", 0, 1104},     {"oct", 1, kIdOct},
    {"pi", 0, 1000},    {"pow", 2, 3001},     {"rand", 1, 1203},      {"sinh", 1, 1014},
    {"sin", 1, 1003},   {"sqrt", 1, 1009},    {"tanh", 1, 1015},      {"tan", 1, 1005},
    {"ver", 0, 4000},   {"time", 1, kIdTime}, {"weekday", 1, 1101},   {"week", 1, 1103},
    {"year", 1, 1105},  {"NOP", 0, kIdNone},
};

template <typename Value>
struct ById {
    int nId;
    Value value;
};

template <typename Value, std::size_t n>
const Value* Find(const ById<Value> (&table)[n], int nId)
{
    for (const ById<Value>& row : table) {
        if (row.nId == nId) {
            return &row.value;
        }
    }
    return nullptr;
}

/// The date of a day number, which counts from 1.1.1.
CalDate DateOfDay(double dDay) { return AddDays(CalDate(1, 1, 1), TruncToLow32(dDay)); }

double IntegerPart(double d)
{
    double dInteger = 0.0;
    std::modf(d, &dInteger);
    return dInteger;
}

/// The evaluator does not seed: the state is that of the standard library.
double Random(double dLimit)
{
    const std::int32_t nLimit = TruncToLow32(dLimit);
    if (nLimit == 0) {
        throw ErrCode::Unknown;
    }
    return std::rand() % nLimit;
}

constexpr ById<double> kConstants[] = {
    {1000, 3.141592653589793}, {1001, 2.718281828459045}, {4000, 20001114.0}};

constexpr ById<OneArgumentFunction> kOneArgument[] = {
    {1003, [](double d) { return std::sin(d); }},
    {1004, [](double d) { return std::cos(d); }},
    {1005, [](double d) { return std::tan(d); }},
    {1006, [](double d) { return std::exp(d); }},
    {1007, [](double d) { return std::log(d); }},
    {1008, [](double d) { return std::log10(d); }},
    {1009, [](double d) { return std::sqrt(d); }},
    {1010, [](double d) { return std::acos(d); }},
    {1011, [](double d) { return std::asin(d); }},
    {1012, [](double d) { return std::atan(d); }},
    {1013, [](double d) { return std::cosh(d); }},
    {1014, [](double d) { return std::sinh(d); }},
    {1015, [](double d) { return std::tanh(d); }},
    {1016, [](double d) { return std::floor(d); }},
    {1017, [](double d) { return std::ceil(d); }},
    {1018, [](double d) { return std::fabs(d); }},
    {1020, IntegerPart},
    {1101, [](double d) { return static_cast<double>(DateOfDay(d).Weekday()); }},
    {1102, [](double d) { return static_cast<double>(DateOfDay(d).GetDay()); }},
    {1103, [](double d) { return static_cast<double>(DateOfDay(d).Week()); }},
    {1104, [](double d) { return static_cast<double>(DateOfDay(d).GetMonth()); }},
    {1105, [](double d) { return static_cast<double>(DateOfDay(d).GetYear()); }},
    {1203, Random},
};

constexpr ById<TwoArgumentFunction> kTwoArguments[] = {
    {3001, [](double a, double b) { return std::pow(a, b); }},
    {3002, [](double a, double b) { return a < b ? a : b; }},
    {3003, [](double a, double b) { return a > b ? a : b; }},
};

/// Length of a name if it stands at `psz`, else 0.
std::uint32_t MatchName(const char* pszName, const char* psz)
{
    const char* p = psz;
    for (; *pszName != 0; ++pszName, ++p) {
        if (*p != *pszName) {
            return 0;
        }
    }
    return IsNameCharacter(*p) ? 0 : static_cast<std::uint32_t>(p - psz);
}

} // namespace

std::span<const ExprFunction> ExprFunctions() { return kFunctions; }

ExprName FindExprName(const char* psz)
{
    const char* const pszName = SkipExprBlanks(psz);
    const auto nBlanks = static_cast<std::uint32_t>(pszName - psz);
    std::uint32_t nRow = 0;
    for (; kFunctions[nRow].nId != kIdNone; ++nRow) {
        if (const std::uint32_t nLength = MatchName(kFunctions[nRow].pszName, pszName); nLength != 0) {
            return {nRow, nBlanks + nLength};
        }
    }
    return {nRow, nBlanks};
}

const double* ExprConstant(int nId) { return Find(kConstants, nId); }

OneArgumentFunction FindOneArgumentFunction(int nId)
{
    const OneArgumentFunction* const row = Find(kOneArgument, nId);
    return row != nullptr ? *row : nullptr;
}

TwoArgumentFunction FindTwoArgumentFunction(int nId)
{
    const TwoArgumentFunction* const row = Find(kTwoArguments, nId);
    return row != nullptr ? *row : nullptr;
}
