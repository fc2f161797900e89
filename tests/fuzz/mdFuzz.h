#pragma once

#include "base/clsQuietUserInterface.h"
#include "base/clsRunTimeError.h"

#include <QByteArray>
#include <QString>

#include <algorithm>
#include <cstdint>
#include <initializer_list>

// What the targets share. A target is more than "it doesn't crash": it says what must hold of every input, and a rule
// that is broken ends the process, which the fuzzer takes for a finding.

/// The attack with one input: what each target has, and is called by the fuzzer.
void mdFuzzAttack(const uint8_t *data, size_t size);

/// Ends the process with the rule that was broken.
[[noreturn]] void mdFuzzFail(const char *rule, const QString &shown = {});

inline void mdFuzzRequire(bool holds, const char *rule)
{
    if (!holds)
        mdFuzzFail(rule);
}

/// Two texts or byte arrays that must be the same; both are shown where they aren't.
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

/// A folder of this process, which goes with it: the only one in which anything may be written during an attack.
const QString &mdFuzzFolder();

/// Writes a file of that folder, and reads one.
QString mdFuzzPut(const QString &name, const QByteArray &bytes);
QByteArray mdFuzzBytesOf(const QString &path);

/// The input as text: one character of the code page for each byte, so that no byte is wasted on a broken encoding.
QString mdFuzzText(const uint8_t *data, size_t size);

/// A user who only counts what he is told.
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
