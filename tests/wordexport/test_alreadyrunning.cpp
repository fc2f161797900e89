#include "tests/support/mdExpectError.h"
#include "tests/support/mdTestPrinting.h"
#include "wordexport/document/mdWordInstalled.h"
#include "wordexport/mdWordAlreadyRunning.h"

#include <QCoreApplication>
#include <QFileInfo>

#include <gtest/gtest.h>

namespace {

bool runningAmong(const QStringList &names)
{
    const clsProcessListScope scope([names] { return names; });
    return mdWordAlreadyRunning();
}

TEST(mdWordAlreadyRunning, KnowsTheWordProcessorsInAnyCase)
{
    EXPECT_TRUE(runningAmong({QStringLiteral("init"), QStringLiteral("soffice.bin")}));
    EXPECT_TRUE(runningAmong({QStringLiteral("WINWORD.EXE"), QStringLiteral("init")}));
}

TEST(mdWordAlreadyRunning, OtherProcessesAreNone)
{
    EXPECT_FALSE(runningAmong({}));
    EXPECT_FALSE(runningAmong({QStringLiteral("soffice"), QStringLiteral("winword"), QStringLiteral("soffice.bin2")}));
}

TEST(mdWordAlreadyRunning, AListThatCannotBeReadIsNotCaught)
{
    const clsProcessListScope scope([]() -> QStringList { throw clsRunTimeError(clsRunTimeError::PathNotFound); });
    EXPECT_EQ(errorOf([] { mdWordAlreadyRunning(); }), clsRunTimeError::PathNotFound);
}

TEST(mdWordAlreadyRunning, ThePlatformsListHoldsThisProgram)
{
    const QString self = QFileInfo(QStringLiteral("/proc/self/exe")).symLinkTarget();
    EXPECT_TRUE(mdProcessNames().contains(QFileInfo(self).fileName()));
}

TEST(mdWordInstalled, TheWordProcessorIsBuiltIn)
{
    EXPECT_TRUE(mdWordInstalled());
}

} // namespace
