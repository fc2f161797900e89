#include "wordexport/document/clsZipPackage.h"

#include "wordexport/document/mdDocumentError.h"
#include "wordexport/document/mdDocumentFile.h"
#include "wordexport/document/mdStoredZip.h"

#include <zip.h>

#include <algorithm>
#include <memory>

namespace {

struct CloseArchive {
    void operator()(zip_t *archive) const { zip_discard(archive); }
};
using Archive = std::unique_ptr<zip_t, CloseArchive>;

struct CloseEntry {
    void operator()(zip_file_t *file) const { zip_fclose(file); }
};

struct FreeSource {
    void operator()(zip_source_t *source) const { zip_source_free(source); }
};
using Source = std::unique_ptr<zip_source_t, FreeSource>;

QString key(const QString &name)
{
    return name.toCaseFolded();
}

// Names that would be extracted outside the package, or that no document part may have.
bool nameIsSafe(const QString &name)
{
    if (name.isEmpty() || name.startsWith(u'/') || name.contains(u'\\') || name.contains(QChar(0)))
        return false;
    if (name.size() >= 2 && name[1] == u':')
        return false;
    const auto segments = QStringView(name).split(u'/');
    return std::none_of(
        segments.begin(), segments.end(), [](QStringView segment) { return segment == u".." || segment == u"."; });
}

Archive openArchive(const QByteArray &bytes, const QString &shownName)
{
    zip_error_t error;
    zip_error_init(&error);
    Source source(zip_source_buffer_create(bytes.constData(), zip_uint64_t(bytes.size()), 0, &error));
    Archive archive(source ? zip_open_from_source(source.get(), ZIP_RDONLY, &error) : nullptr);
    zip_error_fini(&error);
    if (!archive)
        throw mdDocumentDamaged(shownName);
    source.release(); // now owned by the archive
    return archive;
}

void checkContainer(const QByteArray &bytes, const QString &shownName)
{
    // The container of the older binary format, also used for encrypted documents.
    if (bytes.startsWith("\xD0\xCF\x11\xE0"))
        throw mdDocumentError(
            QStringLiteral("The document %1 is in the older binary format or protected by a password. "
                           "Please save it again as a Word 2007 document without a password.")
                .arg(shownName));
    if (!bytes.startsWith("PK\3\4"))
        throw mdDocumentError(QStringLiteral("The document %1 is not a Word document.").arg(shownName));
    if (bytes.size() > ZipLimits::PackageBytes)
        throw mdDocumentTooLarge(shownName);
}

zip_stat_t statOf(zip_t *archive, zip_uint64_t index, const QString &shownName)
{
    zip_stat_t stat;
    zip_stat_init(&stat);
    constexpr zip_uint64_t Needed = ZIP_STAT_NAME | ZIP_STAT_SIZE | ZIP_STAT_COMP_SIZE | ZIP_STAT_ENCRYPTION_METHOD;
    if (zip_stat_index(archive, index, 0, &stat) != 0 || (stat.valid & Needed) != Needed)
        throw mdDocumentDamaged(shownName);
    if (stat.encryption_method != ZIP_EM_NONE)
        throw mdDocumentError(QStringLiteral("The document %1 is protected by a password.").arg(shownName));
    const qint64 ratioBytes = qint64(stat.comp_size) * ZipLimits::Ratio;
    if (stat.size > zip_uint64_t(ZipLimits::EntryBytes) || stat.comp_size > zip_uint64_t(ZipLimits::PackageBytes)
        || (qint64(stat.size) > ZipLimits::RatioFrom && qint64(stat.size) > ratioBytes))
        throw mdDocumentTooLarge(shownName);
    return stat;
}

QByteArray inflate(zip_t *archive, zip_uint64_t index, qint64 size, const QString &shownName)
{
    const std::unique_ptr<zip_file_t, CloseEntry> file(zip_fopen_index(archive, index, 0));
    if (!file)
        throw mdDocumentDamaged(shownName);
    QByteArray bytes(size, Qt::Uninitialized);
    qint64 done = 0;
    while (done < size) {
        const zip_int64_t read = zip_fread(file.get(), bytes.data() + done, zip_uint64_t(size - done));
        if (read <= 0)
            throw mdDocumentDamaged(shownName);
        done += read;
    }
    // The checksum is checked only by the read that reaches the end; more bytes than the stated size mean a false size.
    char beyond;
    if (zip_fread(file.get(), &beyond, 1) != 0)
        throw mdDocumentDamaged(shownName);
    return bytes;
}

/// Passes a compressed entry to the library, which writes it unchanged.
class clsPackedSource {
public:
    static zip_source_t *create(zip_t *archive, const clsDeflatedText::Packed &packed)
    {
        auto state = std::make_unique<clsPackedSource>(packed);
        zip_source_t *source = zip_source_function(archive, &clsPackedSource::answer, state.get());
        if (source)
            static_cast<void>(state.release()); // now owned by the source
        return source;
    }
    explicit clsPackedSource(const clsDeflatedText::Packed &packed)
        : m_packed(packed)
    {
        zip_error_init(&m_error);
    }

private:
    static zip_int64_t answer(void *state, void *data, zip_uint64_t size, zip_source_cmd_t command)
    {
        auto *source = static_cast<clsPackedSource *>(state);
        switch (command) {
        case ZIP_SOURCE_OPEN: source->m_done = 0; return 0;
        case ZIP_SOURCE_READ: return source->read(data, qint64(size));
        case ZIP_SOURCE_CLOSE: return 0;
        case ZIP_SOURCE_STAT: return source->tell(static_cast<zip_stat_t *>(data));
        case ZIP_SOURCE_ERROR: return zip_error_to_data(&source->m_error, data, size);
        case ZIP_SOURCE_FREE: delete source; return 0;
        case ZIP_SOURCE_SUPPORTS:
            return zip_source_make_command_bitmap(ZIP_SOURCE_OPEN, ZIP_SOURCE_READ, ZIP_SOURCE_CLOSE, ZIP_SOURCE_STAT,
                ZIP_SOURCE_ERROR, ZIP_SOURCE_FREE, -1);
        default: zip_error_set(&source->m_error, ZIP_ER_OPNOTSUPP, 0); return -1;
        }
    }
    zip_int64_t read(void *data, qint64 size)
    {
        const qint64 part = std::min(size, m_packed.bytes.size() - m_done);
        std::copy_n(m_packed.bytes.constData() + m_done, part, static_cast<char *>(data));
        m_done += part;
        return part;
    }
    zip_int64_t tell(zip_stat_t *stat) const
    {
        zip_stat_init(stat);
        stat->valid = ZIP_STAT_SIZE | ZIP_STAT_COMP_SIZE | ZIP_STAT_COMP_METHOD | ZIP_STAT_CRC;
        stat->size = zip_uint64_t(m_packed.size);
        stat->comp_size = zip_uint64_t(m_packed.bytes.size());
        stat->comp_method = ZIP_CM_DEFLATE;
        stat->crc = m_packed.crc;
        return sizeof *stat;
    }

