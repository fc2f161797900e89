#pragma once

#include <QByteArray>
#include <QHash>
#include <QStringList>

#include <vector>

/// The firm's own words for the codes of the schedule, as a table of two columns, code and words. Further cells of a
/// line are kept. An invalid line is skipped but kept, and reported by its number.
class clsCodeWords {
public:
    clsCodeWords() = default;
    /// Parses a table, with or without a header, separated by commas, semicolons or tabs.
    explicit clsCodeWords(QStringView text);

    /// Why the text is not a table; empty if it is.
    const QString &error() const { return m_error; }
    /// The words for a code; empty if there are none.
    QString of(const QString &code) const;
    void set(const QString &code, const QString &words);
    /// A text that names the invalid lines; empty if there are none.
    QString wrongLinesInWords() const;

    /// The table in UTF-8, with a header: the codes in their order, then the invalid lines.
    QByteArray asCsv() const;

private:
    QHash<QString, QStringList> m_rows; ///< by code
    std::vector<QStringList> m_unused;
    QStringList m_wrongLines;
    QString m_error;
};
