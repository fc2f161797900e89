#include "editors/oCodeCombo.h"

#include "controls/mdLeaveFocusedBox.h"
#include "controls/mdTheme.h"
#include "editors/clsCodeList.h"
#include "formdata/mdScheduleOfTimeCodesCollection.h"

#include <QFocusEvent>
#include <QLineEdit>
#include <QTimer>

namespace {

constexpr int BoxWidth = 112;
constexpr int LengthOfCode = 3;

} // namespace

oCodeCombo::oCodeCombo(QWidget *parent)
    : QComboBox(parent)
{
    setEditable(true);
    setInsertPolicy(QComboBox::NoInsert);
    setFocusPolicy(Qt::StrongFocus);
    setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    setMinimumContentsLength(LengthOfCode);
    // Qt's completer uses the first code that fits, and would complete every single letter.
    setCompleter(nullptr);
    addItems(mdScheduleOfTimeCodesCollection());
    m_list = new clsCodeList(*this);
    connect(m_list, &clsCodeList::WordsChanged, this, &oCodeCombo::WordsChanged);
    connect(this, &QComboBox::editTextChanged, this, &oCodeCombo::explain);
    setCode(FirstCode());
    mdGuardFocusedBoxes();
}

void oCodeCombo::setCode(const QString &code)
{
    setCurrentIndex(findText(code, Qt::MatchExactly | Qt::MatchCaseSensitive));
    setEditText(code);
}

/// The tooltip shows the bill's column for the work.
void oCodeCombo::explain()
{
    const bool isCode = mdScheduleOfTimeCodesCollection().contains(Code());
    setToolTip(isCode ? clsCodeList::ColumnOf(Code()) : QString());
}

QString oCodeCombo::InWords() const
{
    return m_list->InWords(Code().toUpper());
}

void oCodeCombo::showPopup()
{
    m_list->MakeRoom();
    QComboBox::showPopup();
    m_list->ShowFoot();
}

bool oCodeCombo::leave()
{
    if (!isVisible() || !isEnabled() || m_telling)
        return true;
    setCode(Code().toUpper());
    m_untold = false;
    m_telling = true;
    const bool fits = mdCheckScheduleOfTimeCode(Code());
    m_telling = false;
    if (!fits) {
        setFocus(Qt::OtherFocusReason);
        lineEdit()->selectAll();
    }
    return fits;
}

QSize oCodeCombo::sizeHint() const
{
    return {Theme::scaled(BoxWidth), QComboBox::sizeHint().height()};
}

bool oCodeCombo::event(QEvent *event)
{
    if (event->type() == QEvent::KeyPress) {
        const int key = static_cast<QKeyEvent *>(event)->key();
        // Before the focus moves, so that the message appears while this box has it.
        if ((key == Qt::Key_Tab || key == Qt::Key_Backtab) && !leave()) {
            event->accept();
            return true;
        }
    }
    return QComboBox::event(event);
}

void oCodeCombo::keyPressEvent(QKeyEvent *event)
{
    switch (event->key()) {
    case Qt::Key_Return:
    case Qt::Key_Enter:
        // A single press saves, even while the completed part is still selected.
        lineEdit()->deselect();
        event->ignore();
        return;
    case Qt::Key_Up:
    case Qt::Key_Down:
    case Qt::Key_PageUp:
    case Qt::Key_PageDown:
        // Steps from the typed code, not from the one chosen before.
        if (const int typed = findText(Code().toUpper(), Qt::MatchExactly | Qt::MatchCaseSensitive); typed >= 0)
            setCurrentIndex(typed);
        break;
    default: break;
    }
    QComboBox::keyPressEvent(event);
    if (!event->text().isEmpty() && event->text()[0].isPrint())
        complete();
}

/// Completes only if a single code is possible; any other choice would be a guess.
void oCodeCombo::complete()
{
    QLineEdit &text = *lineEdit();
    const QString typed = text.text();
    if (typed.isEmpty() || text.cursorPosition() < typed.size())
        return;
    QStringList fitting;
    for (const QString &code : mdScheduleOfTimeCodesCollection())
        if (code.startsWith(typed, Qt::CaseInsensitive))
            fitting << code;
    if (fitting.size() != 1 || fitting[0].size() == typed.size())
        return;
    text.insert(fitting[0].mid(typed.size()));
    text.setSelection(int(typed.size()), int(fitting[0].size() - typed.size()));
}

void oCodeCombo::focusOutEvent(QFocusEvent *event)
{
    QComboBox::focusOutEvent(event);
    if (mdIsInterruption(event->reason()) || !isVisible() || !isEnabled() || m_telling)
        return;
    const QString code = Code().toUpper();
    if (mdScheduleOfTimeCodesCollection().contains(code)) {
        setCode(code);
        return;
    }
    // Returns the focus at once, so that the window that took it sees the user held here. The message is left to that
    // window or comes after it, because a message during a focus change would interfere.
    m_untold = true;
    setFocus(Qt::OtherFocusReason);
    QTimer::singleShot(0, this, [this] {
        if (m_untold)
            leave();
    });
}
