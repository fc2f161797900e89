#include "editors/oCodeCombo.h"

#include "controls/mdLeaveFocusedBox.h"
#include "controls/mdTheme.h"
#include "costing/clsZR3ScheduleOfTimeItem.h"
#include "costing/mdScheduleOfTimeCodesCollection.h"

#include <QFocusEvent>
#include <QLineEdit>
#include <QTimer>

namespace {

constexpr int BoxWidth = 112;
constexpr int LengthOfCode = 3;

/// The caption of the bill's column in which the work of a code stands.
QString columnOf(const QString &code)
{
    switch (clsZR3ScheduleOfTimeItem::ColumnOfCode(code)) {
    case clsZR3ScheduleOfTimeItem::Documents: return QStringLiteral("Docs");
    case clsZR3ScheduleOfTimeItem::Hearings: return QStringLiteral("Hrng");
    default: return QStringLiteral("Att / Conf");
    }
}

/// The focus comes back to where it was: nobody has left.
bool isInterruption(Qt::FocusReason reason)
{
    return reason == Qt::ActiveWindowFocusReason || reason == Qt::PopupFocusReason || reason == Qt::MenuBarFocusReason;
}

} // namespace

oCodeCombo::oCodeCombo(QWidget *parent)
    : QComboBox(parent)
{
    setEditable(true);
    setInsertPolicy(QComboBox::NoInsert);
    setFocusPolicy(Qt::StrongFocus);
    setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    setMinimumContentsLength(LengthOfCode);
    for (const QString &code : mdScheduleOfTimeCodesCollection()) {
        addItem(code);
        setItemData(count() - 1, columnOf(code), Qt::ToolTipRole);
    }
    connect(this, &QComboBox::editTextChanged, this, &oCodeCombo::explain);
    setCode(QStringLiteral("DOT"));
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
    setToolTip(isCode ? columnOf(Code()) : QString());
}

bool oCodeCombo::leave()
{
    if (!isVisible() || !isEnabled() || m_telling)
        return true;
    setCode(Code().toUpper());
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
    if (event->key() != Qt::Key_Return && event->key() != Qt::Key_Enter) {
        QComboBox::keyPressEvent(event);
        return;
    }
    // One press saves, also while what is completed is still marked.
    lineEdit()->deselect();
    event->ignore();
}

void oCodeCombo::focusOutEvent(QFocusEvent *event)
{
    QComboBox::focusOutEvent(event);
    if (isInterruption(event->reason()) || !isVisible() || m_telling)
        return;
    const QString code = Code().toUpper();
    if (code != Code())
        setCode(code);
    // Whatever took the focus away without asking: the message waits until that is done.
    if (!mdScheduleOfTimeCodesCollection().contains(code))
        QTimer::singleShot(0, this, [this] { leave(); });
}
