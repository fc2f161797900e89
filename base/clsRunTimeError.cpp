#include "base/clsRunTimeError.h"

#include <cerrno>

namespace {

struct Description {
    int number;
    const char *text;
};

constexpr Description Descriptions[] = {
    {clsRunTimeError::InvalidProcedureCall, "Invalid procedure call or argument"},
    {clsRunTimeError::Overflow, "Overflow"},
    {clsRunTimeError::OutOfMemory, "Out of memory"},
    {clsRunTimeError::SubscriptOutOfRange, "Subscript out of range"},
    {clsRunTimeError::TypeMismatch, "Type mismatch"},
    {clsRunTimeError::BadFileName, "Bad file name or number"},
    {clsRunTimeError::FileNotFound, "File not found"},
    {clsRunTimeError::BadFileMode, "Bad file mode"},
    {clsRunTimeError::FileAlreadyOpen, "File already open"},
    {clsRunTimeError::DeviceError, "Device I/O error"},
    {clsRunTimeError::FileAlreadyExists, "File already exists"},
    {clsRunTimeError::DiskFull, "Disk full"},
    {clsRunTimeError::InputPastEnd, "Input past end of file"},
    {clsRunTimeError::TooManyFiles, "Too many files"},
    {clsRunTimeError::PermissionDenied, "Permission denied"},
    {clsRunTimeError::DiskNotReady, "Disk not ready"},
    {clsRunTimeError::PathFileAccess, "Path/File access error"},
    {clsRunTimeError::PathNotFound, "Path not found"},
    {clsRunTimeError::ObjectNotSet, "Object variable or With block variable not set"},
    {clsRunTimeError::InvalidFileFormat, "Invalid file format"},
    {clsRunTimeError::NoSuchProperty, "Object doesn't support this property or method"},
    {clsRunTimeError::ArgumentNotOptional, "Argument not optional"},
    {clsRunTimeError::WrongNumberOfArguments, "Wrong number of arguments or invalid property assignment"},
};

struct SystemError {
    int system;
    int number;
};

constexpr SystemError SystemErrors[] = {
    {ENOENT, clsRunTimeError::FileNotFound},
    {ENOTDIR, clsRunTimeError::PathNotFound},
    {ENOSPC, clsRunTimeError::DiskFull},
    {EDQUOT, clsRunTimeError::DiskFull},
    {EFBIG, clsRunTimeError::DiskFull},
    {EACCES, clsRunTimeError::PermissionDenied},
    {EPERM, clsRunTimeError::PermissionDenied},
    {EROFS, clsRunTimeError::PermissionDenied},
    {ETXTBSY, clsRunTimeError::PermissionDenied},
    {EBUSY, clsRunTimeError::PermissionDenied},
    {EIO, clsRunTimeError::DeviceError},
    {ENXIO, clsRunTimeError::DiskNotReady},
    {ENODEV, clsRunTimeError::DiskNotReady},
    {EISDIR, clsRunTimeError::PathFileAccess},
    {ELOOP, clsRunTimeError::PathFileAccess},
    {EEXIST, clsRunTimeError::FileAlreadyExists},
    {ENAMETOOLONG, clsRunTimeError::BadFileName},
    {EINVAL, clsRunTimeError::BadFileName},
    {EMFILE, clsRunTimeError::TooManyFiles},
    {ENFILE, clsRunTimeError::TooManyFiles},
    {ENOMEM, clsRunTimeError::OutOfMemory},
};

} // namespace

clsRunTimeError::clsRunTimeError(int number)
    : clsRunTimeError(number, standardDescription(number))
{ }

clsRunTimeError::clsRunTimeError(int number, const QString &description)
    : m_number(number)
    , m_description(description)
{ }

const char *clsRunTimeError::what() const noexcept
{
    try {
        m_what = QStringLiteral("Run-time error '%1': %2").arg(m_number).arg(m_description).toStdString();
    } catch (const std::bad_alloc &) { }
    return m_what.c_str();
}

clsRunTimeError clsRunTimeError::because(const QString &cause) const
{
    clsRunTimeError explained = *this;
    if (m_cause.isEmpty())
        explained.m_cause = cause;
    return explained;
}

clsRunTimeError clsRunTimeError::fromSystem(int systemError)
{
    for (const SystemError &row : SystemErrors)
        if (row.system == systemError)
            return clsRunTimeError(row.number);
    return clsRunTimeError(PathFileAccess);
}

QString clsRunTimeError::standardDescription(int number)
{
    for (const Description &row : Descriptions)
        if (row.number == number)
            return QString::fromLatin1(row.text);
    return QStringLiteral("Application-defined or object-defined error");
}
