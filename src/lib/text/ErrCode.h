#pragma once

/// Errors of the expression evaluator, and the only type that the program's own code throws, by value.
enum class ErrCode : int {
    None = 0,
    Unknown = 1,
    DivisionByZero = 17001,
    FactorialOverflow = 17002,
    UnhandledFunction = 17003,
    IncompleteExpression = 17004,
    UnknownFunction = 17005,
    MissingOperand = 17006,
    MissingParameter = 17007,
    NotAnInteger = 17008, ///< noted by the integer test just before it throws IntegerTest
    OpenBracket = 17009,
    Overflow = 17011, ///< nothing raises it
    CellNotSet = 17012,
    NoInput = 17015,
    NoParentheses = 17016,
    IntegerTest = 17100, ///< has no message of its own
    UnknownCharacter = 17101,
    OpenComment = 17150,
    UnknownConstant = 17179,
    MissingOpenBracket = 17180,
    MissingCloseBracket = 17181,
    EmptyBrackets = 17182,
    MissingDay = 17184,
    MissingMonth = 17185,
    MissingYear = 17186,
    MissingHour = 17187,
    MissingMinute = 17188,
    MissingSecond = 17189,
    WrongArgumentCount = 17190,
    BadArgument = 17191, ///< nothing raises it
    TooManyArguments = 17192,
};

/// The message of a code, English only, misspellings included; a "%s" in it stands for the error's text. A
/// code without a message of its own gives that of Unknown.
const char* ErrorMessage(int nError);
