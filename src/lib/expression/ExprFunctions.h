#pragma once

#include <cstddef>
#include <cstdint>
#include <span>

/// One row of the table of names. The argument count is documentation and is never read.
struct ExprFunction {
    const char* pszName;
    int nArguments;
    int nId;
};

/// Ids that the evaluator itself looks at.
inline constexpr int kIdMod = 1019;
inline constexpr int kIdTime = 1099;
inline constexpr int kIdDate = 1100;
inline constexpr int kIdAscii = 1199;
inline constexpr int kIdBin = 1200;
inline constexpr int kIdOct = 1201;
inline constexpr int kIdHex = 1202;
inline constexpr int kIdMem = 2000;
inline constexpr int kIdNone = 9999; ///< of the sentinel that ends the table

/// The table of names; its last row is the sentinel, which no name matches.
std::span<const ExprFunction> ExprFunctions();

/// Index of the row whose name stands at `psz` (the sentinel's when none does) and the length of that name.
struct ExprName {
    std::uint32_t nRow;
    std::uint32_t nLength;
};
ExprName FindExprName(const char* psz);

/// What a table id computes; null when the id is of another kind.
const double* ExprConstant(int nId);
using OneArgumentFunction = double (*)(double);
OneArgumentFunction FindOneArgumentFunction(int nId);
using TwoArgumentFunction = double (*)(double, double);
TwoArgumentFunction FindTwoArgumentFunction(int nId);
