#pragma once

#include <QBuffer>
#include <QCache>
#include <QHash>
#include <QImage>
#include <QPdfDocument>

/// The pages of a PDF document, held in memory and drawn as they are asked for: only those that are looked at.
class clsPdfPages {
public:
    /// Of a screen on which a page is as large as on paper.
    static constexpr double DotsPerPoint = 96.0 / 72;

    /// The bytes of the document; without pages where they are none.
    explicit clsPdfPages(const QByteArray &pdf);

    int Count() const { return m_count; }
    QByteArray Bytes() const { return m_bytes.data(); }
    /// The size of a page, from 0, on a screen of 96 dots an inch.
    QSizeF Size(int page) const;
    /// The page as a picture of so many dots. A few pictures are kept.
    QImage Picture(int page, const QSize &dots);
    /// What the page calls itself, such as "Page 6 (1)"; "Paper page 7" where it bears no name.
    QString Caption(int page);

private:
    QBuffer m_bytes;
    QPdfDocument m_document;
    int m_count = 0;
    QCache<std::pair<int, quint64>, QImage> m_pictures;
    QHash<int, QString> m_captions;
};
