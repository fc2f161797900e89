#pragma once

#include <QByteArray>
#include <QString>

#include <string>

/// Writes JSON in the order of the calls; the library's objects are sorted by key. Keys are plain words.
class clsJsonWriter {
public:
    void beginObject(const char *key = nullptr) { open(key, '{'); }
    void endObject() { close('}'); }
    void beginArray(const char *key = nullptr) { open(key, '['); }
    void endArray() { close(']'); }

    void text(const char *key, const QString &value);
    void number(const char *key, int value) { raw(key, QByteArray::number(value)); }
    void decimal(const char *key, double value) { raw(key, QByteArray::number(value)); }
    void nothing(const char *key) { raw(key, "null"); }
    /// An object or list from another writer.
    void written(const char *key, QByteArray json);
    void boolean(const char *key, bool value) { raw(key, value ? "true" : "false"); }

    /// Reserves space for that many more bytes, to avoid copying as the buffer grows.
    void expect(qsizetype bytes) { m_bytes.reserve(m_bytes.size() + bytes); }

    /// Everything written so far.
    const QByteArray &bytes()
    {
        flush();
        return m_bytes;
    }

private:
    void begin(const char *key);
    void raw(const char *key, QByteArrayView value)
    {
        begin(key);
        m_text.append(value.data(), size_t(value.size()));
    }
    void open(const char *key, char bracket);
    void close(char bracket);
    void newLine();
    void flush();

    QByteArray m_bytes;
    std::string m_text; ///< collects text for m_bytes, so that m_bytes isn't copied for each addition
    int m_depth = 0;
    bool m_first = true;
};
