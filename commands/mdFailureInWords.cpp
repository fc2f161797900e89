#include "commands/mdFailureInWords.h"

#include "base/clsRunTimeError.h"

namespace {

constexpr struct {
    int number;
    const char *words;
} Failures[] = {
    {clsRunTimeError::DiskFull, "the disk is full"},
    {clsRunTimeError::PermissionDenied, "it may not be written to"},
    {clsRunTimeError::DeviceError, "the disk does not answer"},
    {clsRunTimeError::DiskNotReady, "the disk does not answer"},
    {clsRunTimeError::PathNotFound, "its folder is not there"},
    {clsRunTimeError::InputPastEnd, "the file does not hold what was written"},
};

} // namespace

QString FailureInWords(int number)
{
    for (const auto &row : Failures)
        if (row.number == number)
            return QString::fromLatin1(row.words);
    const QString standard = clsRunTimeError::standardDescription(number);
    return standard.left(1).toLower() + standard.mid(1);
}
