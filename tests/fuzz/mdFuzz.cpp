#include "tests/fuzz/mdFuzz.h"

#include "base/mdCodePage.h"
#include "tests/fuzz/mdFuzzGuard.h"

#include <QFile>
#include <QTemporaryDir>

#include <cstdio>
#include <cstdlib>

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    const clsFuzzGuard guard;
    mdFuzzAttack(data, size);
    return 0;
}

void mdFuzzFail(const char *rule, const QString &shown)
{
    std::fprintf(stderr, "Broken rule: %s\n", rule);
    if (!shown.isEmpty())
        std::fprintf(stderr, "%s\n", shown.toUtf8().constData());
    std::abort();
}

void mdFuzzSame(const QByteArray &expected, const QByteArray &actual, const char *rule)
{
    if (expected == actual)
        return;
    qsizetype at = 0;
    while (at < expected.size() && at < actual.size() && expected[at] == actual[at])
        ++at;
    const qsizetype from = std::max<qsizetype>(0, at - 60);
    mdFuzzFail(rule,
        QStringLiteral("expected ...%1\nactual   ...%2")
            .arg(QString::fromLatin1(expected.mid(from, 160).toPercentEncoding(" <>/=\"")),
                QString::fromLatin1(actual.mid(from, 160).toPercentEncoding(" <>/=\""))));
}

void mdFuzzSame(const QString &expected, const QString &actual, const char *rule)
{
    if (expected != actual)
        mdFuzzSame(expected.toUtf8(), actual.toUtf8(), rule);
}

const QString &mdFuzzFolder()
{
    // Created in the environment's temporary folder, which the scripts set to one in memory.
    static const QTemporaryDir folder;
    static const QString path = folder.path();
    return path;
}

QString mdFuzzPut(const QString &name, const QByteArray &bytes)
{
    const QString path = mdFuzzFolder() + u'/' + name;
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size())
        mdFuzzFail("the folder of the attack can be written", path);
    return path;
}

QByteArray mdFuzzBytesOf(const QString &path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        mdFuzzFail("a file that was written can be read", path);
    return file.readAll();
}

QString mdFuzzText(const uint8_t *data, size_t size)
{
    return mdFromCodePage(QByteArrayView(reinterpret_cast<const char *>(data), qsizetype(size)));
}
