#include "wordexport/document/clsDeflatedText.h"

#include "base/clsRunTimeError.h"

namespace {

// Raw, without a header: the package has one for each entry.
constexpr int RawWindow = -MAX_WBITS;

void check(int result)
{
    if (result < 0 && result != Z_BUF_ERROR) // Z_BUF_ERROR only means that there is nothing left to do
        throw clsRunTimeError(clsRunTimeError::OutOfMemory);
}

void setInput(z_stream &stream, QByteArrayView text)
{
    stream.next_in = reinterpret_cast<Bytef *>(const_cast<char *>(text.data())); // only read
    stream.avail_in = uInt(text.size());
}

/// Compresses the rest of the input, and appends the output.
void pack(z_stream &stream, int flush, QByteArray &packed)
{
    char block[16 * 1024];
    do {
        stream.next_out = reinterpret_cast<Bytef *>(block);
        stream.avail_out = sizeof block;
        check(deflate(&stream, flush));
        packed.append(block, qsizetype(sizeof block - stream.avail_out));
    } while (stream.avail_out == 0);
}

quint32 withCrc(quint32 crc, QByteArrayView text)
{
    if (text.isEmpty()) // without a buffer the library would start again
        return crc;
    return quint32(crc32_z(crc, reinterpret_cast<const Bytef *>(text.data()), size_t(text.size())));
}

} // namespace

clsDeflatedText::clsDeflatedText()
{
    check(deflateInit2(&m_stream, Level, Z_DEFLATED, RawWindow, MAX_MEM_LEVEL, Z_DEFAULT_STRATEGY));
}

clsDeflatedText::~clsDeflatedText()
{
    deflateEnd(&m_stream);
}

void clsDeflatedText::append(QByteArrayView text)
{
    if (text.isEmpty())
        return;
    setInput(m_stream, text);
    pack(m_stream, Z_NO_FLUSH, m_bytes);
    m_size += text.size();
    m_crc = withCrc(m_crc, text);
}

clsDeflatedText::Packed clsDeflatedText::packedWith(QByteArrayView end) const
{
    z_stream last;
    check(deflateCopy(&last, const_cast<z_stream *>(&m_stream)));
    Packed packed {m_bytes, m_size + end.size(), withCrc(m_crc, end)};
    setInput(last, end);
    try {
        pack(last, Z_FINISH, packed.bytes);
    } catch (...) {
        deflateEnd(&last);
        throw;
    }
    deflateEnd(&last);
    return packed;
}

QByteArray clsDeflatedText::Packed::text() const
{
    QByteArray text(size, Qt::Uninitialized);
    z_stream stream {};
    check(inflateInit2(&stream, RawWindow));
    setInput(stream, bytes);
    stream.next_out = reinterpret_cast<Bytef *>(text.data());
    stream.avail_out = uInt(size);
    const int result = inflate(&stream, Z_FINISH);
    inflateEnd(&stream);
    check(result == Z_STREAM_END ? Z_OK : Z_DATA_ERROR);
    return text;
}
