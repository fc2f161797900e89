// The readers of dates and durations. The input is a date and a duration, separated by a line feed.

#include "base/mdDateSerial.h"
#include "base/mdDateText.h"
#include "base/mdTimeFormatting.h"
#include "base/mdTypedText.h"
#include "tests/fuzz/mdFuzz.h"

#include <algorithm>
#include <limits>

namespace {

using Error = clsRunTimeError;

constexpr int TestYear = 2024;

void attackDate(const QString &text)
{
    const auto date = DateFromText(text);
    mdFuzzRequire(IsDate(text) == date.has_value(), "a date is what the reader takes");
    if (date) {
        const QString written = DateText(*date);
        const auto again = DateFromText(written);
        mdFuzzRequire(again && DateText(*again) == written, "a date is written in one way");
        // The years that two digits can represent.
        const bool told = date->year() >= 1930 && date->year() <= 2029;
        mdFuzzRequire(!told || *again == *date, "a date written is read as itself");
        mdFuzzSame(again->toString(QStringLiteral("yyyyMMdd")), mdDateSerial(written), "a date has its serial");
    }

    const QString serial = mdDateSerial(text);
    const bool digits = serial.size() == 8
        && std::all_of(serial.begin(), serial.end(), [](QChar c) { return c >= u'0' && c <= u'9'; });
    mdFuzzRequire(serial == text || digits, "a serial is eight digits or the text itself");

    int lastYear = TestYear;
    const auto typed = TypedDate(text, lastYear);
    if (!typed)
        mdFuzzRequire(lastYear == TestYear, "a date that doesn't fit leaves the last year");
    else if (!typed->isEmpty()) {
        mdFuzzRequire(IsDate(*typed), "a typed date is one");
        mdFuzzRequire(lastYear == TestYear || lastYear == DateFromText(*typed)->year(), "the last year is the date's");
        const int year = lastYear;
        mdFuzzRequire(TypedDate(*typed, lastYear) == typed && lastYear == year, "a typed date stays");
    }
}

void attackTime(const QString &text)
{
    mdFuzzErrorOf({Error::SubscriptOutOfRange, Error::Overflow}, "a duration fails by its errors", [&] {
        const int minutes = TimeToMinutes(text);
        mdFuzzRequire(text.contains(u':'), "a duration has a colon");
        const QString written = MinutesToTime(minutes);
        // For the smallest number, the hours rounded down are themselves out of range.
        if (minutes > std::numeric_limits<int>::min() + 60)
            mdFuzzRequire(TimeToMinutes(written) == minutes, "a duration written is read as itself");
    });
    // Errors take most of the time of fuzzing: one of each kind is enough.
    if (text.contains(u':'))
        mdFuzzErrorOf({Error::SubscriptOutOfRange, Error::Overflow}, "a minute later fails by the same errors", [&] {
            const QString later = TimeAfterOneMinute(text);
            mdFuzzSame(MinutesToTime(TimeToMinutes(text) + 1), later, "a minute later is one more");
        });
    if (const auto typed = TypedTime(text)) {
        mdFuzzRequire(TypedTime(*typed) == typed, "a typed duration stays");
        mdFuzzSame(*typed, MinutesToTime(TimeToMinutes(*typed)), "a typed duration can be read");
    }
}

} // namespace

void mdFuzzAttack(const uint8_t *data, size_t size)
{
    const QString input = mdFuzzText(data, size);
    const qsizetype lineEnd = input.indexOf(u'\n');
    attackDate(input.left(lineEnd));
    attackTime(lineEnd < 0 ? input : input.mid(lineEnd + 1));
}