    const clsDeflatedText::Packed &m_packed;
    qint64 m_done = 0;
    zip_error_t m_error;
};

/// libzip reads the bytes when the archive is closed; the entry must live until then.
void addTo(zip_t *archive, const clsZipPackage::Entry &entry)
{
    zip_source_t *source = entry.packed
        ? clsPackedSource::create(archive, *entry.packed)
        : zip_source_buffer(archive, entry.bytes.constData(), zip_uint64_t(entry.bytes.size()), 0);
    const zip_int64_t index
        = source ? zip_file_add(archive, entry.name.toUtf8().constData(), source, ZIP_FL_ENC_UTF_8) : -1;
    if (index < 0) {
        zip_source_free(source);
        throw clsRunTimeError(clsRunTimeError::OutOfMemory);
    }
    zip_set_file_compression(archive, zip_uint64_t(index), ZIP_CM_DEFLATE, zip_uint32_t(clsDeflatedText::Level));
    zip_file_set_dostime(archive, zip_uint64_t(index), ZipMoment::Time, ZipMoment::Date, 0);
}

QByteArray readBack(zip_source_t *source)
{
    zip_stat_t stat;
    zip_stat_init(&stat);
    if (zip_source_stat(source, &stat) != 0 || zip_source_open(source) != 0)
        throw clsRunTimeError(clsRunTimeError::OutOfMemory);
    QByteArray bytes(qsizetype(stat.size), Qt::Uninitialized);
    const zip_int64_t read = zip_source_read(source, bytes.data(), stat.size);
    zip_source_close(source);
    if (read != qint64(stat.size))
        throw clsRunTimeError(clsRunTimeError::OutOfMemory);
    return bytes;
}

} // namespace

