#pragma once

#include <QBuffer>
#include <QCache>
#include <QHash>
#include <QImage>
#include <QPdfDocument>

/// The pages of a PDF document, held in memory. Only the pages in view are drawn.
class clsPdfPages {
public:
    /// For a screen on which a page has its paper size.
    static constexpr double DotsPerPoint = 96.0 / 72;

    /// `pdf` is the document; no pages if it is not a PDF.
    explicit clsPdfPages(const QByteArray &pdf);

    int Count() const { return m_count; }
    QByteArray Bytes() const { return m_bytes.data(); }
    /// The size of a page, counted from 0, on a screen of 96 dots per inch.
    QSizeF Size(int page) const;
    /// The page as a picture of that size in dots. A few pictures are cached.
    QImage Picture(int page, const QSize &dots);
    /// The page's printed name, such as "Page 6 (1)"; "Paper page 7" if it has none.
    QString Caption(int page);

private:
    QBuffer m_bytes;
    QPdfDocument m_document;
    int m_count = 0;
    QCache<std::pair<int, quint64>, QImage> m_pictures;
    QHash<int, QString> m_captions;
};
