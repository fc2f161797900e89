#include "base/clsJsonWriter.h"

#include <QJsonArray>
#include <QJsonDocument>

#include <algorithm>

namespace {

/// The library escapes the control characters below the blank; terminals also act on 7F to 9F.
QByteArray withControlsEscaped(QByteArray json)
{
    for (char16_t control = 0x7f; control <= 0x9f; ++control)
        json.replace(QString(QChar(control)).toUtf8(), "\\u00" + QByteArray::number(control, 16));
    return json;
}

/// The library's quoting: an array of one text, without its brackets.
QByteArray quoted(const QString &text)
{
    return withControlsEscaped(QJsonDocument(QJsonArray {text}).toJson(QJsonDocument::Compact).mid(1).chopped(1));
}

bool standsAsItIs(QChar c)
{
    return c >= u' ' && c < u'\x7f' && c != u'"' && c != u'\\';
}

} // namespace

void clsJsonWriter::text(const char *key, const QString &value)
{
    begin(key);
    if (!std::all_of(value.begin(), value.end(), standsAsItIs)) {
        m_text += quoted(value).toStdString();
        return;
    }
    m_text += '"';
    for (const QChar c : value)
        m_text += char(c.unicode());
    m_text += '"';
}

void clsJsonWriter::written(const char *key, QByteArray json)
{
    // No string in it contains a line feed; the library escapes them.
    json.chop(json.endsWith('\n') ? 1 : 0);
    raw(key, json.replace('\n', '\n' + QByteArray(m_depth, ' ')));
}

void clsJsonWriter::begin(const char *key)
{
    if (!m_first)
        m_text += ',';
    m_first = false;
    newLine();
    if (!key)
        return;
    m_text += '"';
    m_text += key;
    m_text += "\": ";
}

void clsJsonWriter::open(const char *key, char bracket)
{
    if (m_depth == 0)
        m_text += bracket;
    else
        raw(key, QByteArrayView(&bracket, 1));
    ++m_depth;
    m_first = true;
}

void clsJsonWriter::close(char bracket)
{
    --m_depth;
    if (!m_first)
        newLine();
    m_text += bracket;
    m_first = false;
    if (m_depth == 0)
        m_text += '\n';
}

void clsJsonWriter::newLine()
{
    constexpr size_t Piece = 8192;
    if (m_text.size() > Piece)
        flush();
    m_text += '\n';
    m_text.append(size_t(m_depth), ' ');
}

void clsJsonWriter::flush()
{
    m_bytes.append(m_text.data(), qsizetype(m_text.size()));
    m_text.clear();
}
