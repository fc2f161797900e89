#include "editors/mdColumnProfiles.h"

#include "base/clsUserInterface.h"
#include "base/mdStateFile.h"
#include "costing/tables/clsImportedRows.h"
#include "editors/clsPasteList.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

namespace {

constexpr char FileName[] = "Columns.json";
/// Beyond this number the file starts again, so that it can't grow without limit.
constexpr int MostProfiles = 200;

QJsonObject profiles()
{
    const QByteArray content = mdReadStateFile(QString::fromLatin1(FileName));
    const QJsonDocument document = QJsonDocument::fromJson(content);
    if (!content.isEmpty() && !document.isObject()) {
        mdSetStateFileAside(QString::fromLatin1(FileName));
        UserInterface().tellLine(QStringLiteral("The file of known columns was broken and has been set aside"));
    }
    return document.object();
}

/// Identifies a table; empty if it names no columns.
QString keyOf(const clsImportedRows &rows, const clsPasteList &list)
{
    const QString line = rows.header().join(u'\t').simplified();
    return line.isEmpty() ? QString()
                          : QString::fromLatin1(list.table) + u':' + rows.header().join(u'\t').trimmed().toLower();
}

} // namespace

void mdUseColumnProfile(clsImportedRows &rows, const clsZR3Form &form, const clsPasteList &list)
{
    const QString key = keyOf(rows, list);
    if (key.isEmpty())
        return;
    const QJsonArray names = profiles().value(key).toArray();
    if (names.size() != rows.header().size())
        return;
    const auto columnAt = [&](int place) { return mdColumnOf(list.import().columns, names[place].toString()); };
    for (int place = 0; place < int(names.size()); ++place)
        if (rows.meaningOf(place) != columnAt(place))
            rows.setMeaning(form, place, columnAt(place));
}

void mdKeepColumnProfile(const clsImportedRows &rows, const clsPasteList &list)
{
    const QString key = keyOf(rows, list);
    if (key.isEmpty())
        return;
    QJsonArray names;
    for (int place = 0; place < int(rows.header().size()); ++place) {
        const int column = rows.meaningOf(place);
        names << (column < 0 ? QString() : QString::fromLatin1(list.import().columns[size_t(column)].name));
    }
    QJsonObject all = profiles();
    if (all.size() >= MostProfiles && !all.contains(key))
        all = {};
    all.insert(key, names);
    mdWriteStateFile(QString::fromLatin1(FileName), QJsonDocument(all).toJson());
}
