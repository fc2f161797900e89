#include "editors/clsCodeList.h"

#include "controls/mdTheme.h"
#include "controls/oCustomButton.h"
#include "costing/tables/mdCodeWordsFile.h"
#include "editors/mdEditCodeWords.h"
#include "editors/oCodeDelegate.h"
#include "formdata/clsZR3ScheduleOfTimeItem.h"
#include "formdata/mdScheduleOfTimeCodesCollection.h"

#include <QAbstractItemView>
#include <QApplication>
#include <QComboBox>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QScreen>
#include <QScrollBar>
#include <QTimer>

#include <algorithm>

namespace {

QString gapped(const QString &column, const QString &words)
{
    return words.isEmpty() ? column : column + QStringLiteral("  ") + words;
}

bool beginsCode(const QString &typed)
{
    const QStringList &codes = mdScheduleOfTimeCodesCollection();
    return std::any_of(
        codes.begin(), codes.end(), [&](const QString &code) { return code.startsWith(typed, Qt::CaseInsensitive); });
}

/// Typing one letter repeatedly moves from code to code; the list itself does that.
bool isOneLetterAgain(const QString &typed)
{
    return typed.size() > 1 && typed.count(typed[0], Qt::CaseInsensitive) == typed.size() && beginsCode(typed.left(1));
}

} // namespace

clsCodeList::clsCodeList(QComboBox &box)
    : QObject(&box)
    , m_box(box)
{
    readWords();
    m_box.setItemDelegate(new oCodeDelegate(this));
    m_box.view()->installEventFilter(this);
}

QString clsCodeList::ColumnOf(const QString &code)
{
    switch (clsZR3ScheduleOfTimeItem::ColumnOfCode(code)) {
    case clsZR3ScheduleOfTimeItem::Documents: return QStringLiteral("Docs");
    case clsZR3ScheduleOfTimeItem::Hearings: return QStringLiteral("Hrng");
    default: return QStringLiteral("Att / Conf");
    }
}

QString clsCodeList::InWords(const QString &code) const
{
    return mdScheduleOfTimeCodesCollection().contains(code) ? gapped(ColumnOf(code), m_words.of(code)) : QString();
}

/// The codes stay the list's texts; the words are stored beside them, for drawing and screen readers.
void clsCodeList::readWords()
{
    m_words = mdReadCodeWords();
    for (int row = 0; row < m_box.count(); ++row) {
        const QString code = m_box.itemText(row);
        m_box.setItemData(row, ColumnOf(code), oCodeDelegate::ColumnRole);
        m_box.setItemData(row, m_words.of(code), oCodeDelegate::WordsRole);
        m_box.setItemData(row, InWords(code), Qt::ToolTipRole);
        m_box.setItemData(row, InWords(code), Qt::AccessibleDescriptionRole);
    }
}

void clsCodeList::MakeRoom()
{
    QAbstractItemView &view = *m_box.view();
    const int edges = 2 * view.frameWidth() + view.verticalScrollBar()->sizeHint().width();
    const int room = m_box.screen()->availableGeometry().width();
    view.setMinimumWidth(qMin(oCodeDelegate::WidthFor(m_box) + edges, room));
    m_typed.clear();
}

void clsCodeList::makeFoot()
{
    QWidget *popup = m_box.view()->parentWidget();
    m_foot = new QWidget(popup);
    m_foot->setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);
    auto *line = new QHBoxLayout(m_foot);
    line->setContentsMargins(Theme::Space8, Theme::Space4, Theme::Space8, Theme::Space4);
    line->setSpacing(Theme::Space8);
    auto *change = new oCustomButton(m_foot);
    change->setObjectName(QStringLiteral("cmdCodeWords"));
    change->setCaption(QStringLiteral("Codes..."));
    change->setLook(oCustomButton::Look::Small);
    change->setToolTip(QStringLiteral("Change the words behind the codes"));
    change->installEventFilter(this);
    connect(change, &oCustomButton::Click, this, &clsCodeList::edit);
    m_wrongLines = new QLabel(m_foot);
    m_wrongLines->setFont(Theme::font(-1));
    m_wrongLines->setTextFormat(Qt::PlainText);
    m_wrongLines->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
    line->addWidget(change);
    line->addWidget(m_wrongLines, 1);
    popup->layout()->addWidget(m_foot);
}

/// Called after the list is placed: below its box or, if there is no room, above it.
void clsCodeList::ShowFoot()
{
    if (!m_foot)
        makeFoot();
    m_wrongLines->setText(m_words.wrongLinesInWords());
    m_wrongLines->setToolTip(m_wrongLines->text());
    QWidget &popup = *m_box.view()->window();
    QRect place = popup.geometry();
    const int height = m_foot->sizeHint().height();
    const QRect room = m_box.screen()->availableGeometry();
    if (place.top() >= m_box.mapToGlobal(QPoint()).y())
        place.setBottom(qMin(place.bottom() + height, room.bottom()));
    else
        place.setTop(qMax(place.top() - height, room.top()));
    place.moveRight(qMin(place.right(), qMax(room.right(), room.left() + place.width() - 1)));
    popup.setGeometry(place);
    m_box.view()->scrollTo(m_box.view()->currentIndex());
}

void clsCodeList::edit()
{
    m_box.hidePopup();
    // After the list has closed, because it grabs the keyboard and mouse.
    QTimer::singleShot(0, this, [this] {
        if (!mdEditCodeWords(m_box.window(), m_words))
            return;
        readWords();
        emit WordsChanged();
    });
}

bool clsCodeList::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() != QEvent::KeyPress)
        return false;
    const auto *key = static_cast<QKeyEvent *>(event);
    if (watched == m_box.view())
        return takesKey(key->key(), key->text());
    if (key->key() != Qt::Key_Escape)
        return false;
    m_box.hidePopup();
    return true;
}

/// Searches the words only; the list itself handles typed codes and all other keys.
bool clsCodeList::takesKey(int key, const QString &text)
{
    if (key == Qt::Key_Tab && m_foot) {
        m_foot->findChild<oCustomButton *>()->setFocus(Qt::TabFocusReason);
        return true;
    }
    if (text.isEmpty() || !text[0].isPrint())
        return false;
    if (!m_sinceKey.isValid() || m_sinceKey.elapsed() > QApplication::keyboardInputInterval())
        m_typed.clear();
    m_sinceKey.start();
    m_typed += text;
    if (beginsCode(m_typed) || isOneLetterAgain(m_typed))
        return false;
    const int row = rowOfWords(m_typed.simplified());
    if (row >= 0)
        m_box.view()->setCurrentIndex(m_box.model()->index(row, m_box.modelColumn(), m_box.rootModelIndex()));
    return true;
}

/// The first code with a word that begins with `typed`; -1 if there is none.
int clsCodeList::rowOfWords(const QString &typed) const
{
    for (int row = 0; row < m_box.count() && !typed.isEmpty(); ++row)
        if ((u' ' + m_words.of(m_box.itemText(row))).contains(u' ' + typed, Qt::CaseInsensitive))
            return row;
    return -1;
}
