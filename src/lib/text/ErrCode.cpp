#include "lib/text/ErrCode.h"

#include "lib/text/CodePage.h"

namespace {

struct Message {
    ErrCode code;
    const char* pszText;
};

constexpr const char* kUnknownError = "Unknown Error.";

constexpr Message kMessages[] = {
    {ErrCode::None, "No errors."},
    {ErrCode::Unknown, kUnknownError},
    {ErrCode::DivisionByZero, "Division by zero."},
    {ErrCode::FactorialOverflow, "Fakultät overflow."_cp1252},
    {ErrCode::UnhandledFunction, "Esotheric error [%s]"},
    {ErrCode::IncompleteExpression, "Incomlete expression."},
    {ErrCode::UnknownFunction, "Function not handled. [%s]"},
    {ErrCode::MissingOperand, "Missing opperand."},
    {ErrCode::MissingParameter, "Missing parameter for function %s."},
    {ErrCode::NotAnInteger, "Result is not an integer."},
    {ErrCode::OpenBracket, "Too many open brackets. (%s)"},
    {ErrCode::Overflow, "Overflow [%s]"},
    {ErrCode::CellNotSet, "Variable %s not set."},
    {ErrCode::NoInput, "No input data."},
    {ErrCode::NoParentheses, "No parentheses allowed here. [%s]"},
    {ErrCode::UnknownCharacter, "Unknown character [ %s ]."},
    {ErrCode::OpenComment, "Comment not closed."},
    {ErrCode::UnknownConstant, "Unknown constant [%s]."},
    {ErrCode::MissingOpenBracket, "Missing open bracket."},
    {ErrCode::MissingCloseBracket, "Missing close bracket."},
    {ErrCode::EmptyBrackets, "Empty brackets."},
    {ErrCode::MissingDay, "Missing day."},
    {ErrCode::MissingMonth, "Missing month."},
    {ErrCode::MissingYear, "Missing year."},
    {ErrCode::MissingHour, "Missing hour."},
    {ErrCode::MissingMinute, "Missing minute."},
    {ErrCode::MissingSecond, "Missing secunde."},
    {ErrCode::WrongArgumentCount, "Wrong number of arguments. [%s]"},
    {ErrCode::BadArgument, "Bad argument."},
    {ErrCode::TooManyArguments, "Too many arguments."},
};

} // namespace

const char* ErrorMessage(int nError)
{
    for (const Message& message : kMessages) {
        if (static_cast<int>(message.code) == nError) {
            return message.pszText;
        }
    }
    return kUnknownError;
}
