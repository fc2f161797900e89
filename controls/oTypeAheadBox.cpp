#include "controls/oTypeAheadBox.h"

#include "controls/mdIcons.h"
#include "controls/mdTheme.h"

#include <QAbstractItemView>
#include <QAction>
#include <QCompleter>
#include <QCoreApplication>
#include <QFocusEvent>
#include <QStringListModel>

namespace {

/// The width of every text box without a limit.
constexpr int BoxWidth = 560;

} // namespace

oTypeAheadBox::oTypeAheadBox(QWidget *parent)
    : oLineBox(parent)
    , m_suggestions(new QStringListModel(this))
{
    setTextMargins(Theme::Space4, 0, Theme::Space4, 0);
    setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);
    auto *suggester = new QCompleter(m_suggestions, this);
    suggester->setCaseSensitivity(Qt::CaseInsensitive);
    setCompleter(suggester);
    installEventFilter(this);
    m_arrow = addAction(mdGlyphIcon(Glyph::ChevronDown, Theme::Ink2), QLineEdit::TrailingPosition);
    m_arrow->setText(QStringLiteral("Suggestions"));
    m_arrow->setVisible(false);
    connect(m_arrow, &QAction::triggered, this, [this] {
        setFocus(Qt::MouseFocusReason);
        suggest(QString());
    });
}

void oTypeAheadBox::setSuggestions(QStringList suggestions)
{
    suggestions.removeDuplicates();
    m_suggestions->setStringList(suggestions);
    m_arrow->setVisible(!suggestions.isEmpty());
}

QStringList oTypeAheadBox::Suggestions() const
{
    return m_suggestions->stringList();
}

QSize oTypeAheadBox::sizeHint() const
{
    return {Theme::scaled(BoxWidth), oLineBox::sizeHint().height()};
}

void oTypeAheadBox::focusInEvent(QFocusEvent *event)
{
    oLineBox::focusInEvent(event);
    if (event->reason() == Qt::TabFocusReason || event->reason() == Qt::BacktabFocusReason
        || event->reason() == Qt::ShortcutFocusReason)
        end(false);
}

void oTypeAheadBox::keyPressEvent(QKeyEvent *event)
{
    const bool isReturn = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
    if (isReturn && suggesting()) {
        // The list of suggestions would consume the key. Return presses the default button as in any other text box,
        // unless it chooses a suggestion.
        const bool chooses = completer()->popup()->currentIndex().isValid();
        completer()->popup()->hide();
        if (!chooses)
            QCoreApplication::sendEvent(parentWidget(), event);
        event->accept();
        return;
    }
    if (event->key() == Qt::Key_Down && !suggesting()) {
        // For a loaded or chosen text the only suggestion would be itself.
        suggest(isModified() ? text() : QString());
        event->accept();
        return;
    }
    oLineBox::keyPressEvent(event);
}

bool oTypeAheadBox::eventFilter(QObject *watched, QEvent *event)
{
    // Left open, they would take keys meant for the newly focused field.
    if (watched == this && event->type() == QEvent::FocusOut && !hasFocus() && suggesting())
        completer()->popup()->hide();
    return oLineBox::eventFilter(watched, event);
}

bool oTypeAheadBox::suggesting() const
{
    return completer()->popup()->isVisible();
}

void oTypeAheadBox::suggest(const QString &beginning)
{
    completer()->setCompletionPrefix(beginning);
    completer()->complete();
}
