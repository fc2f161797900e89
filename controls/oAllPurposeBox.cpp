#include "controls/oAllPurposeBox.h"

#include "controls/clsCharacterCount.h"
#include "controls/mdTheme.h"
#include "controls/oSpellText.h"
#include "formdata/mdReplacements.h"

#include <QAction>
#include <QApplication>
#include <QBoxLayout>
#include <QEvent>
#include <QLabel>

namespace {

/// The entry shared by the menus of all boxes; enabled once it has an action.
QAction &editReplacementsEntry()
{
    const QString name = QStringLiteral("mnuEditReplacements");
    if (auto *known = qApp->findChild<QAction *>(name, Qt::FindDirectChildrenOnly))
        return *known;
    auto *entry = new QAction(QStringLiteral("Edit Replacements..."), qApp);
    entry->setObjectName(name);
    entry->setEnabled(false);
    return *entry;
}

/// Lets the expansion of abbreviations edit the box's text like the user, so that it can be undone.
struct clsTypedText {
    oSpellText &box;
    QString Text() const { return box.Text(); }
    void setText(const QString &text) { box.rewriteText(text); }
    int SelStart() const { return box.SelStart(); }
    void setSelStart(int position) { box.setSelStart(position); }
};

/// Boxes have one of three widths, for an even look of the screens.
int widthFor(int allowance, bool multiLine)
{
    if (multiLine || allowance <= 0 || allowance > 25)
        return 560;
    return allowance > 9 ? 224 : 112;
}

/// The more room the form has, the taller the box; a text without a limit gets the tallest.
int linesFor(int allowance)
{
    return allowance > 0 ? qBound(3, 3 + allowance / 130, 8) : 8;
}

/// The limit of a box that grows with the window: a longer text scrolls.
constexpr int MostLines = 12;

constexpr int CountWidth = 44;
constexpr int PrintNoteMilliseconds = 40;

} // namespace

void SetEditReplacements(std::function<void()> edit)
{
    QAction &entry = editReplacementsEntry();
    QObject::disconnect(&entry, &QAction::triggered, &entry, nullptr);
    entry.setEnabled(bool(edit));
    if (edit)
        QObject::connect(&entry, &QAction::triggered, &entry, [edit = std::move(edit)] { edit(); });
}

oAllPurposeBox::oAllPurposeBox(QWidget *parent)
    : QWidget(parent)
    , m_text(new oSpellText(this))
    , m_count(new QLabel(this))
    , m_sign(new oPrintSign(m_count))
{
    m_text->setObjectName(QStringLiteral("txtText"));
    m_count->setObjectName(QStringLiteral("lblCharacterAllowance"));
    setFocusProxy(m_text);
    auto *row = new QHBoxLayout(this);
    row->setContentsMargins(0, 0, 0, 0);
    row->setSpacing(Theme::Space8);
    row->addWidget(m_text, 1);
    row->addWidget(m_count);

    m_text->addAction(&editReplacementsEntry());
    connect(m_text, &oSpellText::Change, this, [this] {
        emit Change();
        refreshCount();
        // Not restarted by each key, so that the note also updates while the user types without a pause.
        if (m_printNote && !m_printNoteIsDue.isActive())
            m_printNoteIsDue.start();
    });
    m_printNoteIsDue.setSingleShot(true);
    m_printNoteIsDue.setInterval(PrintNoteMilliseconds);
    connect(&m_printNoteIsDue, &QTimer::timeout, this, &oAllPurposeBox::refreshPrintNote);
    connect(m_text, &oSpellText::KeyRelease, this, &oAllPurposeBox::keyReleased);
    m_text->installEventFilter(this);
    layOut();
}

QString oAllPurposeBox::Text() const
{
    return m_text->Text();
}

void oAllPurposeBox::setText(const QString &text)
{
    m_text->setText(text);
}

bool oAllPurposeBox::MultiLine() const
{
    return m_text->MultiLine();
}

void oAllPurposeBox::setMultiLine(bool multiLine)
{
    m_text->setMultiLine(multiLine);
    layOut();
}

bool oAllPurposeBox::SpellCheck() const
{
    return m_text->SpellCheck();
}

void oAllPurposeBox::setSpellCheck(bool spellCheck)
{
    m_text->setSpellCheck(spellCheck);
}

