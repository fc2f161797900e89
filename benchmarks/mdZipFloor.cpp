#include "benchmarks/mdZipFloor.h"

#include <QtGlobal>

#include <zip.h>

namespace {

void insist(bool holds)
{
    if (!holds)
        qFatal("The package could not be read or written.");
}

} // namespace

clsUnpackedFiles mdUnpack(const QByteArray &package)
{
    zip_source_t *source = zip_source_buffer_create(package.constData(), zip_uint64_t(package.size()), 0, nullptr);
    zip_t *archive = zip_open_from_source(source, ZIP_RDONLY, nullptr);
    insist(archive);
    clsUnpackedFiles files;
    const zip_int64_t count = zip_get_num_entries(archive, 0);
    for (zip_int64_t i = 0; i < count; ++i) {
        zip_stat_t about;
        insist(zip_stat_index(archive, zip_uint64_t(i), 0, &about) == 0);
        QByteArray contents(qsizetype(about.size), Qt::Uninitialized);
        zip_file_t *file = zip_fopen_index(archive, zip_uint64_t(i), 0);
        insist(file && zip_fread(file, contents.data(), about.size) == zip_int64_t(about.size));
        zip_fclose(file);
        files.emplace_back(about.name, std::move(contents));
    }
    zip_discard(archive);
    return files;
}

qsizetype mdPack(const clsUnpackedFiles &files)
{
    zip_source_t *target = zip_source_buffer_create(nullptr, 0, 0, nullptr);
    zip_source_keep(target);
    zip_t *archive = zip_open_from_source(target, ZIP_CREATE | ZIP_TRUNCATE, nullptr);
    insist(archive);
    for (const auto &[name, contents] : files) {
        zip_source_t *file = zip_source_buffer(archive, contents.constData(), zip_uint64_t(contents.size()), 0);
        insist(zip_file_add(archive, name.constData(), file, 0) >= 0);
    }
    insist(zip_close(archive) == 0);
    zip_stat_t about;
    insist(zip_source_stat(target, &about) == 0);
    zip_source_free(target);
    return qsizetype(about.size);
}
