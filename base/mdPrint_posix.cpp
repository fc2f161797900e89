// Whether a stream is a terminal, on POSIX systems. Another platform needs its own version of this file.

#include "base/mdPrint.h"

#include <QStringList>

#include <unistd.h>

QString mdWithoutControls(QString text)
{
    for (QChar &c : text)
        if (c.category() == QChar::Other_Control)
            c = u'?';
    return text;
}

QByteArray mdPrinted(std::FILE *stream, const QString &text)
{
    // A line feed alone doesn't end a line: it comes from a file name.
    QStringList lines = text.split(QStringLiteral("\r\n"));
    if (mdIsTerminal(stream))
        for (QString &line : lines)
            line = mdWithoutControls(line);
    return lines.join(u'\n').toUtf8();
}

void mdPrint(std::FILE *stream, const QString &text)
{
    const QByteArray bytes = mdPrinted(stream, text);
    std::fwrite(bytes.constData(), 1, size_t(bytes.size()), stream);
}

void mdPrintBytes(const QByteArray &bytes)
{
    std::fwrite(bytes.constData(), 1, size_t(bytes.size()), stdout);
}

bool mdIsTerminal(std::FILE *stream)
{
    return ::isatty(::fileno(stream)) == 1;
}
