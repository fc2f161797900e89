#include "editors/oSpellingNote.h"

#include "controls/clsSpellingChecker.h"
#include "controls/mdTheme.h"

oSpellingNote::oSpellingNote(clsSpellingChecker &checker, QWidget *parent)
    : QLabel(parent)
{
    setWordWrap(true);
    QPalette ink = palette();
    ink.setColor(QPalette::WindowText, Theme::Ink2);
    setPalette(ink);
    if (checker.IsAvailable())
        hide();
    else
        setText(QStringLiteral("Spelling is not checked: no British dictionary is installed."));
}

QSize oSpellingNote::sizeHint() const
{
    return {fontMetrics().horizontalAdvance(text()) + 1, fontMetrics().height()};
}
