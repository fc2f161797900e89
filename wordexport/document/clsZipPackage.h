#pragma once

#include "wordexport/document/clsDeflatedText.h"

#include <QByteArray>
#include <QHash>
#include <QString>

#include <memory>
#include <vector>

/// A zip package in memory: names and bytes, in the order of the file. Nothing is ever unpacked to the disk.
/// Reading distrusts the package: sizes, counts and names have limits, so that a hostile one gives one clear
/// error and harms nothing.
class clsZipPackage {
public:
    struct Entry {
        QString name;
        QByteArray bytes;
        /// Instead of the bytes, for an entry too long to be wanted unpacked.
        std::shared_ptr<const clsDeflatedText::Packed> packed = {};
    };
    /// How hard to pack. Stored is for files that live for moments; the format is the same.
    enum Packing { Stored, Deflated };

    /// Reads a package; `shownName` stands for it in error messages.
    static clsZipPackage fromBytes(const QByteArray &bytes, const QString &shownName);
    static clsZipPackage fromFile(const QString &path) { return fromFile(path, path); }
    static clsZipPackage fromFile(const QString &path, const QString &shownName);

    /// The whole package as bytes: the same entries give the same bytes, whatever the clock says.
    QByteArray toBytes(Packing packing) const;

    const std::vector<Entry> &entries() const & { return m_entries; }
    const std::vector<Entry> &entries() && = delete; // a loop over those of a package of the moment would outlive it
    /// The index of an entry, or -1. Names compare without case, as the parts of a document do.
    int indexOf(const QString &name) const;
    const QByteArray &bytes(int index) const { return m_entries[size_t(index)].bytes; }
    void setBytes(int index, const QByteArray &bytes);
    void setPacked(int index, clsDeflatedText::Packed packed);
    /// Adds an entry under a name that is not taken.
    int add(const QString &name, const QByteArray &bytes);

    /// The entry that follows the two that every package begins with.
    void setMainEntry(const QString &name) { m_mainEntry = name; }

private:
    std::vector<const Entry *> inOrder() const;
    static QByteArray stored(const std::vector<const Entry *> &ordered);
    static QByteArray deflated(const std::vector<const Entry *> &ordered);

    std::vector<Entry> m_entries;
    QHash<QString, int> m_index;
    QString m_mainEntry;
};

/// The limits of a package that is read. Sheets and templates hold some hundred kilobytes; these are far above
/// that and far below what would hurt.
namespace ZipLimits {
inline constexpr qint64 PackageBytes = 64 * 1024 * 1024;
inline constexpr qint64 EntryBytes = 64 * 1024 * 1024;
inline constexpr qint64 TotalBytes = 192 * 1024 * 1024;
inline constexpr qint64 Entries = 4096;
/// Honest text packs to a fiftieth at best; beyond this ratio, from a megabyte on, it is a bomb.
inline constexpr qint64 Ratio = 300;
inline constexpr qint64 RatioFrom = 1024 * 1024;
} // namespace ZipLimits
