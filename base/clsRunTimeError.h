#pragma once

#include <QString>

#include <exception>
#include <string>

/// A failure that nothing below the top catches: one number, one description.
/// The numbers are the classic ones of this system's messages; whoever meets a failure of the operating system
/// maps it to one of them, so that a user sees the same words whatever the cause's own wording is.
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
    /// The error with a description of its own, for failures that the standard words would hide (a damaged document).
    clsRunTimeError(int number, const QString &description);

    /// Number and description, made when they are asked for: a large claim may meet thousands of errors.
    const char *what() const noexcept override;
    int number() const { return m_number; }
    const QString &description() const { return m_description; }
    /// What in the claim it comes from, as in "Schedule item 12 names a fee earner that no longer exists"; empty where
    /// no more is known than the description.
    const QString &cause() const { return m_cause; }
    /// The same error with its cause. A cause that it has already is nearer to the fault, and stays.
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
