#include "tests/soak/clsMemoryWatch.h"

#include <QApplication>
#include <QWidget>

#include <algorithm>

#include <malloc.h>

#if defined(__SANITIZE_ADDRESS__)
// Not every compiler has the header for this.
extern "C" size_t __sanitizer_get_current_allocated_bytes();
#endif

namespace {

constexpr size_t WarmUp = 5;
constexpr size_t FewestAfterIt = 9;

/// The caches of glyphs, pictures and fonts may still grow by this much after the warm-up: they depend on what a random
/// run shows, and are limited. A font needed late, for one unusual letter, takes half of this.
constexpr qint64 HeapBound = 2 * 1024 * 1024;
/// Objects are counted exactly.
constexpr qint64 ObjectBound = 0;

qint64 heapInUse()
{
#if defined(__SANITIZE_ADDRESS__)
    return qint64(__sanitizer_get_current_allocated_bytes());
#else
    const struct mallinfo2 info = mallinfo2();
    return qint64(info.uordblks + info.hblkhd);
#endif
}

} // namespace

void clsMemoryWatch::take(int action)
{
    qint64 objects = qApp->findChildren<QObject *>().size();
    const QWidgetList windows = QApplication::topLevelWidgets();
    for (const QWidget *window : windows)
        if (!window->parent())
            objects += window->findChildren<QObject *>().size();
    m_points.push_back({action, heapInUse(), objects, windows.size()});
}

QString clsMemoryWatch::grows(const char *what, qint64 clsPoint::*figure, qint64 bound) const
{
    const auto less = [figure](const clsPoint &one, const clsPoint &other) { return one.*figure < other.*figure; };
    const auto begin = m_points.begin() + WarmUp;
    const auto third = (m_points.end() - begin) / 3;
    const qint64 before = (*std::max_element(begin, begin + third, less)).*figure;
    const qint64 after = (*std::min_element(m_points.end() - third, m_points.end(), less)).*figure;
    if (after <= before + bound)
        return {};
    return QStringLiteral("%1 grow from at most %2 to at least %3; ").arg(QLatin1String(what)).arg(before).arg(after);
}

QString clsMemoryWatch::whatGrows() const
{
    if (m_points.size() < WarmUp + FewestAfterIt)
        return {};
    return grows("the bytes in use", &clsPoint::heap, HeapBound) + grows("the objects", &clsPoint::objects, ObjectBound)
        + grows("the windows", &clsPoint::windows, ObjectBound);
}
