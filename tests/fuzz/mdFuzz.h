#pragma once

#include "base/clsQuietUserInterface.h"
#include "base/clsRunTimeError.h"

#include <QByteArray>
#include <QString>

#include <algorithm>
#include <cstdint>
#include <initializer_list>

// Shared by the targets. A target does more than test for crashes: it states what must hold for every input. A
// violation ends the process, which the fuzzer reports as a finding.

/// Tests one input: defined by each target, called by the fuzzer.
void mdFuzzAttack(const uint8_t *data, size_t size);

/// Ends the process with a message on the violated rule.
[[noreturn]] void mdFuzzFail(const char *rule, const QString &shown = {});

inline void mdFuzzRequire(bool holds, const char *rule)
{
    if (!holds)
        mdFuzzFail(rule);
}

/// Requires two texts or byte arrays to be equal; shows both otherwise.
void mdFuzzSame(const QString &expected, const QString &actual, const char *rule);
void mdFuzzSame(const QByteArray &expected, const QByteArray &actual, const char *rule);

/// The number of the run-time error that a call raises, 0 for none. Any other number than those allowed, and any other
/// class of exception, is a finding.
template <class Call> int mdFuzzErrorOf(std::initializer_list<int> allowed, const char *rule, Call call)
{
    try {
        call();
    } catch (const clsRunTimeError &error) {
        if (std::find(allowed.begin(), allowed.end(), error.number()) == allowed.end())
            mdFuzzFail(rule, QString::number(error.number()) + u' ' + error.description());
        return error.number();
    }
    return 0;
}

/// This process's temporary folder: the only one to which anything may be written during a test.
const QString &mdFuzzFolder();

/// Write a file in that folder, and read one.
QString mdFuzzPut(const QString &name, const QByteArray &bytes);
QByteArray mdFuzzBytesOf(const QString &path);

/// The input as text: one character of the code page for each byte, so that no byte is wasted on an invalid encoding.
QString mdFuzzText(const uint8_t *data, size_t size);

/// A user who only counts the messages.
class clsFuzzUser final : public clsQuietUserInterface {
public:
    int messages = 0;
    QString lastMessage;

    Answer customMessage(const QString &message, const QString &, Buttons buttons, int, int) override
    {
        return tell(message, buttons);
    }
    Answer systemMessage(const QString &message, const QString &, SystemIcon, Buttons buttons) override
    {
        return tell(message, buttons);
    }

private:
    Answer tell(const QString &message, Buttons buttons)
    {
        ++messages;
        lastMessage = message;
        return answerThatChangesNothing(buttons);
    }
};
