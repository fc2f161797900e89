#include "editors/oPasteHeader.h"

#include "controls/mdGridMetrics.h"
#include "controls/mdLine.h"
#include "controls/mdTheme.h"
#include "controls/mdToolTip.h"
#include "editors/clsPasteList.h"
#include "editors/clsPasteModel.h"

#include <QComboBox>
#include <QPainter>
#include <QSignalBlocker>

namespace {

constexpr int Height = 40;
constexpr int ListHeight = 28;
/// Width of a list's arrow and edges.
constexpr int ListTrimmings = 56;
constexpr int LeftOut = -1;

} // namespace

oPasteHeader::oPasteHeader(clsPasteModel &model, QWidget *parent)
    : QHeaderView(Qt::Horizontal, parent)
    , m_model(model)
{
    setSectionsClickable(false);
    setHighlightSections(false);
    setMinimumSectionSize(1);
    for (int place = 0; place < int(model.Rows().header().size()); ++place)
        addList(place);
    connect(this, &QHeaderView::sectionResized, this, &oPasteHeader::Place);
    connect(&model, &QAbstractItemModel::modelReset, this, &oPasteHeader::showMeanings);
    showMeanings();
}

void oPasteHeader::addList(int place)
{
    auto *list = new QComboBox(viewport());
    const QString own = m_model.Rows().header()[place].simplified();
    list->setObjectName(QStringLiteral("cboColumn%1").arg(place + 1));
    list->setToolTip(own.isEmpty() ? QString() : mdPlainToolTip(QStringLiteral("In the table: %1").arg(own)));
    list->setAccessibleName(own.isEmpty() ? QStringLiteral("Meaning of column %1").arg(place + 1)
                                          : QStringLiteral("Meaning of column %1").arg(own));
    list->setFont(mdGridHeadingFont());
    list->setFocusPolicy(Qt::StrongFocus);
    list->addItem(QStringLiteral("(left out)"), LeftOut);
    for (size_t column = 0; column < m_model.List().columns.size(); ++column)
        if (m_model.List().columns[column].kind != clsCellKind::Passed)
            list->addItem(mdColumnCaption(m_model.List().columns[column]), int(column));
    list->setMaxVisibleItems(list->count());
    connect(list, &QComboBox::activated, this, [this, place, list] {
        const int column = list->currentData().toInt();
        if (column != m_model.Rows().meaningOf(place))
            m_model.SetMeaning(place, column);
    });
    m_lists.push_back(list);
}

void oPasteHeader::showMeanings()
{
    for (size_t place = 0; place < m_lists.size(); ++place) {
        const QSignalBlocker quiet(m_lists[place]);
        m_lists[place]->setCurrentIndex(qMax(0, m_lists[place]->findData(m_model.Rows().meaningOf(int(place)))));
    }
}

void oPasteHeader::Place()
{
    const int height = Theme::scaled(ListHeight);
    for (size_t place = 0; place < m_lists.size(); ++place) {
        const int section = clsPasteModel::FirstPlace + int(place);
        m_lists[place]->setGeometry(sectionViewportPosition(section) + 2, (this->height() - height) / 2,
            sectionSize(section) - Theme::Space8, height);
        m_lists[place]->show();
    }
}

int oPasteHeader::WidthFor(int section) const
{
    return QFontMetrics(mdGridHeadingFont()).horizontalAdvance(m_model.headerData(section, Qt::Horizontal).toString())
        + Theme::scaled(ListTrimmings);
}

void oPasteHeader::updateGeometries()
{
    QHeaderView::updateGeometries();
    Place();
}

QSize oPasteHeader::sizeHint() const
{
    return {QHeaderView::sizeHint().width(), Theme::scaled(Height)};
}

void oPasteHeader::paintSection(QPainter *painter, const QRect &rectangle, int section) const
{
    painter->fillRect(rectangle, Theme::Canvas);
    mdPaintLine(*painter, rectangle, Qt::BottomEdge, Theme::Line);
    if (section != m_model.NoteColumn())
        return;
    painter->setFont(mdGridHeadingFont());
    painter->setPen(Theme::Ink2);
    painter->drawText(rectangle.adjusted(Theme::Space8, 0, 0, 0), Qt::AlignLeft | Qt::AlignVCenter,
        m_model.headerData(section, Qt::Horizontal).toString());
}
