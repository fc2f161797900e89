#pragma once

#include <QByteArray>
#include <QByteArrayView>

#include <zlib.h>

/// A text compressed while it grows (about a hundredfold), so that the longest document takes little memory. The bytes
/// are the same as from compressing it in one piece.
class clsDeflatedText {
public:
    static constexpr int Level = 6;

    /// A finished compressed text, with its data for a zip package.
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
    /// The text followed by `end`. The text itself can continue to grow, without `end`.
    Packed packedWith(QByteArrayView end) const;

private:
    z_stream m_stream {};
    QByteArray m_bytes;
    qint64 m_size = 0;
    quint32 m_crc = 0;
};
