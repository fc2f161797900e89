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
    // Qt's completes with the first code that fits, and so makes a code of every letter.
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

/// The tooltip says in which column of the bill the work will stand.
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
        // Before the focus goes, so that the message finds it here and nowhere else.
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
        // One press saves, also while what is completed is still marked.
        lineEdit()->deselect();
        event->ignore();
        return;
    case Qt::Key_Up:
    case Qt::Key_Down:
    case Qt::Key_PageUp:
    case Qt::Key_PageDown:
        // From what is typed, and not from what was chosen before.
        if (const int typed = findText(Code().toUpper(), Qt::MatchExactly | Qt::MatchCaseSensitive); typed >= 0)
            setCurrentIndex(typed);
        break;
    default: break;
    }
    QComboBox::keyPressEvent(event);
    if (!event->text().isEmpty() && event->text()[0].isPrint())
        complete();
}

/// Only where what is typed leaves no choice: anything else would be a code that nobody has meant.
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
    // The focus comes back at once, so that whatever took it finds the user held here. The message is left to that, or
    // else comes when it is done: a message in the middle of a change of the focus would be in its way.
    m_untold = true;
    setFocus(Qt::OtherFocusReason);
    QTimer::singleShot(0, this, [this] {
        if (m_untold)
            leave();
    });
}
