#pragma once

#include "wordexport/document/clsDeflatedText.h"

#include <QByteArray>
#include <QHash>
#include <QString>

#include <memory>
#include <vector>

/// A zip package in memory: names and bytes, in the order of the file. Nothing is ever extracted to the disk. Packages
/// are not trusted when read: sizes, counts and names have limits, so that a malicious one only causes one clear error.
class clsZipPackage {
public:
    struct Entry {
        QString name;
        QByteArray bytes;
        /// Replaces the bytes for an entry too long to be kept uncompressed.
        std::shared_ptr<const clsDeflatedText::Packed> packed = {};
    };
    /// Stored is for short-lived files; the format is the same.
    enum Packing { Stored, Deflated };

    /// Reads a package; `shownName` is its name in error messages.
    static clsZipPackage fromBytes(const QByteArray &bytes, const QString &shownName);
    static clsZipPackage fromFile(const QString &path) { return fromFile(path, path); }
    static clsZipPackage fromFile(const QString &path, const QString &shownName);

    /// The whole package: the same entries always produce the same bytes, independent of the clock.
    QByteArray toBytes(Packing packing) const;

    const std::vector<Entry> &entries() const & { return m_entries; }
    const std::vector<Entry> &entries() && = delete; // a loop over a temporary package's entries would outlive it
    /// The index of an entry, or -1. Ignores case, like the names of a document's parts.
    int indexOf(const QString &name) const;
    const QByteArray &bytes(int index) const { return m_entries[size_t(index)].bytes; }
    void setBytes(int index, const QByteArray &bytes);
    void setPacked(int index, clsDeflatedText::Packed packed);
    /// Adds an entry under an unused name.
    int add(const QString &name, const QByteArray &bytes);

    /// The entry written after the two that every package starts with.
    void setMainEntry(const QString &name) { m_mainEntry = name; }

private:
    std::vector<const Entry *> inOrder() const;
    static QByteArray stored(const std::vector<const Entry *> &ordered);
    static QByteArray deflated(const std::vector<const Entry *> &ordered);

    std::vector<Entry> m_entries;
    QHash<QString, int> m_index;
    QString m_mainEntry;
};

/// The limits for reading packages. Sheets and templates have some hundred kilobytes; the limits are far above that and
/// far below a harmful size.
namespace ZipLimits {
inline constexpr qint64 PackageBytes = 64 * 1024 * 1024;
inline constexpr qint64 EntryBytes = 64 * 1024 * 1024;
inline constexpr qint64 TotalBytes = 192 * 1024 * 1024;
inline constexpr qint64 Entries = 4096;
/// Real text compresses to a fiftieth at best; entries of at least a megabyte beyond this ratio are treated as zip
/// bombs.
inline constexpr qint64 Ratio = 300;
inline constexpr qint64 RatioFrom = 1024 * 1024;
} // namespace ZipLimits
