#include "shell/zr3tool/clsJsonWriter.h"

#include <QJsonArray>
#include <QJsonDocument>

#include <algorithm>

namespace {

bool standsAsItIs(QChar c)
{
    return c >= u' ' && c < u'\x7f' && c != u'"' && c != u'\\';
}

} // namespace

void clsJsonWriter::text(const char *key, const QString &value)
{
    begin(key);
    if (!std::all_of(value.begin(), value.end(), standsAsItIs)) {
        // The library's own quoting of an array with one text, without its brackets.
        m_text += QJsonDocument(QJsonArray {value}).toJson(QJsonDocument::Compact).mid(1).chopped(1).toStdString();
        return;
    }
    m_text += '"';
    for (const QChar c : value)
        m_text += char(c.unicode());
    m_text += '"';
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
