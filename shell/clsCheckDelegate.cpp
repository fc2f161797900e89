#include "shell/clsCheckDelegate.h"

#include "controls/mdIcons.h"
#include "controls/mdLine.h"
#include "controls/mdPaintControls.h"
#include "controls/mdSigns.h"
#include "controls/mdTheme.h"
#include "shell/clsCheckModel.h"

#include <QPainter>
#include <QTextLayout>
#include <QTreeView>

namespace {

constexpr int GroupHeight = 30;
constexpr int SignSide = 14;
constexpr int ChevronSide = 12;
constexpr int Indent = 46;
constexpr int NoteIndent = 58;
constexpr int RightRoom = 44; ///< for the menu sign, so that lines don't break differently under the pointer
constexpr int MenuWidth = 28;
constexpr int MenuHeight = 24;
constexpr int MostLines = 2;
constexpr int AllLines = 0;

bool isGroup(const QModelIndex &index)
{
    return index.data(clsCheckModel::KindRole).toInt() == clsCheckModel::Group;
}

bool isFold(const QModelIndex &index)
{
    return index.data(clsCheckModel::KindRole).toInt() == clsCheckModel::Line
        && index.data(clsCheckModel::CountRole).toInt() > 1;
}

bool isOpen(const QStyleOptionViewItem &option, const QModelIndex &index)
{
    const auto *tree = qobject_cast<const QTreeView *>(option.widget);
    return tree && tree->isExpanded(index);
}

/// The selected line shows its whole sentence, so that it can be read without a pointer.
bool isChosen(const QStyleOptionViewItem &option, const QModelIndex &index)
{
    const auto *view = qobject_cast<const QAbstractItemView *>(option.widget);
    return view && view->currentIndex() == index;
}

std::optional<Sign> signOf(const QModelIndex &index)
{
    switch (index.data(clsCheckModel::GroupRole).toInt()) {
    case clsFindingGroup::Errors: return Sign::Error;
    case clsFindingGroup::Warnings: return Sign::Warning;
    case clsFindingGroup::Notes: return Sign::Note;
    default: return std::nullopt;
    }
}

/// A square of that side, vertically centred in the rectangle.
QRect square(const QRect &rectangle, int left, int side)
{
    return {left, rectangle.top() + (rectangle.height() - side) / 2, side, side};
}

} // namespace

clsCheckDelegate::clsCheckDelegate(QObject *parent)
    : QStyledItemDelegate(parent)
{
    takeFonts();
}

void clsCheckDelegate::takeFonts()
{
    m_caption = Theme::font(-1, true);
    m_count = m_sentence = Theme::font(-1);
    m_place = Theme::font(-2);
    m_lines.clear();
}

QRect clsCheckDelegate::menuSign(const QRect &line) const
{
    const QSize size(Theme::scaled(MenuWidth), Theme::scaled(MenuHeight));
    return {QPoint(line.right() + 1 - Theme::Space12 - size.width(), line.top() + (line.height() - size.height()) / 2),
        size};
}

int clsCheckDelegate::indentOf(const QModelIndex &index) const
{
    return Theme::scaled(index.data(clsCheckModel::KindRole).toInt() == clsCheckModel::Note ? NoteIndent : Indent);
}

int clsCheckDelegate::textWidth(const QModelIndex &index, int width) const
{
    return qMax(1, width - indentOf(index) - Theme::scaled(RightRoom));
}

QStringList clsCheckDelegate::sentence(const QString &text, int room, int mostLines) const
{
    QTextLayout layout(text, m_sentence);
    layout.beginLayout();
    QStringList lines;
    for (QTextLine line = layout.createLine(); line.isValid(); line = layout.createLine()) {
        line.setLineWidth(room);
        const QString rest = text.mid(line.textStart());
        if (lines.size() + 1 == mostLines) {
            lines << QFontMetrics(m_sentence).elidedText(rest, Qt::ElideRight, room);
            break;
        }
        lines << rest.left(line.textLength()).trimmed();
    }
    layout.endLayout();
    return lines;
}

bool clsCheckDelegate::isCut(const QModelIndex &index, int width) const
{
    return !isGroup(index) && sentence(index.data().toString(), textWidth(index, width), AllLines).size() > MostLines;
}

