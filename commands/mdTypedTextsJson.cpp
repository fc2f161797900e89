#include "commands/mdTypedTextsJson.h"

#include <QJsonArray>

QJsonObject TypedTextsObject(const clsTypedTexts &texts)
{
    QJsonArray fields;
    for (const auto &[property, text] : texts.fields)
        fields.append(QJsonArray {property, text});
    return {{QStringLiteral("screen"), texts.screen}, {QStringLiteral("caption"), texts.caption},
        {QStringLiteral("order"), texts.orderID}, {QStringLiteral("item"), texts.item},
        {QStringLiteral("characters"), texts.characters}, {QStringLiteral("fields"), fields}};
}

clsTypedTexts TypedTextsOf(const QJsonObject &object)
{
    clsTypedTexts texts {object[QStringLiteral("screen")].toString(), object[QStringLiteral("caption")].toString(),
        object[QStringLiteral("order")].toInt(), {}, object[QStringLiteral("item")].toString(),
        object[QStringLiteral("characters")].toInt()};
    for (const auto &field : object[QStringLiteral("fields")].toArray())
        texts.fields.emplace_back(field[0].toString(), field[1].toString());
    return texts;
}
