#include "preview/oPageThumbnails.h"

#include "controls/mdLine.h"
#include "controls/mdTheme.h"
#include "preview/clsPdfPages.h"

#include <QAbstractListModel>
#include <QPainter>
#include <QScopedValueRollback>
#include <QStyledItemDelegate>

namespace {

constexpr int Width = 168;
constexpr int PictureWidth = 94;
constexpr int PictureHeight = 132;
constexpr int SelectedFrame = 2;

class clsThumbnailModel final : public QAbstractListModel {
public:
    using QAbstractListModel::QAbstractListModel;

    void take(clsPdfPages *given)
    {
        beginResetModel();
        pages = given;
        endResetModel();
    }
    int rowCount(const QModelIndex &parent = {}) const override
    {
        return pages && !parent.isValid() ? pages->Count() : 0;
    }
    QVariant data(const QModelIndex &index, int role) const override
    {
        return index.isValid() && role == Qt::DisplayRole ? pages->Caption(index.row()) : QVariant();
    }

    clsPdfPages *pages = nullptr;
};

class clsThumbnailDelegate final : public QStyledItemDelegate {
public:
    using QStyledItemDelegate::QStyledItemDelegate;

    QSize sizeHint(const QStyleOptionViewItem &option, const QModelIndex &) const override
    {
        // As wide as the list, in which it is centred.
        const auto *list = static_cast<const QAbstractItemView *>(option.widget);
        return {list ? list->viewport()->width() : Theme::scaled(PictureWidth),
            Theme::scaled(PictureHeight) + QFontMetrics(Theme::font(-1)).height() + Theme::Space24};
    }

    void paint(QPainter *painter, const QStyleOptionViewItem &option, const QModelIndex &index) const override
    {
        const bool selected = option.state & QStyle::State_Selected;
        const QRect item = option.rect.adjusted(Theme::Space16, Theme::Space8, -Theme::Space16, 0);
        if (selected)
            painter->fillRect(item, Theme::Selected);
        else if (option.state & QStyle::State_MouseOver)
            painter->fillRect(item, Theme::Hover);
        clsPdfPages &pages = *static_cast<const clsThumbnailModel *>(index.model())->pages;
        const QSize most(Theme::scaled(PictureWidth), Theme::scaled(PictureHeight));
        const QSize size = pages.Size(index.row()).scaled(most, Qt::KeepAspectRatio).toSize();
        const QRect picture(QPoint(item.center().x() - size.width() / 2, item.top() + Theme::Space4), size);
        const double dots = painter->device()->devicePixelRatioF();
        painter->drawImage(picture, pages.Picture(index.row(), (QSizeF(size) * dots).toSize()));
        if (selected) {
            painter->setPen(QPen(Theme::Purple, SelectedFrame, Qt::SolidLine, Qt::SquareCap, Qt::MiterJoin));
            painter->drawRect(picture.adjusted(-1, -1, 1, 1));
        } else {
            mdPaintLine(*painter, picture.adjusted(-1, -1, 1, 1),
                Qt::TopEdge | Qt::LeftEdge | Qt::RightEdge | Qt::BottomEdge, Theme::Grey);
        }
        painter->setFont(Theme::font(-1, selected));
        painter->setPen(selected ? Theme::Ink : Theme::Ink2);
        const QRect caption(item.left(), picture.bottom() + 1 + Theme::Space4, item.width(),
            item.bottom() - picture.bottom() - Theme::Space4);
        painter->drawText(caption, Qt::AlignHCenter | Qt::AlignTop, index.data().toString());
    }
};

} // namespace

oPageThumbnails::oPageThumbnails(QWidget *parent)
    : QListView(parent)
{
    setObjectName(QStringLiteral("oPageThumbnails"));
    setAccessibleName(QStringLiteral("Pages"));
    setModel(new clsThumbnailModel(this));
    setItemDelegate(new clsThumbnailDelegate(this));
    setUniformItemSizes(true);
    setResizeMode(Adjust);
    setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOn);
    setFrameShape(QFrame::NoFrame);
    setVerticalScrollMode(ScrollPerPixel);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setMouseTracking(true);
    setFixedWidth(Theme::scaled(Width));
    QPalette canvas = palette();
    canvas.setColor(QPalette::Base, Theme::Canvas);
    setPalette(canvas);
}

QSize oPageThumbnails::sizeHint() const
{
    return {Theme::scaled(Width), Theme::scaled(Width)};
}

void oPageThumbnails::setPages(clsPdfPages *pages)
{
    const QScopedValueRollback<bool> marking(m_marking, true);
    static_cast<clsThumbnailModel *>(model())->take(pages);
}

void oPageThumbnails::MarkPage(int page)
{
    const QScopedValueRollback<bool> marking(m_marking, true);
    setCurrentIndex(model()->index(page, 0));
}

void oPageThumbnails::currentChanged(const QModelIndex &current, const QModelIndex &previous)
{
    QListView::currentChanged(current, previous);
    if (!m_marking && current.isValid())
        emit Chosen(current.row());
}