QSize clsCheckDelegate::sizeHint(const QStyleOptionViewItem &option, const QModelIndex &index) const
{
    if (isGroup(index))
        return {0, Theme::scaled(GroupHeight)};
    const auto *view = qobject_cast<const QAbstractItemView *>(option.widget);
    const int width = view ? view->viewport()->width() : option.rect.width();
    const int room = textWidth(index, width);
    if (room != m_linesWidth)
        m_lines.clear();
    m_linesWidth = room;
    const QString text = index.data().toString();
    int &lines = m_lines[text];
    if (lines == 0)
        lines = QFontMetrics(m_sentence).horizontalAdvance(text) <= room ? 1 : MostLines;
    const int shown = isChosen(option, index) ? int(sentence(text, room, AllLines).size()) : lines;
    const int height = shown * QFontMetrics(m_sentence).height() + QFontMetrics(m_place).height();
    return {0, height + 2 * Theme::Space8 - 2};
}

void clsCheckDelegate::paint(QPainter *painter, const QStyleOptionViewItem &option, const QModelIndex &index) const
{
    painter->save();
    mdPaintRow(*painter, option, option.widget);
    if (isGroup(index))
        paintGroup(*painter, option, index);
    else
        paintLine(*painter, option, index);
    painter->restore();
}

void clsCheckDelegate::paintGroup(QPainter &painter, const QStyleOptionViewItem &option, const QModelIndex &index) const
{
    const QRect &row = option.rect;
    int left = row.left() + Theme::Space12;
    const int chevron = Theme::scaled(ChevronSide);
    const Glyph glyph = isOpen(option, index) ? Glyph::ChevronDown : Glyph::ChevronRight;
    mdPaintGlyph(painter, square(row, left + Theme::Space4 / 2, chevron), glyph, Theme::Ink2);
    left += chevron + Theme::Space8;
    const auto sign = signOf(index);
    if (sign) {
        const int side = Theme::scaled(SignSide);
        mdPaintSign(painter, square(row, left, side), *sign);
        left += side + Theme::Space8;
    }
    const QString caption = index.data().toString();
    painter.setFont(m_caption);
    painter.setPen(sign ? Theme::Ink : Theme::Ink2);
    painter.drawText(row.adjusted(left - row.left(), 0, 0, 0), Qt::AlignVCenter | Qt::AlignLeft, caption);
    left += QFontMetrics(m_caption).horizontalAdvance(caption) + Theme::Space8;
    painter.setFont(m_count);
    painter.setPen(Theme::Ink2);
    painter.drawText(row.adjusted(left - row.left(), 0, 0, 0), Qt::AlignVCenter | Qt::AlignLeft,
        index.data(clsCheckModel::CountRole).toString());
}

void clsCheckDelegate::paintLine(QPainter &painter, const QStyleOptionViewItem &option, const QModelIndex &index) const
{
    const QRect &row = option.rect;
    const bool isAside = index.data(clsCheckModel::GroupRole).toInt() == clsFindingGroup::PutAside;
    const int left = row.left() + indentOf(index);
    const int room = textWidth(index, row.width());
    const int height = QFontMetrics(m_sentence).height();
    int top = row.top() + Theme::Space8 - 1;
    painter.setFont(m_sentence);
    painter.setPen(isAside ? Theme::Ink2 : Theme::Ink);
    const int most = isChosen(option, index) ? AllLines : MostLines;
    for (const QString &line : sentence(index.data().toString(), room, most)) {
        painter.drawText(QRect(left, top, room, height), Qt::AlignLeft | Qt::AlignVCenter | Qt::TextSingleLine, line);
        top += height;
    }
    painter.setFont(m_place);
    painter.setPen(Theme::Ink2);
    const QFontMetrics metrics(m_place);
    painter.drawText(QRect(left, top, room, metrics.height()), Qt::AlignLeft | Qt::AlignVCenter | Qt::TextSingleLine,
        metrics.elidedText(index.data(clsCheckModel::PlaceRole).toString(), Qt::ElideRight, room));
    if (option.state & QStyle::State_MouseOver)
        paintMenuSign(painter, row);
    else if (isFold(index))
        mdPaintGlyph(painter, square(row, row.right() - Theme::Space24, Theme::scaled(ChevronSide)),
            isOpen(option, index) ? Glyph::ChevronDown : Glyph::ChevronRight, Theme::Ink2);
    mdPaintLine(painter, row, Qt::BottomEdge, Theme::Hairline);
}

void clsCheckDelegate::paintMenuSign(QPainter &painter, const QRect &line) const
{
    const QRect box = menuSign(line);
    mdPaintBox(painter, box, Theme::Paper, Theme::Purple);
    painter.setPen(Qt::NoPen);
    painter.setBrush(Theme::Ink);
    painter.setRenderHint(QPainter::Antialiasing);
    const double dot = Theme::scaled(2);
    for (const int step : {-1, 0, 1})
        painter.drawEllipse(QRectF(box).center() + QPointF(2.5 * dot * step, 0), dot / 2 + 0.2, dot / 2 + 0.2);
}
