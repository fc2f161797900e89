#include "preview/clsPdfPages.h"

#include <QPainter>
#include <QPdfSelection>
#include <QRegularExpression>

#include <algorithm>

namespace {

constexpr int MostKilobytes = 96 * 1024;
// Skips references to other pages in the form's text.
constexpr char PageName[] = R"((?<!See )\bPage\s+(\d++)(?:\s*(\(\d+\)))?+(?! is ))";

} // namespace

clsPdfPages::clsPdfPages(const QByteArray &pdf)
    : m_pictures(MostKilobytes)
{
    m_bytes.setData(pdf);
    m_bytes.open(QIODevice::ReadOnly);
    m_document.load(&m_bytes);
    if (m_document.status() == QPdfDocument::Status::Ready)
        m_count = m_document.pageCount();
}

QSizeF clsPdfPages::Size(int page) const
{
    return m_document.pagePointSize(page) * DotsPerPoint;
}

QImage clsPdfPages::Picture(int page, const QSize &dots)
{
    const auto key = std::pair(page, quint64(dots.width()) << 32 | quint64(dots.height()));
    if (const QImage *kept = m_pictures.object(key))
        return *kept;
    // The toolkit leaves unpainted parts of the page transparent.
    QImage picture(dots, QImage::Format_RGB32);
    picture.fill(Qt::white);
    const QImage drawn = m_document.render(page, dots);
    if (!drawn.isNull()) {
        QPainter painter(&picture);
        painter.drawImage(0, 0, drawn);
    }
    m_pictures.insert(key, new QImage(picture), std::max(1, int(picture.sizeInBytes() / 1024)));
    return picture;
}

QString clsPdfPages::Caption(int page)
{
    QString &caption = m_captions[page];
    if (caption.isEmpty()) {
        static const QRegularExpression name(QString::fromLatin1(PageName));
        const auto found = name.match(m_document.getAllText(page).text());
        caption = found.hasMatch() ? QStringLiteral("Page %1 %2").arg(found.captured(1), found.captured(2)).trimmed()
                                   : QStringLiteral("Paper page %1").arg(page + 1);
    }
    return caption;
}
