#include "costing/comparing/mdChangesReport.h"

#include "base/clsJsonWriter.h"

#include <QJsonArray>
#include <QJsonObject>
#include <QStringList>

#include <algorithm>

namespace {

constexpr const char *Words[] = {"added", "removed", "changed"};

void writeValues(clsJsonWriter &json, const QString &before, const QString &after)
{
    json.text("Old", before);
    json.text("New", after);
    json.endObject();
}

void writeItem(clsJsonWriter &json, const clsItemChange &item, bool withNames)
{
    json.beginObject();
    json.text("List", item.List);
    if (withNames)
        json.text("Name", item.Name);
    json.text("Change", QString::fromLatin1(Words[item.Change]));
    json.number("OldItem", item.OldItem);
    json.number("NewItem", item.NewItem);
    json.beginArray("Fields");
    for (const clsFieldChange &field : item.Fields) {
        json.beginObject();
        json.text("Property", field.Property);
        writeValues(json, field.Old, field.New);
    }
    json.endArray();
    json.text("Effect", item.Effect);
    json.endObject();
}

QString textIn(const QJsonObject &object, const char *key)
{
    return object[QLatin1String(key)].toString();
}

std::vector<clsFieldChange> readFields(const QJsonObject &object)
{
    std::vector<clsFieldChange> fields;
    for (const auto &value : object[QLatin1String("Fields")].toArray()) {
        const QJsonObject field = value.toObject();
        fields.push_back(
            {textIn(field, "Screen"), textIn(field, "Property"), textIn(field, "Old"), textIn(field, "New")});
    }
    return fields;
}

clsItemChange readItem(const QJsonObject &item)
{
    const auto *const word = std::find(std::begin(Words), std::end(Words), textIn(item, "Change"));
    return {textIn(item, "List"), textIn(item, "Name"),
        word == std::end(Words) ? clsItemChange::Changed : clsItemChange::Kind(word - std::begin(Words)),
        item[QLatin1String("OldItem")].toInt(), item[QLatin1String("NewItem")].toInt(), readFields(item),
        textIn(item, "Effect")};
}

/// "was" before "is".
QString fromTo(const QString &name, const QString &before, const QString &after)
{
    return QStringLiteral("%1: \"%2\" -> \"%3\"").arg(name, before, after);
}

QString itemInWords(const clsItemChange &item)
{
    const QString numbers = item.OldItem == item.NewItem || item.Change == clsItemChange::Removed
        ? QString::number(item.OldItem)
        : item.Change == clsItemChange::Added ? QString::number(item.NewItem)
                                              : QStringLiteral("%1 (now %2)").arg(item.OldItem).arg(item.NewItem);
    QStringList parts;
    for (const clsFieldChange &field : item.Fields) {
        if (item.Change == clsItemChange::Changed)
            parts << fromTo(field.Property, field.Old, field.New);
        else
            parts << QStringLiteral("%1: \"%2\"")
                         .arg(field.Property, item.Change == clsItemChange::Added ? field.New : field.Old);
    }
    if (!item.Effect.isEmpty())
        parts << QStringLiteral("effect: ") + item.Effect;
    parts.prepend(QStringLiteral("%1 %2 %3").arg(item.List, numbers, QString::fromLatin1(Words[item.Change])));
    return parts.join(QStringLiteral(", "));
}

} // namespace

void mdWriteChanges(clsJsonWriter &json, const clsClaimChanges &changes, bool withNames)
{
    json.beginArray("Fields");
    for (const clsFieldChange &field : changes.Fields) {
        json.beginObject();
        json.text("Screen", field.Screen);
        json.text("Property", field.Property);
        writeValues(json, field.Old, field.New);
    }
    json.endArray();
    json.beginArray("Items");
    for (const clsItemChange &item : changes.Items)
        writeItem(json, item, withNames);
    json.endArray();
    json.beginArray("Totals");
    for (const clsTotalChange &total : changes.Totals) {
        json.beginObject();
        json.text("Key", total.Key);
        writeValues(json, total.Old, total.New);
    }
    json.endArray();
}

clsClaimChanges mdReadChanges(const QJsonObject &object)
{
    clsClaimChanges changes;
    changes.Fields = readFields(object);
    for (const auto &item : object[QLatin1String("Items")].toArray())
        changes.Items.push_back(readItem(item.toObject()));
    for (const auto &value : object[QLatin1String("Totals")].toArray()) {
        const QJsonObject total = value.toObject();
        changes.Totals.push_back({textIn(total, "Key"), textIn(total, "Old"), textIn(total, "New")});
    }
    return changes;
}

QString mdChangesInLines(const clsClaimChanges &changes, const QString &before)
{
    QStringList lines;
    for (const clsFieldChange &field : changes.Fields)
        lines << field.Screen + QStringLiteral(", ") + fromTo(field.Property, field.Old, field.New);
    for (const clsItemChange &item : changes.Items)
        lines << itemInWords(item);
    for (const clsTotalChange &total : changes.Totals)
        lines << fromTo(total.Key, total.Old, total.New);
    QString text;
    for (QString &line : lines)
        // A line break in a value must not end the line.
        text += before + line.replace(u'\r', u' ').replace(u'\n', u' ') + QStringLiteral("\r\n");
    return text;
}
