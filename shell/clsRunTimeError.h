#pragma once

#include <QString>

#include <stdexcept>

/// A failure that nothing below the top catches: one number, one description.
/// The numbers are the classic ones of this system's messages; whoever meets a failure of the operating system
/// maps it to one of them, so that a user sees the same words whatever the cause's own wording is.
class clsRunTimeError : public std::runtime_error {
public:
    enum Number {
        InvalidProcedureCall = 5,
        Overflow = 6,
        OutOfMemory = 7,
        SubscriptOutOfRange = 9,
        TypeMismatch = 13,
        FileNotFound = 53,
        BadFileMode = 54,
        FileAlreadyOpen = 55,
        DeviceError = 57,
        FileAlreadyExists = 58,
        DiskFull = 61,
        InputPastEnd = 62,
        BadFileName = 52,
        TooManyFiles = 67,
        PermissionDenied = 70,
        DiskNotReady = 71,
        PathFileAccess = 75,
        PathNotFound = 76,
        ObjectNotSet = 91,
        InvalidFileFormat = 321,
        NoSuchProperty = 438,
        ArgumentNotOptional = 449,
        WrongNumberOfArguments = 450,
    };

    /// The error with its standard description.
    explicit clsRunTimeError(int number);
    /// The error with a description of its own, for failures that the standard words would hide (a damaged document).
    clsRunTimeError(int number, const QString &description);

    int number() const { return m_number; }
    const QString &description() const { return m_description; }

    /// The error for an errno value of the operating system.
    static clsRunTimeError fromSystem(int systemError);
    /// The standard description of a number.
    static QString standardDescription(int number);

private:
    int m_number;
    QString m_description;
};
