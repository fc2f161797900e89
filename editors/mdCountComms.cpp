#include "editors/mdCountComms.h"

#include "base/clsRunTimeError.h"
#include "formdata/clsZR3FeeEarner.h"

#include <algorithm>
#include <limits>

namespace {

// clang-format off
constexpr clsCommsCount Counts[] = {
    {Qt::Key_C, "Calls",      3, "txtCalls"},
    {Qt::Key_I, "LettersIn",  4, "txtLettersIn"},
    {Qt::Key_O, "LettersOut", 5, "txtLettersOut"},
};

constexpr clsCommsStep Up   {+1, "Sounds/Blip.wav"};
constexpr clsCommsStep Down {-1, "Sounds/Blip Low.wav"};
// clang-format on

} // namespace

const clsCommsCount *mdCommsCountOfKey(int key)
{
    for (const clsCommsCount &row : Counts)
        if (row.key == key)
            return &row;
    return nullptr;
}

const clsCommsCount *mdCommsCountAtColumn(int column)
{
    for (const clsCommsCount &row : Counts)
        if (row.column == column)
            return &row;
    return nullptr;
}

const clsCommsStep &mdCommsStep(Qt::KeyboardModifiers shift)
{
    // Exactly Shift: with Control or Alt as well, it counts up. Required behaviour; do not fix.
    constexpr Qt::KeyboardModifiers state = Qt::ShiftModifier | Qt::ControlModifier | Qt::AltModifier;
    return (shift & state) == Qt::ShiftModifier ? Down : Up;
}

void mdCountComms(clsZR3FeeEarner &feeEarner, const clsCommsCount &count, int by)
{
    clsXMLField *field = feeEarner.field(QString::fromUtf8(count.count));
    if (!field)
        throw clsRunTimeError(clsRunTimeError::ObjectNotSet);
    // The count stops at its maximum as it does at 0, because an overflow error would end the program.
    constexpr qint64 Largest = std::numeric_limits<int>::max();
    qint64 counted = 0;
    try {
        counted = field->readLong();
    } catch (const clsRunTimeError &error) {
        // A number in a file that is too large is shown as wrong and has to be typed again.
        if (error.number() != clsRunTimeError::Overflow)
            throw;
        return;
    }
    field->writeLong(int(std::clamp<qint64>(counted + by, 0, Largest)));
}
