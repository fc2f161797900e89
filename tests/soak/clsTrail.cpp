#include "tests/soak/clsTrail.h"

#include <cstdio>

void clsTrail::say(const char *kind, const QString &words)
{
    ++m_actions;
    ++m_counts[QString::fromLatin1(kind)];
    keep(QStringLiteral("%1 %2: %3").arg(m_actions, 6).arg(QLatin1String(kind), words));
}

void clsTrail::note(const QString &words)
{
    keep(QStringLiteral("       (") + words + u')');
}

void clsTrail::keep(const QString &line)
{
    // One line each, whatever was typed.
    QString shown = line.left(160);
    for (QChar &c : shown)
        if (!c.isPrint())
            c = u'~';
    m_last.push_back(shown.toUtf8());
    if (m_last.size() > Kept)
        m_last.pop_front();
    if (m_tellsAll)
        std::printf("%s\n", m_last.back().constData());
}

void clsTrail::printLast() const
{
    std::fprintf(stderr, "The last actions, of %d:\n", m_actions);
    for (const QByteArray &line : m_last)
        std::fprintf(stderr, "%s\n", line.constData());
    std::fflush(stderr);
}
