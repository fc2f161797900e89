#include "editors/oCodeNote.h"

#include "controls/mdTheme.h"
#include "controls/mdToolTip.h"
#include "editors/oCodeCombo.h"

#include <QPainter>

void oCodeNote::Follow(oCodeCombo &box)
{
    setObjectName(QStringLiteral("lblCodeWords"));
    setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);
    const auto renewed = [this, &box] { renew(box); };
    connect(&box, &QComboBox::editTextChanged, this, renewed);
    connect(&box, &oCodeCombo::WordsChanged, this, renewed);
    renew(box);
}

void oCodeNote::renew(oCodeCombo &box)
{
    m_words = box.InWords();
    setToolTip(mdPlainToolTip(m_words));
    setAccessibleName(m_words);
    box.setAccessibleDescription(m_words);
    update();
}

QSize oCodeNote::sizeHint() const
{
    const QFontMetrics metrics(Theme::font(-1));
    return {metrics.horizontalAdvance(m_words), metrics.height()};
}

void oCodeNote::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    painter.setFont(Theme::font(-1));
    painter.setPen(isEnabled() ? Theme::Ink2 : Theme::Ink3);
    painter.drawText(rect(), Qt::AlignLeft | Qt::AlignVCenter | Qt::TextSingleLine,
        painter.fontMetrics().elidedText(m_words, Qt::ElideRight, width()));
}
