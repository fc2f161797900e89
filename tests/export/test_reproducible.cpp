#include "tests/export/clsExportTest.h"

#include <QProcess>

// The same claim and templates make the same bytes, wherever and whenever they are exported.

namespace {

class Reproducible : public clsExportTest, public testing::WithParamInterface<QString> { };

TEST_P(Reproducible, GivesTheSameBytesTwice)
{
    ASSERT_TRUE(form.LoadXML(mdSamplePath(GetParam())));
    form.ExportPath = folder.path();
    ASSERT_TRUE(exportClaim());
    const QByteArray first = bytesOf(finished());
    ASSERT_TRUE(first.startsWith("PK"));
    ASSERT_TRUE(QFile::remove(finished()));
    ASSERT_TRUE(exportClaim());
    EXPECT_EQ(first, bytesOf(finished())) << "the second time";

    ASSERT_TRUE(QDir(folder.path()).mkpath(QStringLiteral("elsewhere")));
    form.ExportPath = path(QStringLiteral("elsewhere"));
    ASSERT_TRUE(exportClaim());
    EXPECT_TRUE(first == bytesOf(QString(form.ExportPath() + u'/' + QFileInfo(finished()).fileName())))
        << "in another folder";
}

TEST_P(Reproducible, GivesTheSameBytesInAnotherCountryAndTimeZone)
{
    struct Place {
        const char *zone;
        const char *locale;
    };
    ASSERT_TRUE(form.LoadXML(mdSamplePath(GetParam())));
    QByteArray first;
    for (const Place &place : {Place {"Europe/London", "en_GB.UTF-8"}, Place {"Pacific/Auckland", "de_DE.UTF-8"},
             Place {"America/St_Johns", "tr_TR.UTF-8"}, Place {"UTC", "C"}}) {
        const QString target = path(QString::fromLatin1(place.locale));
        ASSERT_TRUE(QDir().mkpath(target));
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.insert(QStringLiteral("TZ"), QString::fromLatin1(place.zone));
        environment.insert(QStringLiteral("LC_ALL"), QString::fromLatin1(place.locale));
        environment.insert(QStringLiteral("LANG"), QString::fromLatin1(place.locale));
        QProcess tool;
        tool.setProcessEnvironment(environment);
        tool.start(QStringLiteral(ZR3_TOOL),
            {QStringLiteral("export"), mdSamplePath(GetParam()), target, QStringLiteral("--templates"), TestTemplates,
                QStringLiteral("--quiet")});
        ASSERT_TRUE(tool.waitForFinished()) << qPrintable(tool.errorString());
        ASSERT_EQ(0, tool.exitCode()) << tool.readAllStandardError().constData();
        const QByteArray bytes = bytesOf(target + u'/' + QFileInfo(finished()).fileName());
        ASSERT_TRUE(bytes.startsWith("PK"));
        if (first.isEmpty())
            first = bytes;
        EXPECT_TRUE(first == bytes) << place.zone << ' ' << place.locale;
    }
}

INSTANTIATE_TEST_SUITE_P(, Reproducible,
    testing::Values(QStringLiteral("many-sheets.zr3"), QStringLiteral("many-sheets-1a.zr3"),
        QStringLiteral("odd-characters.zr3"), QStringLiteral("empty.zr3")),
    [](const auto &sample) { return sample.param.section(u'.', 0, 0).replace(u'-', u'_').toStdString(); });

} // namespace
