// The tool writes valid JSON, whatever a claim contains.

#include "base/clsJsonWriter.h"
#include "tests/support/mdTestPrinting.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <gtest/gtest.h>

TEST(JsonWriter, WritesEveryTextAsTheLibraryQuotesItButForControlsThatItLeaves)
{
    QStringList texts = {QString(), QStringLiteral("plain"), QStringLiteral("a \"b\" \\ / c"),
        QString::fromUtf8("caf\u00e9 \u20ac \U0001F600"), QStringLiteral("~\x7f")};
    for (char16_t c = 0; c < 0x100; ++c)
        texts << QStringLiteral("a") + QChar(c) + QStringLiteral("b");
    for (const QString &text : texts) {
        clsJsonWriter writer;
        writer.beginObject();
        writer.text("key", text);
        writer.endObject();
        QByteArray quoted = QJsonDocument(QJsonArray {text}).toJson(QJsonDocument::Compact).mid(1).chopped(1);
        // Qt escapes none of these, which control a terminal.
        for (char16_t c = 0x7f; c <= 0x9f; ++c)
            quoted.replace(
                QString(QChar(c)).toUtf8(), QStringLiteral("\\u%1").arg(int(c), 4, 16, QChar(u'0')).toUtf8());
        EXPECT_EQ("{\n \"key\": " + quoted + "\n}\n", writer.bytes());
        EXPECT_EQ(text, QJsonDocument::fromJson(writer.bytes()).object()[QStringLiteral("key")].toString());
    }
}
