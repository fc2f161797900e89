#include "tests/export/clsExportTest.h"

#include <QJsonDocument>

// Each sample claim must send to the word processor exactly what was worked out for it independently of the program.

namespace {

const QStringList AllSamples = {
    QStringLiteral("advocacy-only"),
    QStringLiteral("at-the-limit"),
    QStringLiteral("at-the-limit-1a"),
    QStringLiteral("care-typical"),
    QStringLiteral("carried-counter"),
    QStringLiteral("empty"),
    QStringLiteral("empty-1a"),
    QStringLiteral("exactly-full"),
    QStringLiteral("housing-typical"),
    QStringLiteral("joint-only"),
    QStringLiteral("many-sheets"),
    QStringLiteral("many-sheets-1a"),
    QStringLiteral("odd-characters"),
    QStringLiteral("older-file"),
    QStringLiteral("second-grid-twice"),
};

QJsonObject expectedOf(const QString &sample)
{
    QFile file(mdSamplePath(sample + QStringLiteral(".sheets.json")));
    return file.open(QIODevice::ReadOnly) ? QJsonDocument::fromJson(file.readAll()).object() : QJsonObject();
}

QString inOneLine(const QJsonValue &value)
{
    if (value.isUndefined())
        return QStringLiteral("(nothing)");
    return QString::fromUtf8(QJsonDocument(QJsonArray {value}).toJson(QJsonDocument::Compact));
}

/// The first difference of two lists, with its position; empty if there is none.
QString differenceOf(const QString &what, const QJsonArray &expected, const QJsonArray &actual)
{
    for (qsizetype i = 0; i < std::max(expected.size(), actual.size()); ++i) {
        const QJsonValue wanted = i < expected.size() ? expected[i] : QJsonValue(QJsonValue::Undefined);
        const QJsonValue found = i < actual.size() ? actual[i] : QJsonValue(QJsonValue::Undefined);
        if (wanted == found)
            continue;
        QString before;
        for (qsizetype k = std::max<qsizetype>(0, i - 3); k < i; ++k)
            before += QStringLiteral("    both %1\n").arg(inOneLine(expected[k]));
        return QStringLiteral("%1, entry %2:\n%3  wanted %4\n  found  %5\n")
            .arg(what)
            .arg(i + 1)
            .arg(before, inOneLine(wanted), inOneLine(found));
    }
    return {};
}

QString differenceOf(const QJsonObject &expected, const QJsonObject &actual)
{
    if (expected[QLatin1String("FormType")] != actual[QLatin1String("FormType")])
        return QStringLiteral("FormType");
    for (const QString &list : {QStringLiteral("Order"), QStringLiteral("CombinedOrder")})
        if (const QString found = differenceOf(list, expected[list].toArray(), actual[list].toArray());
            !found.isEmpty())
            return found;

    QHash<QString, QJsonObject> byName;
    for (const QJsonValue &sheet : actual[QLatin1String("Sheets")].toArray())
        byName[sheet.toObject()[QLatin1String("Name")].toString()] = sheet.toObject();
    const QJsonArray wanted = expected[QLatin1String("Sheets")].toArray();
    for (const QJsonValue &value : wanted) {
        const QJsonObject sheet = value.toObject();
        const QString name = sheet[QLatin1String("Name")].toString();
        const QJsonObject found = byName.take(name);
        if (found[QLatin1String("Template")] != sheet[QLatin1String("Template")])
            return QStringLiteral("sheet %1: template %2 instead of %3")
                .arg(name, inOneLine(found[QLatin1String("Template")]), inOneLine(sheet[QLatin1String("Template")]));
        const QString difference = differenceOf(QStringLiteral("sheet ") + name, sheet[QLatin1String("Ops")].toArray(),
            found[QLatin1String("Ops")].toArray());
        if (!difference.isEmpty())
            return difference;
    }
    return byName.isEmpty() ? QString() : QStringLiteral("sheets too many: ") + QStringList(byName.keys()).join(u' ');
}

class Samples : public clsExportTest, public testing::WithParamInterface<QString> { };

TEST_P(Samples, SendWhatWasWorkedOutForThem)
{
    const QJsonObject expected = expectedOf(GetParam());
    ASSERT_FALSE(expected[QLatin1String("Sheets")].toArray().isEmpty())
        << "no expectation for " << qPrintable(GetParam());
    ASSERT_TRUE(form.LoadXML(mdSamplePath(GetParam() + QStringLiteral(".zr3"))));
    form.ExportPath = folder.path();

    ASSERT_TRUE(exportClaim());

    const QString difference = differenceOf(expected, recorder->toJson());
    EXPECT_TRUE(difference.isEmpty()) << qPrintable(difference);
    EXPECT_EQ(1, recorder->backSpaces);
    EXPECT_TRUE(user.messages.empty()) << qPrintable(user.messages[0].text);
    EXPECT_TRUE(QFileInfo::exists(finished()));
    EXPECT_FALSE(QFileInfo::exists(temporary()));
}

INSTANTIATE_TEST_SUITE_P(, Samples, testing::ValuesIn(AllSamples),
    [](const auto &sample) { return QString(sample.param).replace(u'-', u'_').toStdString(); });

TEST(SampleComparison, FindsADifferenceWhereverItIs)
{
    const QJsonObject expected = expectedOf(QStringLiteral("second-grid-twice"));
    ASSERT_EQ(QString(), differenceOf(expected, expected));

    QJsonObject changed = expected;
    QJsonArray order = changed[QLatin1String("Order")].toArray();
    order.removeLast();
    changed[QLatin1String("Order")] = order;
    EXPECT_NE(QString(), differenceOf(expected, changed));

    for (const char *what : {"template", "operation", "text", "flag", "surplus"}) {
        QJsonArray sheets = expected[QLatin1String("Sheets")].toArray();
        QJsonObject sheet = sheets[0].toObject();
        QJsonArray ops = sheet[QLatin1String("Ops")].toArray();
        QJsonArray op = ops[1].toArray();
        ASSERT_EQ(QStringLiteral("replace"), op[0].toString());
        if (what == QByteArray("template"))
            sheet[QLatin1String("Template")] = QStringLiteral("Claim1 P2");
        else if (what == QByteArray("operation"))
            ops.removeLast();
        else if (what == QByteArray("text"))
            op[2] = QStringLiteral("x");
        else if (what == QByteArray("flag"))
            op[3] = QJsonObject {
                {QStringLiteral("tick"), false}, {QStringLiteral("bold"), QStringLiteral("from placeholder")}};
        if (what == QByteArray("text") || what == QByteArray("flag"))
            ops[1] = op;
        sheet[QLatin1String("Ops")] = ops;
        sheets[0] = sheet;
        if (what == QByteArray("surplus")) {
            sheet[QLatin1String("Name")] = QStringLiteral("1(9)");
            sheets << sheet;
        }
        changed = expected;
        changed[QLatin1String("Sheets")] = sheets;
        EXPECT_NE(QString(), differenceOf(expected, changed)) << what;
    }
}

TEST(SampleComparison, EverySampleIsCompared)
{
    QStringList found;
    for (const QFileInfo &file : QDir(mdSamplePath({})).entryInfoList({QStringLiteral("*.zr3")}, QDir::Files))
        found << file.completeBaseName();
    found.sort();
    EXPECT_EQ(AllSamples, found);
}

} // namespace
