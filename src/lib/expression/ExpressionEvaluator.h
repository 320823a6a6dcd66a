#pragma once

#include <cstddef>
#include <cstdint>
#include <string>

struct ExprFunction;

/// The record by which a level of the grammar hands its outcome upward.
struct ExprResult {
    std::uint32_t nToken = 256; ///< token code; the row of the function table after a look-up
    std::uint32_t nLength = 0;  ///< characters consumed from the level's start
    double dValue;              ///< positive infinity at the start
    std::uint32_t nArgs = 0;    ///< in: other than 0 asks for a comma list; out: count of arguments read
    double adArgs[32] = {};     ///< arguments of a list, at most 31
    ExprResult();
};

/// Turns one line of text, an arithmetic, logical or date expression, into a double. A recursive descent that
/// reads straight from the text; failures travel as a thrown ErrCode, which Evaluate alone catches.
///
/// Text of any length is taken, in time and memory proportional to its length times the depth of its
/// brackets: each bracket that is open keeps a copy of what it holds. Brackets nested deeper than
/// kDeepestNesting, which no input field holds, end as ErrCode::OpenBracket.
///
/// Result and message texts live in static buffers: not for more than one thread.
class CExpressionEvaluator {
public:
    static constexpr int kDeepestNesting = 512;
    static constexpr int kMemoryCells = 100;

    CExpressionEvaluator();
    virtual ~CExpressionEvaluator() = default;

    /// The value of the expression, positive infinity on any failure; GetError tells which. A null pointer
    /// counts as the empty text.
    double Evaluate(const char* pszExpression);

    /// The last ErrCode, 0 for none. Reading an empty memory cell sets it without failing.
    int GetError() const { return m_nError; }
    /// The text that fills the message.
    const char* GetErrorArg() const { return m_szErrorArg; }
    /// The message of the last error, in a buffer that the next call overwrites.
    const char* GetErrorText() const;

    /// The value in the format that is set, in a buffer that the next call overwrites; empty for no value.
    /// Every form but "Dec" and custom ones throws ErrCode::IntegerTest for a value that is not an integer of
    /// 32 bits.
    const char* Format(double dValue);
    /// "Bin", "Oct", "Dec", "Hex", "Date", "Time", or a name that FormatCustom knows. The pointer is stored.
    void SetFormat(const char* pszFormat) { m_pszFormat = pszFormat; }
    /// Digits of the general and of the fixed form, 0 to 127; false for any other.
    bool SetPrecision(int nPrecision);
    bool SetFixedPrecision(int nPrecision);
    void SetFixed(bool bFixed) { m_bFixed = bFixed; }

    /// Stores the last result in the first cell that is not set, or in cell `nCell`. 0, or 25 when no cell is
    /// free or there is no such cell.
    int StoreResult();
    int StoreResultIn(int nCell);

protected:
    /// Called for an identifier that is not in the function table, with the text from it on and the table's
    /// last row as the token. True if it took the text: `result` then holds value and length.
    virtual bool HandleFunction(const char* pszText, ExprResult& result);
    /// The text of a value for an unknown format name, or null. It may stand in the buffer of Format.
    virtual const char* FormatCustom(const char* pszFormat, double dValue);

    /// Reads a bracket: an expression, or with `nArgs` other than 0 a comma list. For derived classes too.
    void ReadBracket(const char* psz, ExprResult& result);
    /// Sets the text of the message; the first one of an evaluation wins.
    void SetErrorArg(const char* psz);

private:
    // The grammar (ExpressionGrammar.cpp), loosest first.
    void ReadExpression(const char* psz, ExprResult& result);
    void ReadOperators(const char* psz, int nLoosest, ExprResult& result);
    void ReadFactorial(const char* psz, ExprResult& result);
    void ReadPrimary(const char* psz, ExprResult& result);
    void ReadOperand(std::uint32_t nToken, const char* psz, ExprResult& result);
    void ReadArguments(const char* pszList, ExprResult& result);

    void ReadName(const char* psz, ExprResult& result);
    void CallFunction(const ExprFunction& function, const char* psz, ExprResult& result);
    void ReadTwoArguments(const ExprFunction& function, const char* psz, ExprResult& result);
    void ReadUnknownName(const char* psz, ExprResult& result);

    // What is no expression (ExpressionOperands.cpp).
    const char* ReadLiteral(const ExprFunction& function, const char* psz, double& dValue);
    double Fraction(double d);
    double MemoryCell(double dCell);
    const char* ReadAscii(const char* psz, double& dValue);
    const char* ReadBased(const char* psz, int nBase, const char* pszName, double& dValue);
    std::string ReadLiteralText(const char*& psz, const char* pszName);

    std::int32_t RequireInteger(double dValue);
    void PrintDecimal(double dValue);

    double m_adMemory[kMemoryCells];
    double m_dFraction = 0.0; ///< the integer part that `mod` throws away; never read
    const char* m_pszFormat = "Dec";
    int m_nPrecision = 9;
    int m_nFixedPrecision = 2;
    bool m_bFixed = false;
    int m_nError = 0;
    double m_dResult = 0.0;
    char m_szErrorArg[256] = {};
    int m_nNesting = 0;
};
