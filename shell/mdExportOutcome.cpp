#include "shell/mdExportOutcome.h"

#include "editors/mdFieldPlace.h"
#include "wordexport/clsForecast.h"

#include <QFileInfo>
#include <QStringList>

namespace {

constexpr int MostNamed = 4;

QString counted(int count, const QString &one, const QString &more)
{
    return QStringLiteral("%1 %2").arg(count).arg(count == 1 ? one : more);
}

QString nameOf(const clsForecast::Box &box)
{
    if (box.Row > 0)
        return QStringLiteral("sheet %1, row %2").arg(box.Sheet).arg(box.Row);
    if (const auto place = mdFieldPlace(box.Property))
        return QStringLiteral("%1 (%2)").arg(place->caption, place->section);
    return QStringLiteral("a box of sheet ") + box.Sheet;
}

QString boxes(const clsForecast &given, clsForecast::Box::clsState state, const QString &heading)
{
    QStringList names;
    for (const clsForecast::Box &box : given.Boxes)
        if (box.State == state && !names.contains(nameOf(box)))
            names << nameOf(box);
    if (names.isEmpty())
        return {};
    const int rest = int(names.size()) - MostNamed;
    names = names.mid(0, MostNamed);
    if (rest > 0)
        names << QStringLiteral("%1 more").arg(rest);
    return QStringLiteral(" %1: %2.").arg(heading, names.join(QStringLiteral("; ")));
}

} // namespace

QString mdExportOutcome(const QString &document, const clsForecast &given)
{
    const QFileInfo file(document);
    return QStringLiteral("%1 is in %2: %3 on %4.")
               .arg(file.fileName(), file.path(),
                   counted(given.SheetCount(), QStringLiteral("sheet"), QStringLiteral("sheets")),
                   counted(given.PaperPages(), QStringLiteral("page of paper"), QStringLiteral("pages of paper")))
        + boxes(given, clsForecast::Box::Smaller, QStringLiteral("Printed smaller"))
        + boxes(given, clsForecast::Box::RunsOn, QStringLiteral("Running on to another page"))
        + boxes(given, clsForecast::Box::Cut, QStringLiteral("Cut"));
}