clsZipPackage clsZipPackage::fromFile(const QString &path, const QString &shownName)
{
    return fromBytes(mdReadDocumentFile(path, ZipLimits::PackageBytes), shownName);
}

clsZipPackage clsZipPackage::fromBytes(const QByteArray &bytes, const QString &shownName)
{
    checkContainer(bytes, shownName);
    const Archive archive = openArchive(bytes, shownName);
    const zip_int64_t count = zip_get_num_entries(archive.get(), 0);
    if (count > ZipLimits::Entries)
        throw mdDocumentTooLarge(shownName);

    clsZipPackage package;
    package.m_entries.reserve(size_t(count));
    qint64 total = 0;
    for (zip_uint64_t i = 0; i < zip_uint64_t(count); ++i) {
        const zip_stat_t stat = statOf(archive.get(), i, shownName);
        total += qint64(stat.size);
        if (total > ZipLimits::TotalBytes)
            throw mdDocumentTooLarge(shownName);
        const QString name = QString::fromUtf8(stat.name);
        if (name.endsWith(u'/') && stat.size == 0)
            continue; // a folder entry is not a part
        if (!nameIsSafe(name))
            throw mdDocumentError(
                QStringLiteral("The document %1 holds a part whose name points outside the document.").arg(shownName));
        if (package.indexOf(name) >= 0)
            throw mdDocumentDamaged(shownName);
        package.add(name, inflate(archive.get(), i, qint64(stat.size), shownName));
    }
    return package;
}

QByteArray clsZipPackage::toBytes(Packing packing) const
{
    return packing == Stored ? stored(inOrder()) : deflated(inOrder());
}

// The order that readers expect: the content types, the relationships, the main part, then the rest.
std::vector<const clsZipPackage::Entry *> clsZipPackage::inOrder() const
{
    const auto rank = [this](const Entry &entry) {
        return entry.name == QLatin1String("[Content_Types].xml") ? 0
            : entry.name == QLatin1String("_rels/.rels")          ? 1
            : entry.name == m_mainEntry                           ? 2
                                                                  : 3;
    };
    std::vector<const Entry *> ordered;
    for (const Entry &entry : m_entries)
        ordered.push_back(&entry);
    std::sort(ordered.begin(), ordered.end(), [&rank](const Entry *a, const Entry *b) {
        const int rankA = rank(*a);
        const int rankB = rank(*b);
        return rankA != rankB ? rankA < rankB : a->name < b->name;
    });
    return ordered;
}

QByteArray clsZipPackage::stored(const std::vector<const Entry *> &ordered)
{
    std::vector<clsStoredEntry> entries;
    entries.reserve(ordered.size());
    for (const Entry *entry : ordered)
        entries.push_back({entry->name.toUtf8(), entry->packed ? entry->packed->text() : entry->bytes});
    return mdStoredZip(entries);
}

QByteArray clsZipPackage::deflated(const std::vector<const Entry *> &ordered)
{
    zip_error_t error;
    zip_error_init(&error);
    const Source source(zip_source_buffer_create(nullptr, 0, 0, &error));
    Archive archive(source ? zip_open_from_source(source.get(), ZIP_TRUNCATE, &error) : nullptr);
    zip_error_fini(&error);
    if (!archive)
        throw clsRunTimeError(clsRunTimeError::OutOfMemory);
    zip_source_keep(source.get()); // closing the archive releases it, and the result is read from it afterwards
    for (const Entry *entry : ordered)
        addTo(archive.get(), *entry);
    if (zip_close(archive.get()) != 0)
        throw clsRunTimeError(clsRunTimeError::OutOfMemory);
    archive.release();
    return readBack(source.get());
}

void clsZipPackage::setBytes(int index, const QByteArray &bytes)
{
    m_entries[size_t(index)].bytes = bytes;
    m_entries[size_t(index)].packed.reset();
}

void clsZipPackage::setPacked(int index, clsDeflatedText::Packed packed)
{
    m_entries[size_t(index)].bytes.clear();
    m_entries[size_t(index)].packed = std::make_shared<const clsDeflatedText::Packed>(std::move(packed));
}

int clsZipPackage::indexOf(const QString &name) const
{
    return m_index.value(key(name), -1);
}

int clsZipPackage::add(const QString &name, const QByteArray &bytes)
{
    m_entries.push_back({name, bytes, {}});
    const int index = int(m_entries.size()) - 1;
    m_index.insert(key(name), index);
    return index;
}
