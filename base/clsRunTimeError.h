#pragma once

#include <QString>

#include <exception>
#include <string>

/// A failure that is handled only at the top level: one number, one description. The numbers are the classic ones of
/// this system's messages. Failures of the operating system are mapped to them, so that the user sees the same words
/// for the same failure.
class clsRunTimeError : public std::exception {
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
    /// The error with another description, for failures that the standard one would hide (a damaged document).
    clsRunTimeError(int number, const QString &description);

    /// Number and description, built on demand: a large claim may raise thousands of errors.
    const char *what() const noexcept override;
    int number() const { return m_number; }
    const QString &description() const { return m_description; }
    /// The part of the claim that caused it, as in "Schedule item 12 names a fee earner that no longer exists"; empty
    /// if unknown.
    const QString &cause() const { return m_cause; }
    /// The same error with a cause. An existing cause is nearer to the fault and is kept.
    clsRunTimeError because(const QString &cause) const;

    /// The error for an errno value of the operating system.
    static clsRunTimeError fromSystem(int systemError);
    /// The standard description of a number.
    static QString standardDescription(int number);

private:
    int m_number;
    QString m_description;
    QString m_cause;
    mutable std::string m_what;
};
