#include "shell/zr3tool/clsJsonWriter.h"

#include <QJsonArray>
#include <QJsonDocument>

namespace {

/// The library escapes the control characters below the blank; a terminal obeys those from 7F to 9F too.
QByteArray withControlsEscaped(QByteArray json)
{
    for (char16_t control = 0x7f; control <= 0x9f; ++control)
        json.replace(QString(QChar(control)).toUtf8(), "\\u00" + QByteArray::number(control, 16));
    return json;
}

} // namespace

QByteArray clsJsonWriter::quoted(const QString &text)
{
    // The library's own quoting of an array with one text, without its brackets.
    const QByteArray text8 = QJsonDocument(QJsonArray {text}).toJson(QJsonDocument::Compact).mid(1).chopped(1);
    return withControlsEscaped(text8);
}

void clsJsonWriter::raw(const char *key, const QByteArray &value)
{
    if (!m_first)
        m_bytes += ',';
    m_first = false;
    newLine();
    if (key)
        m_bytes += quoted(QString::fromLatin1(key)) + ": ";
    m_bytes += value;
}

void clsJsonWriter::open(const char *key, char bracket)
{
    if (m_bytes.isEmpty())
        m_bytes += bracket;
    else
        raw(key, QByteArray(1, bracket));
    ++m_depth;
    m_first = true;
}

void clsJsonWriter::close(char bracket)
{
    --m_depth;
    if (!m_first)
        newLine();
    m_bytes += bracket;
    m_first = false;
    if (m_depth == 0)
        m_bytes += '\n';
}

void clsJsonWriter::newLine()
{
    m_bytes += '\n';
    m_bytes.append(m_depth, ' ');
}
