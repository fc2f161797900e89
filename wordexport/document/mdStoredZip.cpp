#include "wordexport/document/mdStoredZip.h"

#include "base/clsRunTimeError.h"

#include <zlib.h>

#include <limits>

namespace {

constexpr quint32 LocalHeader = 0x04034B50;
constexpr quint32 DirectoryHeader = 0x02014B50;
constexpr quint32 EndOfDirectory = 0x06054B50;
constexpr qsizetype HeaderSizes = 30 + 46; // per entry, without its name
constexpr quint32 Version = 10;
constexpr quint32 NameInUtf8 = 1 << 11;

class clsZipWriter {
public:
    explicit clsZipWriter(qsizetype expected) { m_bytes.reserve(expected); }

    qsizetype at() const { return m_bytes.size(); }
    const QByteArray &bytes() const { return m_bytes; }

    void putBytes(const QByteArray &bytes) { m_bytes.append(bytes); }
    template <class... Number> void put16(Number... numbers) { (put(quint32(numbers), 2), ...); }
    template <class... Number> void put32(Number... numbers) { (put(quint32(numbers), 4), ...); }

private:
    void put(quint32 number, int size)
    {
        for (int i = 0; i < size; ++i, number >>= 8)
            m_bytes.append(char(number));
    }

    QByteArray m_bytes;
};

// The fields common to both headers of an entry.
void putFacts(clsZipWriter &zip, const clsStoredEntry &entry, quint32 sum)
{
    constexpr int NotPacked = 0;
    constexpr int NoExtra = 0;
    zip.put16(Version, NameInUtf8, NotPacked, ZipMoment::Time, ZipMoment::Date);
    zip.put32(sum, entry.bytes.size(), entry.bytes.size());
    zip.put16(entry.name.size(), NoExtra);
}

} // namespace

QByteArray mdStoredZip(const std::vector<clsStoredEntry> &entries)
{
    qsizetype expected = HeaderSizes;
    for (const clsStoredEntry &entry : entries) {
        if (entry.name.size() > std::numeric_limits<quint16>::max())
            throw clsRunTimeError(clsRunTimeError::OutOfMemory);
        expected += HeaderSizes + 2 * entry.name.size() + entry.bytes.size();
    }
    clsZipWriter zip(expected);
    clsZipWriter directory(0);
    for (const clsStoredEntry &entry : entries) {
        const qsizetype at = zip.at();
        const auto sum
            = quint32(crc32_z(0, reinterpret_cast<const Bytef *>(entry.bytes.constData()), size_t(entry.bytes.size())));
        zip.put32(LocalHeader);
        putFacts(zip, entry, sum);
        zip.putBytes(entry.name);
        zip.putBytes(entry.bytes);

        directory.put32(DirectoryHeader);
        directory.put16(Version);
        putFacts(directory, entry, sum);
        directory.put16(0, 0, 0); // no comment, on the first disk, no attributes
        directory.put32(0, at);
        directory.putBytes(entry.name);
    }
    const qsizetype at = zip.at();
    zip.putBytes(directory.bytes());
    zip.put32(EndOfDirectory);
    zip.put16(0, 0, entries.size(), entries.size());
    zip.put32(directory.at(), at);
    zip.put16(0); // no comment
    return zip.bytes();
}
