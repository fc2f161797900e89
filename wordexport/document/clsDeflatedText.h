#pragma once

#include <QByteArray>
#include <QByteArrayView>

#include <zlib.h>

/// A text that is packed while it grows, so that the longest document takes little memory: it is packed a hundredfold.
/// The bytes are those that packing it in one piece would give.
class clsDeflatedText {
public:
    static constexpr int Level = 6;

    /// A text packed to its end, with what a zip package says of it.
    struct Packed {
        QByteArray bytes;
        qint64 size; ///< of the text
        quint32 crc;

        QByteArray text() const;
    };

    clsDeflatedText();
    ~clsDeflatedText();
    clsDeflatedText(const clsDeflatedText &) = delete;
    clsDeflatedText &operator=(const clsDeflatedText &) = delete;

    void append(QByteArrayView text);
    /// The text with something behind it. It can grow on afterwards, without that.
    Packed packedWith(QByteArrayView end) const;

private:
    z_stream m_stream {};
    QByteArray m_bytes;
    qint64 m_size = 0;
    quint32 m_crc = 0;
};
