#pragma once

#include <QByteArray>
#include <QHash>
#include <QStringList>

#include <vector>

/// The firm's own words for the codes of the schedule, as a table of two columns, code and words. What its lines hold
/// beside is kept as it is; a line that can't be used is passed over, kept, and told by its number.
class clsCodeWords {
public:
    clsCodeWords() = default;
    /// Those of a table: with or without a header, separated by commas, semicolons or tabs.
    explicit clsCodeWords(QStringView text);

    /// Why the text is no table; empty where it is one.
    const QString &error() const { return m_error; }
    /// The words for a code; empty where the firm has none.
    QString of(const QString &code) const;
    void set(const QString &code, const QString &words);
    /// Which lines can't be used, in words; empty where all can.
    QString wrongLinesInWords() const;

    /// The table in UTF-8, with a header: the codes in their order, then the lines that can't be used.
    QByteArray asCsv() const;

private:
    QHash<QString, QStringList> m_rows; ///< by their codes
    std::vector<QStringList> m_unused;
    QStringList m_wrongLines;
    QString m_error;
};