void oAllPurposeBox::setOverRun(bool overRun)
{
    m_overRun = overRun;
    refreshCount();
}

void oAllPurposeBox::setCharacterAllowance(int characterAllowance)
{
    m_characterAllowance = characterAllowance;
    refreshCount();
    layOut();
}

int oAllPurposeBox::SelStart() const
{
    return m_text->SelStart();
}

void oAllPurposeBox::setSelStart(int position)
{
    m_text->setSelStart(position);
}

int oAllPurposeBox::topOfFirstLine() const
{
    return m_text->topOfFirstLine();
}

void oAllPurposeBox::keyReleased(int KeyCode)
{
    if (!m_allowReplacements)
        return;
    clsTypedText text {*m_text};
    ApplyReplacements(KeyCode, text);
}

void oAllPurposeBox::refreshCount()
{
    if (m_characterAllowance == 0) {
        m_countInWords.clear();
        describe();
        return;
    }
    const clsCharacterCount count(m_characterAllowance, Text().size(), m_overRun);
    if (count.colour) {
        QPalette palette = m_count->palette();
        palette.setColor(QPalette::Active, QPalette::WindowText, *count.colour);
        palette.setColor(QPalette::Inactive, QPalette::WindowText, *count.colour);
        m_count->setPalette(palette);
    }
    m_count->setText(count.text);
    m_count->setToolTip(count.words);
    m_count->setAccessibleDescription(count.words);
    m_countInWords = count.words;
    describe();
    // Only a number of five digits needs more than the usual width.
    m_count->setFixedWidth(qMax(Theme::scaled(CountWidth), m_count->sizeHint().width()));
    placeSign();
}

void oAllPurposeBox::describe()
{
    const QString &print = m_sign->Note().words;
    m_text->setAccessibleDescription(
        print.isEmpty() ? m_countInWords : QStringLiteral("%1. %2").arg(m_countInWords, print));
}

void oAllPurposeBox::setPrintNote(std::function<clsPrintNote(const QString &text)> note)
{
    m_printNote = std::move(note);
    m_printNoteIsDue.start();
}

void oAllPurposeBox::refreshPrintNote()
{
    if (!m_printNote)
        return;
    m_sign->setNote(m_printNote(Text()));
    describe();
}

void oAllPurposeBox::placeSign()
{
    const QSize size = m_sign->sizeHint();
    // Below the number; beside it in a single-line box.
    const int number = m_count->fontMetrics().horizontalAdvance(m_count->text());
    const QPoint place = MultiLine()
        ? QPoint(0, m_count->contentsMargins().top() + m_count->fontMetrics().height() + Theme::Space4)
        : QPoint(qMin(number + Theme::Space4, m_count->width() - size.width()), (m_text->height() - size.height()) / 2);
    m_sign->setGeometry(QRect(place, size));
}

void oAllPurposeBox::layOut()
{
    const int allowance = m_characterAllowance;
    m_count->setVisible(allowance != 0);
    m_count->setFont(Theme::font(-1, true));
    m_count->setAlignment(Qt::AlignLeft | (MultiLine() ? Qt::AlignTop : Qt::AlignVCenter));
    const int lower = (m_text->fontMetrics().height() - m_count->fontMetrics().height() + 1) / 2;
    m_count->setContentsMargins(0, MultiLine() ? m_text->topOfFirstLine() + lower : 0, 0, 0);
    m_text->setRoom(Theme::scaled(widthFor(allowance, MultiLine())), linesFor(allowance));
    setSizePolicy(m_text->sizePolicy());
    setMaximumHeight(MultiLine() ? m_text->heightOfLines(MostLines) : QWIDGETSIZE_MAX);
    refreshCount();
}

void oAllPurposeBox::changeEvent(QEvent *event)
{
    QWidget::changeEvent(event);
    if (event->type() == QEvent::FontChange || event->type() == QEvent::StyleChange)
        layOut();
}

bool oAllPurposeBox::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::Resize)
        placeSign();
    if (event->type() == QEvent::Show || event->type() == QEvent::FocusIn)
        passNameOn();
    return QWidget::eventFilter(watched, event);
}

void oAllPurposeBox::passNameOn()
{
    // The owner sets the box's name; the focus and the screen reader are on the editor inside.
    if (m_text->accessibleName() != accessibleName())
        m_text->setAccessibleName(accessibleName());
}
